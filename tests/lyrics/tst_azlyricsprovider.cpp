// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/providers/AZLyricsProvider.h"

#include <QTest>

namespace {

QString fixture(const char *name)
{
    return sitePage(QStringLiteral("azlyrics"), QString::fromLatin1(name));
}

QString lyricsOf(const QString &page)
{
    return AZLyricsProvider::lyricsRequestFinished({page, {}}).lyrics();
}

} // namespace

class tst_AZLyricsProvider : public QObject
{
    Q_OBJECT

private slots:
    void readsTheParameter_data();
    void readsTheParameter();
    void findsTheLink_data();
    void findsTheLink();
    void findsTheLyrics_data();
    void findsTheLyrics();
    void answersHostilePages_data();
    void answersHostilePages();
    void asksAsABrowserForTheScriptTheSearchAndTheSong();
    void searchesWithoutAParameter();
    void refusesAScriptAmidTheLyrics();
};

void tst_AZLyricsProvider::readsTheParameter_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("a whole script, with a draft of the name") << fixture("geo.js") << "x&y"
                                                              << "7f3a+90=c2";
    QTest::newRow("the value alone") << R"(e.setAttribute("value","v"))"
                                     << ""
                                     << "v";
    QTest::newRow("another attribute that runs into the name") << R"(setAttribute("a", b); setAttribute("name", "n"))"
                                                               << ""
                                                               << "";
    QTest::newRow("the case counts") << R"(setAttribute("Name","n");setAttribute("VALUE","v"))"
                                     << ""
                                     << "";
    QTest::newRow("a line end in the value") << "setAttribute(\"value\",\"a\nb\")"
                                             << ""
                                             << "";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
}

void tst_AZLyricsProvider::readsTheParameter()
{
    QFETCH(QString, script);
    QTEST(AZLyricsProvider::searchParameter(script).first, "name");
    QTEST(AZLyricsProvider::searchParameter(script).second, "value");
}

// In the short pages the wanted artist is "b".
void tst_AZLyricsProvider::findsTheLink_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("artist");
    QTest::addColumn<QString>("link");
    const auto inFixture = [](const char *name, const char *artist, const char *link) {
        QTest::newRow(name) << fixture("search.html") << QString::fromUtf8(artist) << QString::fromUtf8(link);
    };
    const auto inRows = [](const char *name, const QString &html, const char *link) {
        const QString row = QStringLiteral(R"(<tr><td class="x"><a href="/%1"><b>s</b></a><b>%2</b></td></tr>)");
        QTest::newRow(name) << QString(html)
                                   .replace(QLatin1String("@OTHER"), row.arg(QStringLiteral("0"), QStringLiteral("o")))
                                   .replace(QLatin1String("@ROW"), row.arg(QStringLiteral("1"), QStringLiteral("b")))
                            << QStringLiteral("b") << QString::fromUtf8(link);
    };
    inFixture("blanks and dots behind the artist", "Tin Lanterns",
              "@BASE@/lyrics/tinlanterns/harbourlights.html?a=1&b=2");
    inFixture("a wrong song of the right artist, with a reference", "Paper & Sons",
              "@BASE@/lyrics/lanterns/bells.html");
    inFixture("Cyrillic behind a reference", "ПАРУСА", "@BASE@/lyrics/parusa/ogni.html");
    inFixture("right to left", "מגדלור", "@BASE@/lyrics/migdalor/namal.html");
    inFixture("an artist who is not there", "Nobody At All", "");
    inFixture("other tables do not count", "Second Table", "");
    inRows("the first whose artist agrees", QStringLiteral(" <table>@OTHER@ROW</table>"), "/1");
    inRows("a table at the very start does not count", QStringLiteral("<table>@ROW</table>"), "");
    inRows("a table without an end", QStringLiteral(" <table>@ROW"), "");
    inRows("a row behind the table", QStringLiteral(" <table></table>@ROW"), "");
    inRows("a row with attributes", QStringLiteral(" <table><tr id=\"1\"><td class=\"x\"></td></tr></table>"), "");
}

void tst_AZLyricsProvider::findsTheLink()
{
    QFETCH(QString, page);
    QFETCH(QString, artist);
    QTEST(AZLyricsProvider::songLink(page, artist).value_or(QString()), "link");
}

void tst_AZLyricsProvider::findsTheLyrics_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("lyrics");
    QTest::newRow("a whole page") << fixture("song.html") << harbourLights();
    QTest::newRow("the first bare block, up to the first closing tag")
        << "<div id=\"x\">a</div><div>b<div>c</div>d</div>"
        << "bc";
    QTest::newRow("an upper-case block does not count") << "<DIV>a</DIV>"
                                                        << "";
    QTest::newRow("a block that is not closed") << "<div>a"
                                                << "";
}

void tst_AZLyricsProvider::findsTheLyrics()
{
    QFETCH(QString, page);
    QTEST(lyricsOf(page), "lyrics");
}

void tst_AZLyricsProvider::answersHostilePages_data()
{
    QTest::addColumn<QString>("page");
    const QString row = QStringLiteral("<tr><td class><a href=\"\"><b>s</b><b>x</b></td></tr>");
    QTest::newRow("brackets") << repeated(QStringLiteral("<"), hostileSize);
    QTest::newRow("blocks without an end") << repeated(QStringLiteral("<div>"), hostileSize);
    QTest::newRow("tables without an end") << repeated(QStringLiteral(" <table"), hostileSize);
    QTest::newRow("rows of other artists")
        << QStringLiteral(" <table>") + repeated(row, hostileSize) + QStringLiteral("</table>");
    QTest::newRow("a row of names without an end") << QStringLiteral(" <table><tr><td class><a href=\"\">") +
                                                          repeated(QStringLiteral("<b>x</b>"), hostileSize) +
                                                          QStringLiteral("</table>");
    QTest::newRow("links in one row") << QStringLiteral(" <table><tr>") +
                                             repeated(QStringLiteral("<td class><a href=\"\"><b>x</b><b>x</b>"),
                                                      hostileSize) +
                                             QStringLiteral("</td></tr></table>");
    QTest::newRow("attributes without an end") << repeated(QStringLiteral("setAttribute(\"x\",\""), hostileSize);
    QTest::newRow("attributes in one line") << repeated(QStringLiteral("setAttribute(\"x\",\"x\")"), hostileSize);
    QTest::newRow("quotation marks and blanks")
        << QStringLiteral("setAttribute(\"x") + repeated(QStringLiteral("\"   "), hostileSize);
}

void tst_AZLyricsProvider::answersHostilePages()
{
    QFETCH(QString, page);
    QVERIFY(!AZLyricsProvider::songLink(page, QStringLiteral("b")));
    QVERIFY(lyricsOf(page).isEmpty());
    QVERIFY(AZLyricsProvider::searchParameter(page).first.isEmpty());
}

void tst_AZLyricsProvider::asksAsABrowserForTheScriptTheSearchAndTheSong()
{
    SiteRig rig({Endpoint::AZLyrics, Endpoint::AZLyricsSearch});
    rig.server().route(QStringLiteral("/geo.js"), LoopbackResponse::redirect(307, "/moved.js"));
    rig.page(QStringLiteral("/moved.js"), fixture("geo.js"));
    rig.page(QStringLiteral("/search.php"),
             fixture("search.html").replace(QStringLiteral("@BASE@"), rig.server().base()));
    rig.page(QStringLiteral("/lyrics/tinlanterns/harbourlights.html"), fixture("song.html"));
    const SiteAnswer answer = rig.search<AZLyricsProvider>(QStringLiteral("Tin Lanterns feat. C&A"),
                                                           QStringLiteral("Harbour + Lights #1 (Official)"));
    QCOMPARE(answer.lyrics, harbourLights());
    QCOMPARE(rig.targets(), (QList<QByteArray>{
                                "/geo.js",
                                "/moved.js",
                                "/search.php?q=Tin%20Lanterns%20Harbour%20%2B%20Lights%20%231&x%26y=7f3a%2B90%3Dc2",
                                "/lyrics/tinlanterns/harbourlights.html?a=1&b=2",
                            }));
    for (const LoopbackRequest &request : rig.server().requests()) {
        QCOMPARE(request.header("Referer"), rig.server().url("/search.php").toEncoded());
        QVERIFY(request.header("User-Agent").contains("Chrome/46.0.2490.86"));
    }
}

void tst_AZLyricsProvider::searchesWithoutAParameter()
{
    SiteRig rig({Endpoint::AZLyrics, Endpoint::AZLyricsSearch});
    rig.page(QStringLiteral("/geo.js"), QStringLiteral("e.setAttribute(\"name\", \"x\")"));
    rig.page(QStringLiteral("/search.php"), QStringLiteral("<p>No results</p>"));
    const SiteAnswer answer = rig.search<AZLyricsProvider>(QStringLiteral("b"), QStringLiteral("a"));
    QVERIFY(answer.lyrics.isEmpty() && answer.errorString.isEmpty());
    QCOMPARE(rig.targets(), (QList<QByteArray>{"/geo.js", "/search.php?q=b%20a"}));
}

void tst_AZLyricsProvider::refusesAScriptAmidTheLyrics()
{
    SiteRig rig({Endpoint::AZLyrics, Endpoint::AZLyricsSearch});
    rig.page(QStringLiteral("/geo.js"), QString());
    rig.page(QStringLiteral("/search.php"),
             fixture("search.html").replace(QStringLiteral("@BASE@"), rig.server().base()));
    rig.page(QStringLiteral("/lyrics/parusa/ogni.html"), QStringLiteral("<div>la<script>ad(1)</script>li</div>"));
    const SiteAnswer answer = rig.search<AZLyricsProvider>(QStringLiteral("Паруса"), QStringLiteral("a"));
    QVERIFY(answer.lyrics.isEmpty() && answer.errorString.contains(QStringLiteral("AZLyrics")));
}

QTEST_GUILESS_MAIN(tst_AZLyricsProvider)
#include "tst_azlyricsprovider.moc"
