// SPDX-License-Identifier: MIT
#include "lyrics/SearchProvider.h"

#include "network/Endpoints.h"

#include <QDesktopServices>
#include <QUrl>
#include <QUrlQuery>

#include <array>

namespace {

struct Engine
{
    Endpoint endpoint;
    const char *target;
};

constexpr std::array<Engine, 4> engines{{
    {Endpoint::Google, "/search?q={{QUERY}}"},
    {Endpoint::Bing, "/?q={{QUERY}}"},
    {Endpoint::Yahoo, "/search?p={{QUERY}}"},
    {Endpoint::Yandex, "/search/?q={{QUERY}}"},
}};

// Exactly as QUrlQuery does it, which leaves a plus sign and a written escape ("%41") as they are. This is deliberate.
QByteArray encoded(const QString &query)
{
    const QString key = QStringLiteral("q");
    QUrlQuery items;
    items.addQueryItem(key, query);
    return items.queryItemValue(key, QUrl::FullyEncoded).toLatin1();
}

} // namespace

SearchProvider::SearchProvider(QObject *parent)
    : QObject(parent)
{
    for (const Engine &engine : engines) {
        m_names.append(endpointKey(engine.endpoint));
        m_templates.append(endpointBase(engine.endpoint).toEncoded() + engine.target);
    }
}

QString SearchProvider::effectiveName(const QString &name) const
{
    return m_names.contains(name) ? name : m_names.first();
}

void SearchProvider::search(const QString &query, const QString &name) const
{
    QByteArray address = m_templates.at(m_names.indexOf(effectiveName(name)));
    address.replace("{{QUERY}}", encoded(query));
    QDesktopServices::openUrl(QUrl::fromEncoded(address, QUrl::TolerantMode));
}
