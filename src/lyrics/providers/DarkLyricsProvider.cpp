// SPDX-License-Identifier: MIT
#include "lyrics/providers/DarkLyricsProvider.h"

#include "lyrics/ChainScan.h"
#include "lyrics/NestedElements.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/LinkEscapes.h"
#include "lyrics/providers/TextSearch.h"
#include "network/Endpoints.h"

#include <QDateTime>
#include <QJSEngine>
#include <QNetworkCookie>
#include <QUrlQuery>

#include <algorithm>

namespace {

constexpr qint64 visitPeriodMilliseconds = qint64{6} * 60 * 60 * 1000;

// A hash of the number of six-hour periods since the epoch, as the site's own pages compute it. Empty when the engine
// fails.
QString evaluatedVisitCookie()
{
    static const QString script =
        QStringLiteral("var lastvisitts=Math.ceil(new Date().getTime()/(60*60*6*1000)).toString();"
                       "var lastvisittscookie=0;"
                       "for(var i=0; i<lastvisitts.length; i++){"
                       "lastvisittscookie=((lastvisittscookie<<5)-lastvisittscookie)+lastvisitts.charCodeAt(i);"
                       "lastvisittscookie=lastvisittscookie&lastvisittscookie;}");
    QJSEngine engine;
    const QJSValue value = engine.evaluate(script);
    return value.isNumber() ? value.toString() : QString();
}

// To make an engine takes the program longer than all else that it does for a request.
QString visitCookieValue()
{
    static qint64 knownPeriod = -1;
    static QString known;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const qint64 period = (now + visitPeriodMilliseconds - 1) / visitPeriodMilliseconds; // rounded up, as in the script
    if (period != knownPeriod || known.isEmpty()) {
        known = evaluatedVisitCookie();
        knownPeriod = period;
    }
    return known;
}

QString cookieDomain()
{
    QString host = endpointBase(Endpoint::DarkLyrics).host();
    if (host.startsWith(QLatin1String("www.")))
        host.remove(0, 4);
    return QLatin1Char('.') + host;
}

QNetworkRequest siteRequest(const QUrl &url, const QByteArray &userAgent)
{
    QNetworkRequest request(url);
    const QString value = visitCookieValue();
    if (!value.isEmpty()) {
        QNetworkCookie cookie(QByteArrayLiteral("lastvisitts"), value.toLatin1());
        cookie.setDomain(cookieDomain());
        request.setHeader(QNetworkRequest::CookieHeader, QVariant::fromValue(QList<QNetworkCookie>{cookie}));
        // Otherwise a cookie that the site has set would take the place of this one.
        request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    }
    request.setRawHeader("User-Agent", userAgent);
    return request;
}

// The content wrapper without its closing tag; empty when there is none or it is not closed.
QString contentOf(const QString &page)
{
    static const ChainPattern wrapper(QStringLiteral("<div[^>]*class=['\"]cntwrap['\"]"));
    const std::optional<ChainMatch> start = ChainScan(wrapper, page).next();
    const int end = start ? NestedElements(page, QStringLiteral("div")).closingTag(start->position) : -1;
    return end < 0 ? QString() : page.mid(start->position, end - start->position);
}

} // namespace

QNetworkRequest DarkLyricsProvider::redirectedRequest(const QUrl &target) const
{
    return siteRequest(target, browserUserAgent());
}

ProviderStep DarkLyricsProvider::processSearch()
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("q"), artistAndTitle());
    QUrl url = endpointUrl(Endpoint::DarkLyrics, QStringLiteral("/search"));
    url.setQuery(query);
    return ProviderStep::ask(siteRequest(url, browserUserAgent()),
                             [this](const Page &page) { return infoRequestFinished(page); });
}

ProviderStep DarkLyricsProvider::infoRequestFinished(const Page &page) const
{
    const SongLink link = songLink(page.text, artist(), title());
    if (!link)
        return ProviderStep::without(link.missing());
    // The fragment, which names the song's anchor, stays in the address.
    return ProviderStep::ask(siteRequest(page.url.resolved(QUrl(linkInSource(page, *link))), browserUserAgent()),
                             &DarkLyricsProvider::lyricsRequestFinished);
}

ProviderStep DarkLyricsProvider::lyricsRequestFinished(const Page &page)
{
    return ProviderStep::cleanedLyrics(songUnderAnchor(page.text, page.url.fragment(QUrl::FullyDecoded)));
}

QMap<QString, QString> DarkLyricsProvider::sections(const QString &page)
{
    static const ChainPattern headingPattern(QStringLiteral("<h3[^>]*>([^\n]+)</h3"));
    const QString content = contentOf(page);
    if (content.isEmpty())
        return {};
    const ChainScan headings(headingPattern, content);
    QMap<QString, QString> sections;
    QString key;
    int begin = 0;
    for (auto heading = headings.next(); heading; heading = headings.next(begin)) {
        sections.insert(key, content.mid(begin, heading->position - begin));
        key = heading->captures.at(0).section(QLatin1Char(':'), 0, 0).toLower();
        begin = heading->end() + 1; // behind the ">" of the closing tag
    }
    sections.insert(key, content.mid(begin));
    return sections;
}

SongLink DarkLyricsProvider::songLink(const QString &searchPage, const QString &artist, const QString &title)
{
    // An address may begin with a quotation mark, but the next one ends it.
    static const ChainPattern linkPattern(
        QStringLiteral("<h2[^\n]*>[ \t\n\v\f\r]*<a[^\n]+href=['\"]([^\n][^\n'\"]*)['\"][^\n]+>([^<]+)</a"));
    const QString wanted = artist + QLatin1String(" - ") + title;
    const QMap<QString, QString> parts = sections(searchPage);
    if (parts.isEmpty())
        return SongLink::notUnderstood();
    const QString songs = parts.value(QStringLiteral("songs"));
    const ChainScan links(linkPattern, songs);
    int read = 0;
    for (auto link = links.next(); link; link = links.next(link->end())) {
        const QString found = foundName(link->captures.at(1));
        if (found.isEmpty())
            continue;
        if (looselyAgree(wanted, found))
            return SongLink(link->captures.at(0));
        ++read;
    }
    return SongLink::none(read, songs.contains(QLatin1String("<h2")));
}

std::optional<QString> DarkLyricsProvider::songUnderAnchor(const QString &albumPage, const QString &anchor)
{
    // The headings of an album's page are the titles with their anchors, so a key holds the anchor of its section.
    const QString named = QStringLiteral("name=\"%1\"").arg(anchor).toLower();
    const QMap<QString, QString> songs = sections(albumPage);
    const auto song = std::find_if(songs.keyBegin(), songs.keyEnd(),
                                   [&named](const QString &heading) { return holdsText(heading, named); });
    return song == songs.keyEnd() ? std::nullopt : std::make_optional(*song.base());
}
