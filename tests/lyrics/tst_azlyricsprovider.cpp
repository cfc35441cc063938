// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/providers/AZLyricsProvider.h"
#include "support/TestTable.h"

#include <QTest>

namespace {

QString fixture(const char *name)
{
    return sitePage("azlyrics", name);
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
    void readsTheParameter_data()
    {
        addTextColumns("script", "name", "value");
        addRow("a whole script, with a draft of the name", fixture("geo.js"), "x&y", "7f3a+90=c2");
        addRow("another attribute that runs into the name", R"(setAttribute("a", b); setAttribute("name", "n"))", "",
               "");
    }

    void readsTheParameter()
    {
        QFETCH(QString, script);
        QTEST(AZLyricsProvider::searchParameter(script).first, "name");
        QTEST(AZLyricsProvider::searchParameter(script).second, "value");
    }

    // In the short pages the wanted artist is "b".
    void findsTheLink_data()
    {
        addTextColumns("page", "artist", "link");
        const auto inFixture = [](const char *name, const char *artist, const char *link) {
            addRow(name, fixture("search.html"), QString::fromUtf8(artist), QString::fromUtf8(link));
        };
        const auto inRows = [](const char *name, const QString &html, const char *link) {
            const QString row = R"(<tr><td class="x"><a href="/%1"><b>s</b></a><b>%2</b></td></tr>)"_s;
            addRow(name,
                   QString(html).replace("@OTHER"_s, row.arg("0"_s, "o"_s)).replace("@ROW"_s, row.arg("1"_s, "b"_s)),
                   "b"_s, QString::fromUtf8(link));
        };
        inFixture("blanks and dots behind the artist", "Tin Lanterns",
                  "@BASE@/lyrics/tinlanterns/harbourlights.html?a=1&b=2");
        inFixture("a wrong song of the right artist, with a reference", "Paper & Sons",
                  "@BASE@/lyrics/lanterns/bells.html");
        inFixture("Cyrillic behind a reference", "ПАРУСА", "@BASE@/lyrics/parusa/ogni.html");
        inFixture("other tables do not count", "Second Table", "");
        inRows("the first whose artist agrees", " <table>@OTHER@ROW</table>"_s, "/1");
        inRows("a table at the very start does not count", "<table>@ROW</table>"_s, "");
        inRows("a table without an end", " <table>@ROW"_s, "");
        inRows("a blank in the end of the table", " <table>@ROW</table >"_s, "/1");
        inRows("a row behind the table", " <table></table>@ROW"_s, "");
    }

    void findsTheLink()
    {
        QFETCH(QString, page);
        QFETCH(QString, artist);
        QTEST(AZLyricsProvider::songLink(page, artist).value_or(QString()), "link");
    }

    void findsTheLyrics_data()
    {
        addTextColumns("page", "lyrics");
        addRow("a whole page", fixture("song.html"), harbourLights());
        addRow("the first bare block, up to the first closing tag", "<div id=\"x\">a</div><div>b<div>c</div>d</div>",
               "bc");
        addRow("a block that is not closed", "<div>a", "");
    }

    void findsTheLyrics()
    {
        QFETCH(QString, page);
        QTEST(lyricsOf(page), "lyrics");
    }

    void answersHostilePages_data()
    {
        QTest::addColumn<QString>("page");
        const QString row = "<tr><td class><a href=\"\"><b>s</b><b>x</b></td></tr>"_s;
        addRow("brackets", repeated("<"));
        addRow("a row of names without an end",
               " <table><tr><td class><a href=\"\">"_s + repeated("<b>x</b>") + "</table>"_s);
        addRow("links in one row",
               " <table><tr>"_s + repeated("<td class><a href=\"\"><b>x</b><b>x</b>") + "</td></tr></table>"_s);
        addRow("attributes in one line", repeated("setAttribute(\"x\",\"x\")"));
    }

    void answersHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!AZLyricsProvider::songLink(page, "b"_s));
        QVERIFY(lyricsOf(page).isEmpty());
        QVERIFY(AZLyricsProvider::searchParameter(page).first.isEmpty());
    }

    void asksAsABrowserForTheScriptTheSearchAndTheSong()
    {
        SiteRig rig({Endpoint::AZLyrics, Endpoint::AZLyricsSearch});
        rig.server().route("/geo.js"_s, LoopbackResponse::redirect(307, "/moved.js"));
        rig.page("/moved.js", fixture("geo.js"));
        rig.page("/search.php", fixture("search.html").replace("@BASE@"_s, rig.server().base()));
        rig.page("/lyrics/tinlanterns/harbourlights.html", fixture("song.html"));
        const SiteAnswer answer =
            rig.search<AZLyricsProvider>("Tin Lanterns feat. C&A", "Harbour + Lights #1 (Official)");
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

    void searchesWithoutAParameter()
    {
        SiteRig rig({Endpoint::AZLyrics, Endpoint::AZLyricsSearch});
        rig.page("/geo.js", "e.setAttribute(\"name\", \"x\")"_s);
        rig.page("/search.php", "<p>No results</p>"_s);
        const SiteAnswer answer = rig.search<AZLyricsProvider>("b", "a");
        QVERIFY(answer.lyrics.isEmpty() && answer.errorString.isEmpty());
        QCOMPARE(rig.targets(), (QList<QByteArray>{"/geo.js", "/search.php?q=b%20a"}));
    }

    void leavesAScriptAmidTheLyricsOut()
    {
        SiteRig rig({Endpoint::AZLyrics, Endpoint::AZLyricsSearch});
        rig.page("/geo.js", QString());
        rig.page("/search.php", fixture("search.html").replace("@BASE@"_s, rig.server().base()));
        rig.page("/lyrics/parusa/ogni.html", "<div>la<script>ad(1)</script>li</div>"_s);
        const SiteAnswer answer = rig.search<AZLyricsProvider>("Паруса", "a");
        QCOMPARE(answer.lyrics, "lali"_s);
    }
};

QTEST_GUILESS_MAIN(tst_AZLyricsProvider)
#include "tst_azlyricsprovider.moc"
