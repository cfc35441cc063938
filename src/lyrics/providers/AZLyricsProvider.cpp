// SPDX-License-Identifier: MIT
#include "lyrics/providers/AZLyricsProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/LinkEscapes.h"
#include "lyrics/providers/LinkList.h"
#include "lyrics/providers/TextSearch.h"
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

QString artistIn(QString cell)
{
    cell.remove(QLatin1String("&middot;"));
    return foundName(cell);
}

// What a match of the row pattern names. It runs on into the next rows where a row has one name only.
struct Row
{
    QString link;
    QString artist;
    // Where the row of the artist begins in the match, and whether the link stands in it too.
    int begin;
    bool isWhole;
};

Row rowOf(const ChainMatch &match, const QString &table)
{
    const QString text = table.mid(match.position, match.length);
    const QString link = match.captures.at(0);
    const QString artist = match.captures.at(2);
    const int begin = text.lastIndexOf(QLatin1String("<tr"), text.lastIndexOf(QStringLiteral("<b>%1</b>").arg(artist)));
    const bool isWhole = holdsText(text.mid(begin), QStringLiteral("href=\"%1\"").arg(link));
    return {link, artistIn(artist), begin, isWhole};
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
    return ProviderStep::ask(browserRequest(QUrl(linkInSource(page, *link)), searchPageUrl()),
                             &AZLyricsProvider::lyricsRequestFinished);
}

ProviderStep AZLyricsProvider::lyricsRequestFinished(const Page &page)
{
    static const ChainPattern block(QStringLiteral("<div>(.*)</div>"));
    static const ChainPattern link(QStringLiteral("<a[ \n>].*</a>"));
    const ProviderStep step = ProviderStep::cleanedLyrics(firstCapture(block, page.text));
    return isLinkList(step.markup(), link) ? ProviderStep::notUnderstood() : step;
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
    for (auto match = rows.next(); match;) {
        const Row row = rowOf(*match, table);
        if (row.isWhole && !row.artist.isEmpty()) {
            if (looselyAgree(artist, row.artist))
                return SongLink(row.link);
            ++read;
        }
        match = rows.next(row.isWhole ? match->end() : match->position + row.begin);
    }
    return SongLink::none(read, table.contains(QLatin1String("<tr")));
}
