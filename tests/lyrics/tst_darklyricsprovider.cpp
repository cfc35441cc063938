// SPDX-License-Identifier: MIT
#include "PlainElements.h"
#include "RandomText.h"
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/DarkLyricsProvider.h"
#include "support/TestTable.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

namespace {

// The same as it is written with the expressions themselves.
namespace plain {

QString contentOf(const QString &page)
{
    const auto wrapper = QRegularExpression("<div[^>]*class=(['\"])cntwrap(['\"])"_s).match(page);
    const int start = wrapper.capturedStart();
    const int end = wrapper.hasMatch() ? countedClosingTag(page, "div"_s, start) : -1;
    return end < 0 ? QString() : page.mid(start, end - start);
}

QMap<QString, QString> sections(const QString &page)
{
    QMap<QString, QString> sections;
    const QString content = contentOf(page);
    const QRegularExpression heading("<h3[^>]*>(.+?)</h3"_s);
    QString key;
    for (int at = 0; !content.isEmpty();) {
        const auto match = heading.match(content.mid(at));
        sections.insert(key, match.hasMatch() ? content.mid(at, match.capturedStart()) : content.mid(at));
        if (!match.hasMatch())
            break;
        key = match.captured(1).split(QLatin1Char(':')).first().toLower();
        at += match.capturedEnd() + 1;
    }
    return sections;
}

QString songLink(const QString &page, const QString &artist, const QString &title)
{
    const QRegularExpression link("<h2.*?>\\s*<a.+?href=['\"](?<url>.+?)['\"].+?>(?<title>[^<]+)</a"_s);
    for (auto links = link.globalMatch(sections(page).value("songs"_s)); links.hasNext();) {
        const auto match = links.next();
        if (looselyAgree(artist + " - "_s + title, decodeHtmlEntities(match.captured("title"_s))))
            return match.captured("url"_s);
    }
    return {};
}

} // namespace plain

QString wrapped(const QString &content)
{
    return "<div class='cntwrap'>%1</div>"_s.arg(content);
}

// The hash that the site's script computes, for a time in milliseconds since the epoch.
QByteArray visitCookie(qint64 time)
{
    const qint64 period = 6LL * 60 * 60 * 1000;
    quint32 hash = 0;
    for (const char digit : QByteArray::number((time + period - 1) / period))
        hash = hash * 31 + static_cast<quint32>(digit);
    return "lastvisitts=" + QByteArray::number(static_cast<qint32>(hash));
}

} // namespace

class tst_DarkLyricsProvider : public QObject
{
    Q_OBJECT

private slots:
    void findsTheLink_data()
    {
        addTextColumns("artist", "title", "link");
        addRow("decoys before it and a remark behind the title", "Tin Lanterns", "Harbour Lights",
               "lyrics/tinlanterns/tides.html#4");
        addRow("entities", "Moth Lamp", "Dont Dim", "lyrics/mothlamp/dim.html#1");
        addRow("Cyrillic, and another host", "паруса", "ОГНИ ГАВАНИ", "http://mirror.invalid/parusa.html#7");
        addRow("links behind the content", "Late Band", "Late Song", "");
    }

    void findsTheLink()
    {
        QFETCH(QString, artist);
        QFETCH(QString, title);
        const QString page = sitePage("darklyrics", "search.html");
        QVERIFY(page.size() > 20000 && page.size() < 60000);
        QTEST(DarkLyricsProvider::songLink(page, artist, title).value_or(QString()), "link");
        QTEST(plain::songLink(page, artist, title), "link");
    }

    void cutsSections_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("sections"); // "key=section" joined by "|"
        addRow("before the first heading and behind it", wrapped("a<h3>Songs: new</h3>b"_s),
               "=<div class='cntwrap'>a|songs=b");
        addRow("a later section of the same name takes the place", wrapped("<h3 class=\"x\">A</h3>1<h3>a</h3>2"_s),
               "=<div class='cntwrap'>|a=2");
        addRow("a heading on two lines is none", wrapped("<h3>a\n</h3><h3></h3>b"_s),
               "=<div class='cntwrap'><h3>a\n</h3><h3></h3>b");
        addRow("a content that is not closed", "<div class='cntwrap'><h3>Songs</h3>a", "");
    }

    void cutsSections()
    {
        QFETCH(QString, page);
        const QMap<QString, QString> sections = DarkLyricsProvider::sections(page);
        QStringList parts;
        for (auto section = sections.begin(); section != sections.end(); ++section)
            parts << section.key() + QLatin1Char('=') + section.value();
        QTEST(parts.join(QLatin1Char('|')), "sections");
    }

    void findsTheSongUnderItsAnchor_data()
    {
        addTextColumns("anchor", "lyrics");
        addRow("the second of eleven, with a colon in its title", "2", "high");
        addRow("the beginning of another number", "1", "low");
        addRow("no anchor takes the first heading with an empty name", "", "unnamed");
    }

    void findsTheSongUnderItsAnchor()
    {
        QFETCH(QString, anchor);
        QString page = sitePage("darklyrics", "album.html");
        QVERIFY(page.size() > 20000 && page.size() < 60000);
        page.replace("<div class=\"thanks\">"_s,
                     "<h3><a NAME=\"BONUS\">x</a></h3>bonus<h3><a name=\"\">x</a></h3>unnamed<div>"_s);
        page.remove("Thanks to someone for sending these."_s);
        QTEST(cleanLyrics(DarkLyricsProvider::songUnderAnchor(page, anchor).value_or(QString())), "lyrics");
    }

    void readsLikeThePlainExpressions()
    {
        const QString album = sitePage("darklyrics", "album.html");
        QCOMPARE(DarkLyricsProvider::sections(album), plain::sections(album));
        compareOnRandomTexts(
            "<h3 <h3> <h3~x> </h3 </h3> <div </div : Songs > x \n"_s,
            [](const QString &content) { return DarkLyricsProvider::sections(wrapped(content)); },
            [](const QString &content) { return plain::sections(wrapped(content)); });
        const QString songs = "<h3>Songs</h3>"_s;
        compareOnRandomTexts(
            "<h2 <h2> <h2~x>~ <a <a~ <a~x~ href=\" href=' \" ' > x y </a \n \u00a0 \r </a> "
            "<h2><a~x~href='y \"~>x</a '~x>x</a"_s,
            [&](const QString &links) {
                return DarkLyricsProvider::songLink(wrapped(songs + links), "x"_s, "y"_s).value_or(QString());
            },
            [&](const QString &links) { return plain::songLink(wrapped(songs + links), "x"_s, "y"_s); });
    }

    void answersHostilePages_data()
    {
        addTextColumns("content", "anchor");
        const auto row = [](const char *name, const QString &piece, const QString &anchor = {}) {
            addRow(name, "<h3>Songs:</h3>"_s + repeated(piece), anchor);
        };
        row("brackets", "<"_s);
        row("wrappers in one another", "<div class='cntwrap'"_s);
        row("headings without an end of the tag", "<h3 "_s);
        row("links without an end of the address", "<h2><a x href=\"x"_s);
        row("quotation marks", "\""_s, QString(200 * 1000, QLatin1Char('"')));
        addRow("one heading that nearly is the anchor", "<h3>"_s + repeated("\"") + "</h3>"_s,
               QString(200 * 1000, QLatin1Char('"')));
    }

    void answersHostilePages()
    {
        QFETCH(QString, content);
        QFETCH(QString, anchor);
        for (const QString &page : {content, wrapped(content)}) {
            QVERIFY(!DarkLyricsProvider::songLink(page, "b"_s, "a"_s));
            QVERIFY(!DarkLyricsProvider::songUnderAnchor(page, anchor));
        }
    }

    void asksForTheSearchAndThenForTheAlbum()
    {
        SiteRig rig({Endpoint::DarkLyrics});
        rig.page("/search", sitePage("darklyrics", "search.html"));
        rig.page("/lyrics/tinlanterns/tides.html", sitePage("darklyrics", "album.html"));
        const SiteAnswer found = rig.search<DarkLyricsProvider>("Tin Lanterns ft. Moth", "Harbour Lights (Official)");
        QCOMPARE(found.lyrics, harbourLights());
        const SiteAnswer missing = rig.search<DarkLyricsProvider>("AC/DC", "50% + C&A да");
        QVERIFY(missing.lyrics.isEmpty() && missing.errorString.isEmpty());
        QCOMPARE(rig.targets(),
                 (QList<QByteArray>{"/search?q=Tin%20Lanterns%20Harbour%20Lights", "/lyrics/tinlanterns/tides.html",
                                    "/search?q=AC%2FDC%2050%25%20%2B%20C%26A%20%D0%B4%D0%B0"}));
    }

    // Also on redirects, and when the site has set cookies of its own.
    void carriesItsCookieAlways()
    {
        const QByteArray before = visitCookie(QDateTime::currentMSecsSinceEpoch());
        SiteRig rig({Endpoint::DarkLyrics});
        rig.server().route("/search"_s,
                           LoopbackResponse::redirect(307, "/a/found").with("Set-Cookie", "lastvisitts=1; Path=/"));
        rig.page("/a/found", wrapped("<h3>Songs</h3><h2><a x href='song#B%41' x>b - a</a></h2>"_s));
        rig.server().route("/a/song"_s, LoopbackResponse::redirect(301, "/moved"));
        rig.page("/moved", wrapped("<h3><a name=\"ba\">a</a></h3>la"_s));
        QCOMPARE(rig.search<DarkLyricsProvider>("b", "a").lyrics, "la"_s);
        QCOMPARE(rig.targets(), (QList<QByteArray>{"/search?q=b%20a", "/a/found", "/a/song", "/moved"}));
        const QByteArray after = visitCookie(QDateTime::currentMSecsSinceEpoch());
        for (const LoopbackRequest &request : rig.server().requests()) {
            const QByteArray cookie = request.header("Cookie");
            QVERIFY2(cookie == before || cookie == after, cookie.constData());
            QVERIFY(request.header("User-Agent").contains("Chrome/46.0.2490.86"));
            QVERIFY(request.header("Referer").isNull());
        }
    }
};

QTEST_GUILESS_MAIN(tst_DarkLyricsProvider)
#include "tst_darklyricsprovider.moc"
