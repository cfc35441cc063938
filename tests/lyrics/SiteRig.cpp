// SPDX-License-Identifier: MIT
#include "SiteRig.h"

#include "network/Endpoints.h"

#include <QSettings>
#include <QSignalSpy>

SiteRig::SiteRig()
{
    m_folder.holdSettings();
    QSettings settings;
    settings.beginGroup(endpointGroup());
    for (const Endpoint endpoint : allEndpoints())
        settings.setValue(endpointKey(endpoint), m_server.base());
    settings.sync();
    reloadEndpoints();
}

void SiteRig::page(const QString &path, const QString &html)
{
    m_server.route(path, LoopbackResponse::page(html.toUtf8()));
}

QString SiteRig::targets() const
{
    QByteArrayList targets;
    for (const LoopbackRequest &request : m_server.requests())
        targets.append(request.target);
    return QString::fromLatin1(targets.join(' '));
}

SiteAnswer SiteRig::search(LyricsProvider &site, const QString &artist, const QString &title)
{
    QSignalSpy finished(&site, &LyricsProvider::finished);
    if (!site.search(artist, title) || !(finished.size() == 1 || finished.wait()))
        return {QStringLiteral("no answer"), {}};
    return {finished.first().first().toString(), site.errorString()};
}
