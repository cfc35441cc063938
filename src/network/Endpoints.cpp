// SPDX-License-Identifier: MIT
#include "network/Endpoints.h"

#include "network/NetworkLog.h"
#include "network/Redirects.h"
#include "network/SettingsStore.h"

#include <array>
#include <optional>

namespace {

struct EndpointRow
{
    Endpoint endpoint;
    const char *key;
    const char *defaultBase;
};

constexpr std::array<EndpointRow, 15> endpointTable{{
    {Endpoint::LyricsFreak, "LyricsFreak", "https://www.lyricsfreak.com"},
    {Endpoint::Megalyrics, "Megalyrics", "https://megalyrics.ru"},
    {Endpoint::AZLyrics, "AZLyrics", "https://www.azlyrics.com"},
    {Endpoint::AZLyricsSearch, "AZLyricsSearch", "https://search.azlyrics.com"},
    {Endpoint::Genius, "Genius", "https://genius.com"},
    {Endpoint::DarkLyrics, "DarkLyrics", "http://www.darklyrics.com"},
    {Endpoint::MusixMatch, "MusixMatch", "http://www.musixmatch.com"},
    {Endpoint::Lastfm, "Lastfm", "https://ws.audioscrobbler.com"},
    {Endpoint::Maker, "Maker", VERSEWELL_MAKER_URL},
    {Endpoint::Collector, "Collector", VERSEWELL_COLLECTOR_URL},
    {Endpoint::ProxyTest, "ProxyTest", "http://example.com"},
    {Endpoint::Google, "Google", "https://www.google.com"},
    {Endpoint::Bing, "Bing", "https://www.bing.com"},
    {Endpoint::Yahoo, "Yahoo", "https://search.yahoo.com"},
    {Endpoint::Yandex, "Yandex", "https://yandex.com"},
}};

constexpr bool tableFollowsEnum()
{
    for (std::size_t i = 0; i < endpointTable.size(); ++i) {
        if (endpointTable[i].endpoint != static_cast<Endpoint>(i))
            return false;
    }
    return true;
}
static_assert(tableFollowsEnum(), "rows are found by the number of their endpoint");

using Bases = std::array<QUrl, endpointTable.size()>;

std::size_t rowOf(Endpoint endpoint)
{
    return static_cast<std::size_t>(endpoint);
}

QUrl withoutTrailingSlash(QString address)
{
    while (address.endsWith(QLatin1Char('/')))
        address.chop(1);
    return QUrl(address);
}

bool isBaseAddress(const QUrl &url)
{
    return isWebAddress(url) && !url.hasQuery() && !url.hasFragment();
}

QUrl readBase(const QSettings &settings, const EndpointRow &row)
{
    const QString key = QString::fromLatin1(row.key);
    if (settings.contains(key)) {
        const QUrl override = withoutTrailingSlash(settings.value(key).toString().trimmed());
        if (isBaseAddress(override))
            return override;
        qCWarning(networkLog, "The setting endpoints/%s is not an http or https address; it is ignored.", row.key);
    }
    return endpointDefault(row.endpoint);
}

Bases readBases()
{
    SettingsStore settings;
    settings.beginGroup(endpointGroup());
    Bases bases;
    for (const EndpointRow &row : endpointTable)
        bases[rowOf(row.endpoint)] = readBase(settings, row);
    return bases;
}

std::optional<Bases> &knownBases()
{
    static std::optional<Bases> bases;
    return bases;
}

} // namespace

QVector<Endpoint> allEndpoints()
{
    QVector<Endpoint> endpoints;
    for (const EndpointRow &row : endpointTable)
        endpoints.append(row.endpoint);
    return endpoints;
}

QString endpointGroup()
{
    return QStringLiteral("endpoints");
}

QString endpointKey(Endpoint endpoint)
{
    return QString::fromLatin1(endpointTable[rowOf(endpoint)].key);
}

QUrl endpointDefault(Endpoint endpoint)
{
    return withoutTrailingSlash(QString::fromUtf8(endpointTable[rowOf(endpoint)].defaultBase));
}

QUrl endpointBase(Endpoint endpoint)
{
    std::optional<Bases> &bases = knownBases();
    if (!bases)
        bases = readBases();
    return (*bases)[rowOf(endpoint)];
}

QUrl endpointUrl(Endpoint endpoint, const QString &target)
{
    QString address = endpointBase(endpoint).toString(QUrl::FullyEncoded);
    const bool separated = target.isEmpty() || QStringLiteral("/?#").contains(target.at(0));
    if (!separated)
        address += QLatin1Char('/');
    return QUrl(address + target);
}

bool endpointExists(Endpoint endpoint)
{
    const QString host = endpointBase(endpoint).host();
    return host != QLatin1String("example") && !host.endsWith(QLatin1String(".example"));
}

void reloadEndpoints()
{
    knownBases().reset();
}
