// SPDX-License-Identifier: MIT
#include "lyrics/providers/LyricsFreakProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/NestedElements.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/LinkEscapes.h"
#include "network/Endpoints.h"

#include <QUrlQuery>

namespace {

using Matching = ChainPattern::Matching;

QUrl searchPageUrl()
{
    return endpointUrl(Endpoint::LyricsFreak, QStringLiteral("/search.php"));
}

// The song that the opening tag of a row names; empty when it names none.
QString songOfRow(const QString &openingTag)
{
    static const ChainPattern song(QStringLiteral("data-sorting-song=\"([^\"]*)\""), Matching::Longest);
    return foundName(firstCapture(song, openingTag).value_or(QString()));
}

std::optional<QString> linkInBlock(const QString &block)
{
    static const ChainPattern link(QStringLiteral("<a[^>]*href=\"([^\"]*)\"[^>]*class=\"song\""), Matching::Longest);
    return firstCapture(link, block);
}

} // namespace

ProviderStep LyricsFreakProvider::processSearch()
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("a"), QStringLiteral("search"));
    query.addQueryItem(QStringLiteral("type"), QStringLiteral("song"));
    query.addQueryItem(QStringLiteral("q"), queryValue(title()));
    QUrl url = searchPageUrl();
    url.setQuery(query);
    QNetworkRequest request(url);
    request.setRawHeader("Referer", searchPageUrl().toEncoded());
    return ProviderStep::ask(request, [this](const Page &page) { return infoRequestFinished(page); });
}

QNetworkRequest LyricsFreakProvider::redirectedRequest(const QUrl &target) const
{
    return browserRequest(target, searchPageUrl());
}

ProviderStep LyricsFreakProvider::infoRequestFinished(const Page &page) const
{
    const SongLink found = songLink(page.text, artist(), title());
    if (!found)
        return ProviderStep::without(found.missing());
    const QString link = linkInSource(page, *found);
    const bool onSite = link.startsWith(QLatin1Char('/'));
    const QUrl url = onSite ? endpointUrl(Endpoint::LyricsFreak, link) : QUrl(link);
    return ProviderStep::ask(QNetworkRequest(url), &LyricsFreakProvider::lyricsRequestFinished);
}

SongLink LyricsFreakProvider::songLink(const QString &searchPage, const QString &artist, const QString &title)
{
    static const ChainPattern rowPattern(QStringLiteral("<div[^>]*data-sorting-artist=\"([^\"]*)\"[^>]*>"),
                                         Matching::Longest);
    const ChainScan rows(rowPattern, searchPage);
    const NestedElements divs(searchPage, QStringLiteral("div"));
    // Up to here there is no link: the blocks of rows that stand inside one that was looked at need no second look.
    int searchedEnd = 0;
    int read = 0;
    bool linkMissing = false;
    for (auto row = rows.next(); row; row = rows.next(row->end())) {
        const QString openingTag = searchPage.mid(row->position, row->length);
        const bool wanted = row->position >= searchedEnd && looselyAgree(artist, foundName(row->captures.at(0))) &&
                            looselyAgree(title, songOfRow(openingTag));
        ++read;
        linkMissing |= wanted;
        const int blockEnd = wanted ? divs.closingTag(row->position) : -1;
        if (blockEnd < 0)
            continue;
        const std::optional<QString> link = linkInBlock(searchPage.mid(row->position, blockEnd - row->position));
        if (link)
            return SongLink(*link);
        searchedEnd = blockEnd;
    }
    if (linkMissing)
        return SongLink::notUnderstood();
    return SongLink::none(read, searchPage.contains(QLatin1String("data-sorting-artist")));
}

ProviderStep LyricsFreakProvider::lyricsRequestFinished(const Page &page)
{
    static const ChainPattern content(QStringLiteral("<div[^>]*id=[\"']content[\"'].*>(.*)</div>"));
    return ProviderStep::cleanedLyrics(firstCapture(content, page.text));
}
