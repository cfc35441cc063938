// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "support/TestTable.h"

#include <QTest>

class tst_LyricsFreakProvider : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_rig = std::make_unique<SiteRig>(std::initializer_list<Endpoint>{Endpoint::LyricsFreak}); }
    void findsTheLink_data()
    {
        addTextColumns("artist", "title", "link");
        addRow("decoys, comments and a row without a link before it", "Tin Lanterns", "Harbour Lights",
               "/t/tin+lanterns/harbour+lights_20443.html");
        addRow("Cyrillic behind entities, any case", "ПАРУСА", "огни Гавани", "/p/parusa/ogni+gavani_20444.html");
        addRow("marks that do not count, and another host", "Moth Lamp", "Don't Dim",
               "https://mirror.invalid/m/moth/dont+dim_20446.html");
        addRow("a row that names no song resembles every title", "Unsigned Hands", "Anything",
               "/u/unsigned+hands/untitled_20447.html");
        addRow("an artist who is not there", "Nobody At All", "Harbour Lights", "");
    }

    void findsTheLink()
    {
        QFETCH(QString, artist);
        QFETCH(QString, title);
        const QString page = sitePage("lyricsfreak", "search.html");
        QVERIFY(page.size() > 20000 && page.size() < 60000);
        QTEST(LyricsFreakProvider::songLink(page, artist, title).value_or(QString()), "link");
    }

    // The wanted song is always "a" by "b"; the letters stand in no other name.
    void findsTheLinkInRows_data()
    {
        addTextColumns("page", "link");
        addRow("a row that is not closed has no block", "@ROW@LINK", "");
        addRow("a link behind the row's own block", "@ROW</div>@LINK", "");
        addRow("a row within a row that has a link", "@ROW@ROW</div>@LINK</div>", "/1");
        addRow("the next row after one without a block, and a link in it", "@ROW<divider>@ROW@LINK</div>", "/1");
        addRow("the class must not stand before the address", R"(@ROW<a class="song" href="/1">x</a></div>)", "");
        addRow("an empty name resembles everything", R"(<div data-sorting-artist="">@LINK</div>)", "/1");
    }

    void findsTheLinkInRows()
    {
        QFETCH(QString, page);
        page.replace("@ROW"_s, R"(<div data-sorting-artist="b" data-sorting-song="a">)"_s);
        page.replace("@LINK"_s, R"(<a href="/1" class="song">x</a>)"_s);
        const auto link = LyricsFreakProvider::songLink(page, "b"_s, "a"_s);
        QTEST(link.value_or(QString()), "link");
    }

    void findsTheLyrics_data()
    {
        addTextColumns("page", "lyrics");
        addRow("a whole page", sitePage("lyricsfreak", "song.html"), harbourLights());
        addRow("up to the first closing tag", "<div id=\"content\">la<div>li</div>lu</div>", "lali");
        addRow("the quotation marks need not agree", "<div id=\"content'>la</div>", "la");
    }

    void findsTheLyrics()
    {
        QFETCH(QString, page);
        QTEST(LyricsFreakProvider::lyricsRequestFinished({page, {}}).lyrics(), "lyrics");
    }

    // As large as pages may be. What tries the rest of the page anew from every tag takes minutes for these.
    void answersHostilePages_data()
    {
        QTest::addColumn<QString>("page");
        const QString row = "<div data-sorting-artist=\"\" data-sorting-song=\"\">"_s;
        addRow("brackets", repeated("<"));
        addRow("openings, then nearly a content block", repeated("<div ") + "id=\"content\"> x</div"_s);
        addRow("matching rows with half a link",
               repeated(row + "<a href=\"<a href=\""_s, hostileSize * 9 / 10) + repeated("</div>", hostileSize / 10));
    }

    void answersHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!LyricsFreakProvider::songLink(page, "b"_s, "a"_s));
        QVERIFY(LyricsFreakProvider::lyricsRequestFinished({page, {}}).lyrics().isEmpty());
    }

    void asksForTheSearchAndThenForTheSong()
    {
        m_rig->page("/search.php", sitePage("lyricsfreak", "search.html"));
        m_rig->page("/t/tin+lanterns/harbour+lights_20443.html", sitePage("lyricsfreak", "song.html"));
        QCOMPARE(search("Tin Lanterns feat. Moth", "Harbour Lights (Official)").lyrics, harbourLights());
        QCOMPARE(server().requests().size(), 2);
        const LoopbackRequest query = server().requests().at(0);
        QCOMPARE(query.target, QByteArray("/search.php?a=search&type=song&q=Harbour%20Lights"));
        QCOMPARE(query.header("Referer"), server().url("/search.php").toEncoded());
        const LoopbackRequest song = server().requests().at(1);
        QVERIFY(song.header("Referer").isNull());
        for (const LoopbackRequest &request : server().requests())
            QVERIFY2(!request.header("User-Agent").contains("Chrome"), "only redirects show a browser");

        QVERIFY(search("Nobody", "50% + C&A #1 да").lyrics.isEmpty());
        QCOMPARE(server().requests().at(2).target,
                 QByteArray("/search.php?a=search&type=song&q=50%25%20%2B%20C%26A%20%231%20%D0%B4%D0%B0"));
    }

    void carriesBrowserHeadersOnRedirects()
    {
        const QByteArray row =
            "<div data-sorting-artist=\"b\" data-sorting-song=\"a\"><a href=\"/1\" class=\"song\"></a></div>";
        server().route("/search.php"_s, LoopbackResponse::redirect(301, "/found"));
        server().route("/found"_s, LoopbackResponse::page(row));
        server().route("/1"_s, LoopbackResponse::redirect(307, "/2"));
        server().route("/2"_s, LoopbackResponse::page("<div id=\"content\">la</div>"));
        QCOMPARE(search("b", "a").lyrics, "la"_s);
        QCOMPARE(server().requests().size(), 4);
        for (const int followed : {1, 3}) {
            const LoopbackRequest request = server().requests().at(followed);
            QCOMPARE(request.header("Referer"), server().url("/search.php").toEncoded());
            QVERIFY(request.header("User-Agent").contains("Chrome/46.0.2490.86"));
        }
    }

    void asksForLinksAsTheyStand_data()
    {
        QTest::addColumn<QByteArray>("link");
        QTest::addColumn<QString>("lyrics");
        QTest::addColumn<bool>("failed");
        addRow("on the site", QByteArray("/song"), "la", false);
        addRow("a second slash leads to no other host", QByteArray("//other.invalid/song"), "", true);
        addRow("an address without a host", QByteArray("song"), "", true);
        addRow("nothing", QByteArray(), "", true);
    }

    void asksForLinksAsTheyStand()
    {
        QFETCH(QByteArray, link);
        QFETCH(bool, failed);
        link.replace("@BASE@", server().base().toUtf8());
        server().route("/song"_s, LoopbackResponse::page("<div id=\"content\">la</div>"));
        server().route("/search.php"_s, LoopbackResponse::page("<div data-sorting-artist=\"\"><a href=\"" + link +
                                                               "\" class=\"song\"></a></div>"));
        const SiteAnswer answer = search("b", "a");
        QTEST(answer.lyrics, "lyrics");
        QCOMPARE(!answer.errorString.isEmpty(), failed);
    }

private:
    SiteAnswer search(const char *artist, const char *title)
    {
        return m_rig->search<LyricsFreakProvider>(artist, title);
    }
    LoopbackServer &server() { return m_rig->server(); }

    std::unique_ptr<SiteRig> m_rig;
};

QTEST_GUILESS_MAIN(tst_LyricsFreakProvider)
#include "tst_lyricsfreakprovider.moc"
