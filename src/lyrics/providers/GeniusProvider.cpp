// SPDX-License-Identifier: MIT
#include "lyrics/providers/GeniusProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/GeniusContainers.h"
#include "lyrics/providers/LinkList.h"
#include "network/Endpoints.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

namespace {

constexpr int hitsPerSection = 5;
// What the service says of itself inside its answer, whatever HTTP said.
constexpr int statusOk = 200;

QString textOf(const QJsonValue &value)
{
    return value.toVariant().toString();
}

bool resembles(const QJsonObject &song, const QString &artist, const QString &title)
{
    const QJsonObject primaryArtist = song.value(QLatin1String("primary_artist")).toObject();
    return looselyAgree(artist, foundName(textOf(primaryArtist.value(QLatin1String("name"))))) &&
           looselyAgree(title, foundName(textOf(song.value(QLatin1String("title")))));
}

// The song that a hit stands for; an empty object when it stands for something else.
QJsonObject songOfHit(const QJsonObject &hit)
{
    const QString song = QStringLiteral("song");
    const QJsonObject result = hit.value(QLatin1String("result")).toObject();
    const bool isSong =
        textOf(hit.value(QLatin1String("type"))) == song && textOf(result.value(QLatin1String("_type"))) == song;
    return isSong ? result : QJsonObject();
}

SongLink songPathInSection(const QJsonObject &section, const QString &artist, const QString &title)
{
    const QString type = textOf(section.value(QLatin1String("type")));
    const bool listsSongs = type == QLatin1String("song");
    if (!listsSongs && type != QLatin1String("top_hit"))
        return SongLink::none(0, false);
    const QJsonArray hits = section.value(QLatin1String("hits")).toArray();
    int read = 0;
    for (const QJsonValue &hit : hits) {
        const QJsonObject song = songOfHit(hit.toObject());
        const QString path = textOf(song.value(QLatin1String("path")));
        const bool readable = path.startsWith(QLatin1Char('/'));
        if (readable && resembles(song, artist, title))
            return SongLink(path);
        read += readable ? 1 : 0;
    }
    return SongLink::none(read, listsSongs && !hits.isEmpty());
}

// Line breaks are those of the break tags alone. Entities stay: whoever shows or stores the lyrics decodes them.
ProviderStep readOlderBlock(const QString &block)
{
    const QString markup = withoutScriptsAndStyles(block);
    QString text = markup;
    text.remove(QLatin1Char('\n')).remove(QLatin1Char('\r'));
    return ProviderStep::lyrics(stripTags(withPlainBreaksAsNewlines(text)).trimmed(), markup);
}

} // namespace

QString GeniusProvider::siteUrl() const
{
    return endpointUrl(Endpoint::Genius, QStringLiteral("/")).toString();
}

ProviderStep GeniusProvider::processSearch()
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("per_page"), QString::number(hitsPerSection));
    query.addQueryItem(QStringLiteral("q"), artistAndTitle());
    QUrl url = endpointUrl(Endpoint::Genius, QStringLiteral("/api/search/multi"));
    url.setQuery(query);
    return ProviderStep::ask(QNetworkRequest(url), [this](const Page &page) { return infoRequestFinished(page); });
}

ProviderStep GeniusProvider::infoRequestFinished(const Page &page) const
{
    const SongLink path = songPath(page.text, artist(), title());
    if (!path)
        return ProviderStep::without(path.missing());
    const QString base = endpointBase(Endpoint::Genius).toString(QUrl::FullyEncoded);
    return ProviderStep::ask(QNetworkRequest(QUrl::fromUserInput(base + *path)),
                             &GeniusProvider::lyricsRequestFinished);
}

ProviderStep GeniusProvider::lyricsRequestFinished(const Page &page)
{
    // The "*" makes the quotation mark optional and repeatable; it is meant.
    static const ChainPattern olderBlock(QStringLiteral("<div class=\"lyrics\"*>(.*)</div>"));
    // The pages of albums are listed among the songs. Links of other kinds are notes on the words.
    static const ChainPattern songLink(QStringLiteral("<a[^>]*-lyrics[\"'][^>]*>.*</a>"));
    const std::optional<QString> block = firstCapture(olderBlock, page.text);
    const ProviderStep step = block ? readOlderBlock(*block) : readGeniusContainers(page.text);
    return isLinkList(step.markup(), songLink) ? ProviderStep::notUnderstood() : step;
}

SongLink GeniusProvider::songPath(const QString &searchAnswer, const QString &artist, const QString &title)
{
    const QJsonObject answer = QJsonDocument::fromJson(searchAnswer.toUtf8()).object();
    const QJsonObject meta = answer.value(QLatin1String("meta")).toObject();
    if (meta.value(QLatin1String("status")).toVariant().toInt() != statusOk)
        return SongLink::notUnderstood();
    const QJsonObject response = answer.value(QLatin1String("response")).toObject();
    const QJsonValue sections = response.value(QLatin1String("sections"));
    if (!sections.isArray())
        return SongLink::notUnderstood();
    SongLink best = SongLink::none(0, false);
    const QJsonArray list = sections.toArray();
    for (const QJsonValue &section : list) {
        const SongLink song = songPathInSection(section.toObject(), artist, title);
        if (song)
            return song;
        // Songs that were read show that the answer is understood; songs that were not, that it may hold some.
        if (song.missing() == SongLink::Missing::NoSuchSong || best.missing() == SongLink::Missing::ListedNothing)
            best = song;
    }
    return best;
}
