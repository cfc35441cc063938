// SPDX-License-Identifier: MIT
#include "PlainElements.h"
#include "RandomText.h"
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/ElementFinder.h"
#include "lyrics/providers/MusixMatchProvider.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QTest>

namespace {

// The same as it is written with the expressions themselves.
namespace plain {

bool fits(const QStringList &found, const QStringList &classes)
{
    return found.size() == classes.size() && std::all_of(found.begin(), found.end(), [&](const QString &name) {
               return classes.contains(name, Qt::CaseInsensitive);
           });
}

QString elementOf(const QString &html, const QString &tag, const QStringList &classes, bool withOpeningTag)
{
    const QRegularExpression opening(QStringLiteral("<%1\\s+[^>]*class=(['\"])(.+?)\\1.*?>").arg(tag),
                                     QRegularExpression::CaseInsensitiveOption);
    for (int offset = 0;;) {
        const auto match = opening.match(html, offset);
        if (!match.hasMatch())
            return {};
        if (fits(match.captured(2).split(QLatin1Char(' ')), classes)) {
            const int end = countedClosingTag(html, tag, match.capturedStart());
            const int begin = withOpeningTag ? match.capturedStart() : match.capturedEnd();
            if (end > 0)
                return html.mid(begin, std::max(0, end - begin));
        }
        offset += match.capturedLength();
    }
}

QString lyricsOfBlock(QString block)
{
    QString lyrics;
    for (;;) {
        const QString span = elementOf(block, QStringLiteral("span"), {QStringLiteral("lyrics__content__ok")}, true);
        if (span.isEmpty())
            return lyrics;
        lyrics += stripTags(span);
        block.remove(span);
    }
}

QString trackLink(const QString &page)
{
    const QString list =
        elementOf(page, QStringLiteral("ul"),
                  {QStringLiteral("tracks"), QStringLiteral("list"), QStringLiteral("thumb-list")}, false);
    const QRegularExpression item(QStringLiteral("<li.+?>(.+?)</li"), QRegularExpression::CaseInsensitiveOption);
    for (int offset = 0;;) {
        const auto match = item.match(list, offset);
        if (!match.hasMatch())
            return {};
        const QString anchor = QStringLiteral("a");
        const QString artist = elementOf(match.captured(1), anchor, {QStringLiteral("artist")}, false);
        const QString title = elementOf(match.captured(1), anchor, {QStringLiteral("title")}, true);
        QRegExp href(QStringLiteral("href=([\"'])(.+)\\1"));
        href.setMinimal(true);
        if (looselyAgree(QStringLiteral("b"), stripTags(artist)) &&
            looselyAgree(QStringLiteral("a"), stripTags(title)) && href.indexIn(title) >= 0)
            return href.cap(2);
        offset += match.capturedLength();
    }
}

} // namespace plain

QString lyricsOf(const QString &block)
{
    const auto step = MusixMatchProvider::lyricsOfBlock(block);
    return step ? step->lyrics() : QStringLiteral("too intricate");
}

QString track(const QString &artist, const QString &titleAttributes, const QString &title)
{
    return QStringLiteral("<li x><a class=\"artist\">%1</a><a class=\"title\" %2>%3</a></li>")
        .arg(artist, titleAttributes, title);
}

QString listOf(const QString &items)
{
    return QStringLiteral("<ul class=\"tracks list thumb-list\">%1</ul>").arg(items);
}

} // namespace

class tst_MusixMatchProvider : public QObject
{
    Q_OBJECT

private slots:
    void findsElements_data()
    {
        addTextColumns("page", "classes", "element");
        addRow("any order, any letter case", "<DIV CLASS='B c A'>x</div>", "a b c", "x");
        addRow("one class too many", "<div class=\"a b\">x</div>", "a", "");
        addRow("two blanks in a row", "<div class=\"a  b\">x</div>", "a b", "");
        addRow("nested elements are counted", "<div class=\"a\"><div>x</div>y</div>z", "a", "<div>x</div>y");
        addRow("an unclosed element is passed over", "<div class=\"a\">x<div  class=\"a\">y</div>", "a", "y");
        addRow("a tag that goes on on another line", "<div\nid=\"i\"\nclass=\"a\">x</div>", "a", "x");
        addRow("a tag that goes on behind the attribute", "<div class=\"a\"\nid=\"i\">x</div>", "a", "");
    }

    void findsElements()
    {
        QFETCH(QString, page);
        QFETCH(QString, classes);
        QFETCH(QString, element);
        const QStringList names = classes.split(QLatin1Char(' '));
        QCOMPARE(findElement(page, QStringLiteral("div"), names, false), element);
        QCOMPARE(plain::elementOf(page, QStringLiteral("div"), names, false), element);
        const QString whole = findElement(page, QStringLiteral("div"), names, true);
        QCOMPARE(whole.isEmpty(), element.isEmpty());
        QVERIFY(whole.isEmpty() ||
                (whole.startsWith(QLatin1String("<div"), Qt::CaseInsensitive) && whole.endsWith(element)));
    }

    void findsTheLink_data()
    {
        addTextColumns("artist", "title", "link");
        addRow("decoys before it, and classes in any order", "Tin Lanterns", "Harbour Lights",
               "/lyrics/Tin-Lanterns/Harbour-Lights");
        addRow("Cyrillic, and another host", "паруса", "ОГНИ ГАВАНИ", "http://mirror.invalid/Ogni");
        addRow("a slash is no space", "Moth Lamp", "Harbour Lights", "");
        addRow("only the first list counts", "Second List", "Second List", "");
    }

    void findsTheLink()
    {
        QFETCH(QString, artist);
        QFETCH(QString, title);
        const QString page = sitePage("musixmatch", "search.html");
        QVERIFY(page.size() > 20000 && page.size() < 60000);
        QTEST(MusixMatchProvider::trackLink(page, artist, title).value_or(QString()), "link");
    }

    void findsTheLinkInItems_data()
    {
        addTextColumns("items", "link");
        const QString wanted = track(QStringLiteral("b"), QStringLiteral("href='/1'"), QStringLiteral("a"));
        addRow("a track without a link before it", track(QStringLiteral("b"), QString(), QStringLiteral("a")) + wanted,
               "/1");
        addRow("a track by someone else before it",
               track(QStringLiteral("c"), QStringLiteral("href='/2'"), QStringLiteral("a")) + wanted, "/1");
        addRow("names that are missing resemble everything", "<li x><a class=\"title\" href=\"/2\"></a></li>", "/2");
        addRow("a quotation mark of the other kind is part of the link",
               track(QStringLiteral("b"), QStringLiteral("href=\"/it's\""), QStringLiteral("a")), "/it's");
    }

    void findsTheLinkInItems()
    {
        QFETCH(QString, items);
        const QString page = listOf(items);
        QTEST(MusixMatchProvider::trackLink(page, QStringLiteral("b"), QStringLiteral("a")).value_or(QString()),
              "link");
    }

    void findsTheLyrics_data()
    {
        addTextColumns("block", "lyrics");
        addRow("parts follow each other without a separator", "@a</span>\n@b\nc</span>", "ab\nc");
        addRow("a part that comes again is taken once", "@a</span>@b</span>@a</span>", "ab");
        addRow("a part that begins as an earlier one has lost its tag", "@a</span>@a b</span>", "a");
        addRow("an empty part ends it", "@</span>@a</span>", "");
        addRow("parts of more classes do not count",
               "<span class=\"lyrics__content__ok x\">a</span><span class=\"lyrics__content__ok\">b</span>", "b");
        addRow("entities stay", "@a&amp;b</span>", "a&amp;b");
    }

    void findsTheLyrics()
    {
        QFETCH(QString, block);
        block.replace(QLatin1Char('@'), QLatin1String("<span class='lyrics__content__ok'>"));
        QTEST(lyricsOf(block), "lyrics");
        QTEST(plain::lyricsOfBlock(block), "lyrics");
    }

    void readsLikeThePlainExpressions()
    {
        const QString trackPage = sitePage("musixmatch", "track.html");
        const QString block = MusixMatchProvider::lyricsBlock(trackPage);
        QCOMPARE(block, plain::elementOf(trackPage, QStringLiteral("div"), {QStringLiteral("mxm-lyrics")}, false));
        QCOMPARE(lyricsOf(block), plain::lyricsOfBlock(block));
        RandomText spans(
            QStringLiteral("<span~class=\"lyrics__content__ok\"> <span~class='lyrics__content__ok'> </span> "
                           "</span <SPAN~ class=\" class=' lyrics__content__ok \" ' > x \n ~ <span <span~")
                .split(QLatin1Char(' ')));
        RandomText items(
            QStringLiteral(
                "<li~x> </li <LI </li> <li~x><a~class=\"title\"~href='x'>a</a> <li~x><a~class='title'~href=\"y "
                "<a~class=\"title\"~href=\"x\"> <a~class='title' <a~ "
                "class=\"artist\"> href=\" ' \" ~ > </a> a b \n a~href='x'> <li~x><a~class=\"title\"~")
                .split(QLatin1Char(' ')));
        int found = 0;
        for (int i = 0; i < 3000; ++i) {
            const QString text = spans.next(6 + i % 25).replace(QLatin1Char('~'), QLatin1Char(' '));
            const QString page = listOf(items.next(6 + i % 25).replace(QLatin1Char('~'), QLatin1Char(' ')));
            QVERIFY2(lyricsOf(text) == plain::lyricsOfBlock(text), qPrintable(text));
            const QString link = plain::trackLink(page);
            found += link.isEmpty() ? 0 : 1;
            QVERIFY2(
                MusixMatchProvider::trackLink(page, QStringLiteral("b"), QStringLiteral("a")).value_or(QString()) ==
                    link,
                qPrintable(page));
        }
        QVERIFY2(found > 200, "the pages must hold links often enough to say something");
    }

    void answersHostilePages_data()
    {
        QTest::addColumn<QString>("page");
        const QString opening = QStringLiteral("<ul class=\"tracks list thumb-list\">");
        const QString block = QStringLiteral("<div class=\"mxm-lyrics\">");
        const QString span = QStringLiteral("<span class=\"lyrics__content__ok\">");
        const auto list = [](const char *name, const QString &piece) {
            addRow(name, listOf(repeated(piece)));
        };
        addRow("brackets", repeated("<"));
        addRow("openings, then a class", repeated("<div ") + block);
        addRow("classes on lines of their own", repeated("<div class='a'\n"));
        list("items that are not closed", QStringLiteral("<li x>"));
        list("items without a link", QStringLiteral("<li x>a</li"));
        list("items with half a link", QStringLiteral("<li x>href=</li"));
        list("items of other songs", QStringLiteral("<li x><a class=\"title\" href=\"/\">x</a></li"));
        list("anchors in one item", QStringLiteral("<a class=\"title\" href=\"/\">"));
        list("anchors that do not end", QStringLiteral("<a href="));
        addRow("parts that are not closed", block + repeated(span) + QStringLiteral("</div>"));
        addRow("empty parts",
               block + repeated(span + QStringLiteral("</span>"), hostileSize) + QStringLiteral("</div>"));
        addRow("a part of many openings", block + span + repeated("<span ", hostileSize / 2) +
                                              repeated("</span", hostileSize / 2) + QStringLiteral("</span></div>"));
        QString parts;
        for (int i = 0; parts.size() < hostileSize; ++i)
            parts += QStringLiteral("%1%2</span>").arg(span).arg(i);
        addRow("many parts", block + parts + QStringLiteral("</div>"));
    }

    void answersHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!MusixMatchProvider::trackLink(page, QStringLiteral("b"), QStringLiteral("y")));
        const QString lyrics = lyricsOf(MusixMatchProvider::lyricsBlock(page));
        QVERIFY(lyrics.size() < 20000 || !lyrics.contains(QLatin1String("</span>")));
    }

    void asksForTheListAndThenForTheTrack()
    {
        SiteRig rig({Endpoint::MusixMatch});
        rig.page("/search/Tin Lanterns Harbour Lights/tracks", sitePage("musixmatch", "search.html"));
        rig.page("/lyrics/Tin-Lanterns/Harbour-Lights", sitePage("musixmatch", "track.html"));
        const SiteAnswer found = rig.search<MusixMatchProvider>("Tin Lanterns ft. Moth", "Harbour Lights (Official)");
        QCOMPARE(found.lyrics, harbourLights());
        rig.server().routeOthers([](const LoopbackRequest &) { return LoopbackResponse::page("nothing"); });
        const SiteAnswer missing = rig.search<MusixMatchProvider>("AC/DC?", "50% + #1 да");
        QVERIFY(missing.lyrics.isEmpty() && missing.errorString.isEmpty());
        QCOMPARE(rig.targets(), (QList<QByteArray>{"/search/Tin%20Lanterns%20Harbour%20Lights/tracks",
                                                   "/lyrics/Tin-Lanterns/Harbour-Lights",
                                                   "/search/AC%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0/tracks"}));
    }

    void showsABrowserOnRedirects()
    {
        SiteRig rig({Endpoint::MusixMatch});
        rig.server().route(QStringLiteral("/search/b a/tracks"), LoopbackResponse::redirect(301, "/x/list"));
        rig.page("/x/list",
                 listOf(track(QStringLiteral("b"), QStringLiteral("href=\"../song\""), QStringLiteral("a"))));
        rig.server().route(QStringLiteral("/song"), LoopbackResponse::redirect(307, "/2"));
        rig.page("/2", QStringLiteral("<div class=\"mxm-lyrics\">no parts</div>"));
        QVERIFY(rig.search<MusixMatchProvider>("b", "a").errorString.isEmpty());
        QCOMPARE(rig.targets(), (QList<QByteArray>{"/search/b%20a/tracks", "/x/list", "/song", "/2"}));
        for (const LoopbackRequest &request : rig.server().requests())
            QVERIFY(request.header("User-Agent").contains("Chrome/46.0.2490.86") && request.header("Referer").isNull());
    }

    void givesUpOnListsWithoutAnEnd()
    {
        SiteRig rig({Endpoint::MusixMatch});
        rig.server().routeOthers([](const LoopbackRequest &) {
            return LoopbackResponse::page(
                listOf(track(QStringLiteral("b"), QStringLiteral("href=\"/more\""), QStringLiteral("a"))).toUtf8());
        });
        const SiteAnswer answer = rig.search<MusixMatchProvider>("b", "a");
        QVERIFY(answer.lyrics.isEmpty() && answer.errorString.contains(QLatin1String("MusixMatch")));
        QCOMPARE(rig.targets().size(), 20);
    }
};

QTEST_GUILESS_MAIN(tst_MusixMatchProvider)
#include "tst_musixmatchprovider.moc"
