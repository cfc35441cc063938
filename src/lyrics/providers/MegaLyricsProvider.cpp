// SPDX-License-Identifier: MIT
#include "lyrics/providers/MegaLyricsProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/LinkEscapes.h"
#include "lyrics/providers/MegaLyricsText.h"
#include "network/Endpoints.h"

#include <QUrlQuery>

namespace {

QString nameIn(const QString &cell)
{
    return foundName(decodeMegaLyricsText(stripTags(cell)));
}

// The newer layout: a block of text for each part of the song.
QString joinedTexts(const QString &songText)
{
    static const ChainPattern block(QStringLiteral("<div.*class=\"text\".*>(.*)</div>"));
    const ChainScan blocks(block, songText);
    QStringList texts;
    for (auto text = blocks.next(); text; text = blocks.next(text->end()))
        texts.append(decodeMegaLyricsText(withoutScriptsAndStyles(text->captures.at(0))));
    return texts.join(QLatin1Char('\n'));
}

// The older layout: one block with break tags, which may come out of the decoding only.
QString withoutBreakTags(const QString &textInner)
{
    static const ChainPattern breakTag(QStringLiteral("<br.*>"));
    const QString text = decodeMegaLyricsText(withoutScriptsAndStyles(textInner));
    return withMatchesReplaced(text, breakTag, QStringLiteral("\n"));
}

} // namespace

ProviderStep MegaLyricsProvider::processSearch()
{
    QUrlQuery query;
    // The check mark that the site's own form sends, encoded already.
    query.addQueryItem(QStringLiteral("utf8"), QStringLiteral("%E2%9C%93"));
    query.addQueryItem(QStringLiteral("search"), artistAndTitle());
    QUrl url = endpointUrl(Endpoint::Megalyrics, QStringLiteral("/search"));
    url.setQuery(query);
    return ProviderStep::ask(QNetworkRequest(url), [this](const Page &page) { return infoRequestFinished(page); });
}

ProviderStep MegaLyricsProvider::infoRequestFinished(const Page &page) const
{
    const SongLink link = songLink(page.text, artist(), title());
    if (!link)
        return ProviderStep::without(link.missing());
    return ProviderStep::ask(QNetworkRequest(endpointUrl(Endpoint::Megalyrics, withLinkEscapes(page, *link))),
                             &MegaLyricsProvider::lyricsRequestFinished);
}

SongLink MegaLyricsProvider::songLink(const QString &searchPage, const QString &artist, const QString &title)
{
    static const ChainPattern table(
        QStringLiteral("<div[^>]*class=\"songs-table\"[^<]*>.*<table>.*<tbody>(.*)</tbody>"));
    static const ChainPattern rowPattern(
        QStringLiteral("<tr.*>.*<td.*>.*<td.*>.*<a.*href=\"([^\"]*)\".*>([^<]*)</a>.*<td.*>(.*)</td>"
                       ".*<td.*>.*<td.*>.*</tr>"));
    const std::optional<QString> body = firstCapture(table, searchPage);
    if (!body)
        return SongLink::notUnderstood();
    const ChainScan rows(rowPattern, *body);
    int read = 0;
    for (auto row = rows.next(); row; row = rows.next(row->end())) {
        const QString foundTitle = nameIn(row->captures.at(1));
        const QString foundArtist = nameIn(row->captures.at(2));
        if (foundTitle.isEmpty() || foundArtist.isEmpty())
            continue;
        if (looselyAgree(artist, foundArtist) && looselyAgree(title, foundTitle))
            return SongLink(row->captures.at(0));
        ++read;
    }
    return SongLink::none(read, body->contains(QLatin1String("<tr")));
}

ProviderStep MegaLyricsProvider::lyricsRequestFinished(const Page &page)
{
    static const ChainPattern advert(QStringLiteral("<div\\s*id=\"native_roll\">.*</div>"));
    static const ChainPattern song(
        QStringLiteral("<div[^>]*id=\"song_text\"[^>]*>(.*)</div>.*<div.*class=\"switch-block\".*>"));
    static const ChainPattern inner(QStringLiteral("<div[^>]*class=\"text_inner\"[^>]*>(.*)</div>"));
    const QString text = withMatchesReplaced(page.text, advert, QString());
    if (const std::optional<QString> songText = firstCapture(song, text))
        return ProviderStep::lyrics(joinedTexts(*songText));
    const std::optional<QString> textInner = firstCapture(inner, text);
    return textInner ? ProviderStep::lyrics(withoutBreakTags(*textInner)) : ProviderStep::notUnderstood();
}
