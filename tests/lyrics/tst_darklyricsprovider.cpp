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
    const auto wrapper = QRegularExpression(QStringLiteral("<div[^>]*class=(['\"])cntwrap(['\"])")).match(page);
    const int start = wrapper.capturedStart();
    const int end = wrapper.hasMatch() ? countedClosingTag(page, QStringLiteral("div"), start) : -1;
    return end < 0 ? QString() : page.mid(start, end - start);
}

QMap<QString, QString> sections(const QString &page)
{
    QMap<QString, QString> sections;
    const QString content = contentOf(page);
    const QRegularExpression heading(QStringLiteral("<h3[^>]*>(.+?)</h3"));
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
    const QRegularExpression link(QStringLiteral("<h2.*?>\\s*<a.+?href=['\"](?<url>.+?)['\"].+?>(?<title>[^<]+)</a"));
    for (auto links = link.globalMatch(sections(page).value(QStringLiteral("songs"))); links.hasNext();) {
        const auto match = links.next();
        if (looselyAgree(artist + QStringLiteral(" - ") + title,
                         decodeHtmlEntities(match.captured(QStringLiteral("title")))))
            return match.captured(QStringLiteral("url"));
    }
    return {};
}

} // namespace plain

QString wrapped(const QString &content)
{
    return QStringLiteral("<div class='cntwrap'>%1</div>").arg(content);
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
        addRow("a slash is no space", "Moth Lamp", "Harbour Lights", "");
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
        addRow("before the first heading and behind it", wrapped(QStringLiteral("a<h3>Songs: new</h3>b")),
               "=<div class='cntwrap'>a|songs=b");
        addRow("a later section of the same name takes the place",
               wrapped(QStringLiteral("<h3 class=\"x\">A</h3>1<h3>a</h3>2")), "=<div class='cntwrap'>|a=2");
        addRow("a heading on two lines is none", wrapped(QStringLiteral("<h3>a\n</h3><h3></h3>b")),
               "=<div class='cntwrap'><h3>a\n</h3><h3></h3>b");
        addRow("nested elements are part of the content",
               wrapped(QStringLiteral("<div></div>a")) + QStringLiteral("<h3>b</h3>"),
               "=<div class='cntwrap'><div></div>a");
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
        page.replace(QLatin1String("<div class=\"thanks\">"),
                     QLatin1String("<h3><a NAME=\"BONUS\">x</a></h3>bonus<h3><a name=\"\">x</a></h3>unnamed<div>"));
        page.remove(QStringLiteral("Thanks to someone for sending these."));
        QTEST(cleanLyrics(DarkLyricsProvider::songUnderAnchor(page, anchor).value_or(QString())), "lyrics");
    }

    void readsLikeThePlainExpressions()
    {
        const QString album = sitePage("darklyrics", "album.html");
        QCOMPARE(DarkLyricsProvider::sections(album), plain::sections(album));
        RandomText headings(
            QStringLiteral("<h3 <h3> <h3~x> </h3 </h3> <div </div : Songs > x \n").split(QLatin1Char(' ')));
        RandomText links(QStringLiteral("<h2 <h2> <h2~x>~ <a <a~ <a~x~ href=\" href=' \" ' > x y </a \n \u00a0 \r </a> "
                                        "<h2><a~x~href='y \"~>x</a '~x>x</a")
                             .split(QLatin1Char(' ')));
        int found = 0;
        for (int i = 0; i < 3000; ++i) {
            const QString content = wrapped(headings.next(6 + i % 30).replace(QLatin1Char('~'), QLatin1Char(' ')));
            QVERIFY2(DarkLyricsProvider::sections(content) == plain::sections(content), qPrintable(content));
            const QString page = wrapped(QStringLiteral("<h3>Songs</h3>") +
                                         links.next(6 + i % 30).replace(QLatin1Char('~'), QLatin1Char(' ')));
            const QString link = plain::songLink(page, QStringLiteral("x"), QStringLiteral("y"));
            found += link.isEmpty() ? 0 : 1;
            QVERIFY2(DarkLyricsProvider::songLink(page, QStringLiteral("x"), QStringLiteral("y")).value_or(QString()) ==
                         link,
                     qPrintable(page));
        }
        QVERIFY2(found > 200, qPrintable(QString::number(found)));
    }

    void answersHostilePages_data()
    {
        addTextColumns("content", "anchor");
        const auto row = [](const char *name, const QString &piece, const QString &anchor = {}) {
            addRow(name, QStringLiteral("<h3>Songs:</h3>") + repeated(piece), anchor);
        };
        row("brackets", QStringLiteral("<"));
        row("wrappers in one another", QStringLiteral("<div class='cntwrap'"));
        row("headings without an end of the tag", QStringLiteral("<h3 "));
        row("headings", QStringLiteral("<h3>x</h3>"));
        row("links without an end of the address", QStringLiteral("<h2><a x href=\"x"));
        row("blanks", QStringLiteral("<h2>                "));
        row("quotation marks", QStringLiteral("\""), QString(200 * 1000, QLatin1Char('"')));
        addRow("one heading that nearly is the anchor",
               QStringLiteral("<h3>") + repeated("\"") + QStringLiteral("</h3>"),
               QString(200 * 1000, QLatin1Char('"')));
    }

    void answersHostilePages()
    {
        QFETCH(QString, content);
        QFETCH(QString, anchor);
        for (const QString &page : {content, wrapped(content)}) {
            QVERIFY(!DarkLyricsProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a")));
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
        rig.server().route(QStringLiteral("/search"),
                           LoopbackResponse::redirect(307, "/a/found").with("Set-Cookie", "lastvisitts=1; Path=/"));
        rig.page("/a/found", wrapped(QStringLiteral("<h3>Songs</h3><h2><a x href='song#B%41' x>b - a</a></h2>")));
        rig.server().route(QStringLiteral("/a/song"), LoopbackResponse::redirect(301, "/moved"));
        rig.page("/moved", wrapped(QStringLiteral("<h3><a name=\"ba\">a</a></h3>la")));
        QCOMPARE(rig.search<DarkLyricsProvider>("b", "a").lyrics, QStringLiteral("la"));
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
