// SPDX-License-Identifier: MIT
#include "lyrics/providers/MusixMatchProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/ElementFinder.h"
#include "lyrics/providers/LinkEscapes.h"
#include "lyrics/providers/TextSearch.h"
#include "network/Endpoints.h"

namespace {

// A list of tracks leads to a track's page. A site that goes on answering with lists is not followed for ever.
constexpr int mostRequests = 20;

// How much of a block may be searched in all, in UTF-16 units. Each piece of lyrics is searched for from the start of
// the block, and pages have few of them.
constexpr qint64 mostSearched = 6LL * 1024 * 1024;

// The first address in the title's element, between quotation marks of either kind.
QString linkOf(const QString &titleElement)
{
    static const ChainPattern doubleQuoted(QStringLiteral("href=\"(.+)\""));
    static const ChainPattern singleQuoted(QStringLiteral("href='(.+)'"));
    const std::optional<ChainMatch> first = ChainScan(doubleQuoted, titleElement).next();
    const std::optional<ChainMatch> second = ChainScan(singleQuoted, titleElement).next();
    if (!first && !second)
        return {};
    return (first && (!second || first->position < second->position) ? first : second)->captures.at(0);
}

// The name that an element shows; empty when there is no such element, or only a picture in it.
QString nameIn(const QString &element)
{
    return foundName(stripTags(element));
}

struct Track
{
    QString link; // empty when it lacks this or a name: then it is not wanted
    bool wanted = false;
};

Track trackOfItem(const QString &item, const QString &artist, const QString &title)
{
    if (!item.contains(QLatin1String("href=")))
        return {};
    const QString anchor = QStringLiteral("a");
    const QString titleElement = findElement(item, anchor, {QStringLiteral("title")}, true);
    const QString foundTitle = nameIn(titleElement);
    const QString foundArtist = nameIn(findElement(item, anchor, {QStringLiteral("artist")}, false));
    const QString link = linkOf(titleElement);
    if (link.isEmpty() || foundTitle.isEmpty() || foundArtist.isEmpty())
        return {};
    return {link, looselyAgree(title, foundTitle) && looselyAgree(artist, foundArtist)};
}

} // namespace

QNetworkRequest MusixMatchProvider::redirectedRequest(const QUrl &target) const
{
    QNetworkRequest request(target);
    request.setRawHeader("User-Agent", browserUserAgent());
    return request;
}

ProviderStep MusixMatchProvider::processSearch()
{
    m_requests = 0;
    const QString names = artistAndTitle();
    return askFor(endpointUrl(Endpoint::MusixMatch, QStringLiteral("/search/%1/tracks").arg(names)));
}

ProviderStep MusixMatchProvider::askFor(const QUrl &url)
{
    if (++m_requests > mostRequests)
        //: %1 is the name of a lyrics site.
        return ProviderStep::notUnderstood(tr("%1 leads from one list of songs to the next.").arg(name()));
    return ProviderStep::ask(redirectedRequest(url), [this](const Page &page) { return requestFinished(page); });
}

ProviderStep MusixMatchProvider::requestFinished(const Page &page)
{
    const QString block = lyricsBlock(page.text);
    if (!block.isEmpty()) {
        //: %1 is the name of a lyrics site.
        const QString tooIntricate = tr("%1 gave a page that is too intricate to read.").arg(name());
        return lyricsOfBlock(block).value_or(ProviderStep::notUnderstood(tooIntricate));
    }
    const SongLink link = trackLink(page.text, artist(), title());
    return link ? askFor(page.url.resolved(QUrl(withLinkEscapes(page, *link)))) : ProviderStep::without(link.missing());
}

QString MusixMatchProvider::lyricsBlock(const QString &page)
{
    return findElement(page, QStringLiteral("div"), {QStringLiteral("mxm-lyrics")}, false);
}

std::optional<ProviderStep> MusixMatchProvider::lyricsOfBlock(const QString &block)
{
    QString lyrics;
    QString markup;
    QString rest = block;
    for (qint64 searched = rest.size(); searched <= mostSearched; searched += rest.size()) {
        const QString span = findElement(rest, QStringLiteral("span"), {QStringLiteral("lyrics__content__ok")}, true);
        if (span.isEmpty())
            return ProviderStep::lyrics(lyrics, markup);
        const QString part = withoutScriptsAndStyles(span);
        lyrics += stripTags(part);
        markup += part;
        // Wherever it stands: a part that comes again, word for word, is taken once. This is deliberate.
        // One that only begins with the same words is another part, so the end has to follow.
        rest = withoutText(rest, span, QStringLiteral("</span"));
    }
    return std::nullopt;
}

SongLink MusixMatchProvider::trackLink(const QString &searchPage, const QString &artist, const QString &title)
{
    // One item with all its parts on one line; "<li" may also be the beginning of a longer name.
    static const ChainPattern itemPattern(QStringLiteral("<li[^\n]+>([^\n]+)</li"));
    static const QStringList listClasses{QStringLiteral("tracks"), QStringLiteral("list"),
                                         QStringLiteral("thumb-list")};
    const QString element = QStringLiteral("ul");
    if (findElement(searchPage, element, listClasses, true).isEmpty())
        return SongLink::notUnderstood();
    const QString list = findElement(searchPage, element, listClasses, false);
    const QString lowerList = asciiLower(list);
    const ChainScan items(itemPattern, lowerList);
    int read = 0;
    int offset = 0;
    while (const auto item = items.next(offset)) {
        const int length = item->captures.at(0).size();
        const int begin = item->end() - static_cast<int>(qstrlen("</li")) - length;
        const Track track = trackOfItem(list.mid(begin, length), artist, title);
        if (track.wanted)
            return SongLink(track.link);
        read += track.link.isEmpty() ? 0 : 1;
        offset = offsetBehind(offset, item->position, item->length);
    }
    return SongLink::none(read, lowerList.contains(QLatin1String("<li")));
}
