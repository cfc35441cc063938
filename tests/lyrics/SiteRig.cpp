// SPDX-License-Identifier: MIT
#include "SiteRig.h"

#include <QCoreApplication>
#include <QSettings>

SiteRig::SiteRig(std::initializer_list<Endpoint> endpoints)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder.path());
    QSettings settings;
    settings.beginGroup(endpointGroup());
    for (const Endpoint endpoint : endpoints)
        settings.setValue(endpointKey(endpoint), m_server.base());
    settings.sync();
    reloadEndpoints();
}

void SiteRig::page(const QByteArray &path, const QString &html)
{
    m_server.route(QString::fromUtf8(path), LoopbackResponse::page(html.toUtf8()));
}

QList<QByteArray> SiteRig::targets() const
{
    QList<QByteArray> targets;
    for (const LoopbackRequest &request : m_server.requests())
        targets.append(request.target);
    return targets;
}

SiteAnswer SiteRig::search(LyricsProvider &site, const QString &artist, const QString &title)
{
    QSignalSpy finished(&site, &LyricsProvider::finished);
    if (!site.search(artist, title) || !(finished.size() == 1 || finished.wait()))
        return {QStringLiteral("no answer"), {}};
    return {finished.first().first().toString(), site.errorString()};
}
