// SPDX-License-Identifier: MIT
#include "lyrics/providers/AZLyricsProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "network/Endpoints.h"

#include <QUrlQuery>

namespace {

QUrl searchPageUrl()
{
    return endpointUrl(Endpoint::AZLyricsSearch, QStringLiteral("/search.php"));
}

// From the first opening tag of a table up to its end. One at the very start of the page does not count.
QString firstTable(const QString &page)
{
    const int begin = page.indexOf(QLatin1String("<table"));
    const int end = begin > 0 ? page.indexOf(QLatin1String("</table"), begin) : -1;
    return end > 0 ? page.mid(begin, end - begin) : QString();
}

QString foundArtist(QString cell)
{
    cell.remove(QLatin1String("&middot;"));
    cell.replace(QLatin1String("&nbsp;"), QLatin1String(" "));
    return decodeHtmlEntities(cell).trimmed();
}

} // namespace

// All requests look the same.
QNetworkRequest AZLyricsProvider::redirectedRequest(const QUrl &target) const
{
    return browserRequest(target, searchPageUrl());
}

ProviderStep AZLyricsProvider::processSearch()
{
    const QUrl script = endpointUrl(Endpoint::AZLyrics, QStringLiteral("/geo.js"));
    return ProviderStep::ask(browserRequest(script, searchPageUrl()),
                             [this](const Page &page) { return scriptRequestFinished(page); });
}

ProviderStep AZLyricsProvider::scriptRequestFinished(const Page &page)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("q"), artistAndTitle());
    const auto [name, value] = searchParameter(page.text);
    if (!name.isEmpty() && !value.isEmpty())
        query.addQueryItem(queryValue(name), queryValue(value));
    QUrl url = searchPageUrl();
    url.setQuery(query);
    return ProviderStep::ask(browserRequest(url, searchPageUrl()),
                             [this](const Page &searchPage) { return infoRequestFinished(searchPage); });
}

ProviderStep AZLyricsProvider::infoRequestFinished(const Page &page) const
{
    const SongLink link = songLink(page.text, artist());
    if (!link)
        return ProviderStep::without(link.missing());
    return ProviderStep::ask(browserRequest(QUrl(*link), searchPageUrl()), &AZLyricsProvider::lyricsRequestFinished);
}

ProviderStep AZLyricsProvider::lyricsRequestFinished(const Page &page)
{
    static const ChainPattern block(QStringLiteral("<div>(.*)</div>"));
    return ProviderStep::cleanedLyrics(firstCapture(block, page.text));
}

QPair<QString, QString> AZLyricsProvider::searchParameter(const QString &script)
{
    static const ChainPattern attribute(QStringLiteral("setAttribute\\(\"(.+?)\"\\s*,\\s*\"(.+?)\"\\s*\\)"),
                                        ChainPattern::Matching::Stepwise);
    QPair<QString, QString> parameter;
    const ChainScan attributes(attribute, script);
    for (auto match = attributes.next(); match; match = attributes.next(match->end())) {
        if (match->captures.at(0) == QLatin1String("name"))
            parameter.first = match->captures.at(1);
        else if (match->captures.at(0) == QLatin1String("value"))
            parameter.second = match->captures.at(1);
    }
    return parameter;
}

SongLink AZLyricsProvider::songLink(const QString &searchPage, const QString &artist)
{
    static const ChainPattern rowPattern(
        QStringLiteral("<tr>.*<td[^<]*class[^<]*>.*<a.*href=\"([^\"]*)\".*>.*<b>(.*)</b>"
                       ".*<b>([^<]*)</b>.*</td></tr>"));
    const QString table = firstTable(searchPage);
    if (table.isEmpty())
        return SongLink::notUnderstood();
    const ChainScan rows(rowPattern, table);
    int read = 0;
    for (auto row = rows.next(); row; row = rows.next(row->end())) {
        if (looselyAgree(artist, foundArtist(row->captures.at(2))))
            return SongLink(row->captures.at(0));
        ++read;
    }
    return SongLink::none(read, table.contains(QLatin1String("<tr")));
}
