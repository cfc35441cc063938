// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/LyricsText.h"
#include "lyrics/providers/LyricsFreakProvider.h"

#include <QTest>

class tst_LyricsFreakProvider : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_rig = std::make_unique<SiteRig>(std::initializer_list<Endpoint>{Endpoint::LyricsFreak}); }
    void findsTheLink_data();
    void findsTheLink();
    void findsTheLinkInRows_data();
    void findsTheLinkInRows();
    void findsTheLyrics_data();
    void findsTheLyrics();
    void answersHostilePages_data();
    void answersHostilePages();
    void asksForTheSearchAndThenForTheSong();
    void carriesBrowserHeadersOnRedirects();
    void asksForLinksAsTheyStand_data();
    void asksForLinksAsTheyStand();

private:
    SiteAnswer search(const QString &artist, const QString &title)
    {
        return m_rig->search<LyricsFreakProvider>(artist, title);
    }
    LoopbackServer &server() { return m_rig->server(); }

    std::unique_ptr<SiteRig> m_rig;
};

void tst_LyricsFreakProvider::findsTheLink_data()
{
    QTest::addColumn<QString>("artist");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("link");
    QTest::newRow("decoys, comments and a row without a link before it") << "Tin Lanterns"
                                                                         << "Harbour Lights"
                                                                         << "/t/tin+lanterns/harbour+lights_20443.html";
    QTest::newRow("the found name within the wanted one") << "Paper Kites Club, The Paper Kites Club"
                                                          << "harbour lights"
                                                          << "/p/paper+kites+club/harbour+lights_20441.html";
    QTest::newRow("Cyrillic behind entities, any case") << "ПАРУСА"
                                                        << "огни Гавани"
                                                        << "/p/parusa/ogni+gavani_20444.html";
    QTest::newRow("right to left, with quotation marks") << "מגדלור"
                                                         << "נמל קטן"
                                                         << "/m/migdalor/namal_20445.html";
    QTest::newRow("marks that do not count, and another host") << "Moth Lamp"
                                                               << "Don't Dim"
                                                               << "https://mirror.invalid/m/moth/dont+dim_20446.html";
    QTest::newRow("a row that names no song resembles every title") << "Unsigned Hands"
                                                                    << "Anything"
                                                                    << "/u/unsigned+hands/untitled_20447.html";
    QTest::newRow("an artist who is not there") << "Nobody At All"
                                                << "Harbour Lights"
                                                << "";
    QTest::newRow("a song that is not there") << "Tin Lanterns"
                                              << "Lighthouse"
                                              << "";
}

void tst_LyricsFreakProvider::findsTheLink()
{
    QFETCH(QString, artist);
    QFETCH(QString, title);
    const QString page = sitePage(QStringLiteral("lyricsfreak"), QStringLiteral("search.html"));
    QVERIFY(page.size() > 20000 && page.size() < 60000);
    QTEST(LyricsFreakProvider::songLink(page, artist, title).value_or(QString()), "link");
}

// The wanted song is always "a" by "b"; the letters stand in no other name.
void tst_LyricsFreakProvider::findsTheLinkInRows_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("link");
    QTest::newRow("at the very start of the page") << "@ROW@LINK</div>"
                                                   << "/1";
    QTest::newRow("a row that is not closed has no block") << "@ROW@LINK"
                                                           << "";
    QTest::newRow("a link behind the row's own block") << "@ROW</div>@LINK"
                                                       << "";
    QTest::newRow("an inner block is part of the row") << "@ROW<div></div>@LINK</div>"
                                                       << "/1";
    QTest::newRow("a row within a row that has a link") << "@ROW@ROW</div>@LINK</div>"
                                                        << "/1";
    QTest::newRow("the next row after one without a link") << "@ROW</div>@ROW@LINK</div>"
                                                           << "/1";
    QTest::newRow("the next row after one without a block, and a link in it") << "@ROW<divider>@ROW@LINK</div>"
                                                                              << "/1";
    QTest::newRow("the song may stand before the artist")
        << R"(<div data-sorting-song="a" data-sorting-artist="b">@LINK</div>)"
        << "/1";
    QTest::newRow("the class must not stand before the address") << R"(@ROW<a class="song" href="/1">x</a></div>)"
                                                                 << "";
    QTest::newRow("single quotation marks do not count") << "<div data-sorting-artist='b'>@LINK</div>"
                                                         << "";
    QTest::newRow("an upper-case tag does not count") << R"(<DIV data-sorting-artist="b">@LINK</DIV>)"
                                                      << "";
    QTest::newRow("an empty name resembles everything") << R"(<div data-sorting-artist="">@LINK</div>)"
                                                        << "/1";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_LyricsFreakProvider::findsTheLinkInRows()
{
    QFETCH(QString, page);
    page.replace(QLatin1String("@ROW"), QLatin1String(R"(<div data-sorting-artist="b" data-sorting-song="a">)"));
    page.replace(QLatin1String("@LINK"), QLatin1String(R"(<a href="/1" class="song">x</a>)"));
    const auto link = LyricsFreakProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a"));
    QTEST(link.value_or(QString()), "link");
}

void tst_LyricsFreakProvider::findsTheLyrics_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("lyrics");
    QTest::newRow("a whole page") << sitePage(QStringLiteral("lyricsfreak"), QStringLiteral("song.html"))
                                  << harbourLights();
    QTest::newRow("up to the first closing tag") << "<div id=\"content\">la<div>li</div>lu</div>"
                                                 << "lali";
    QTest::newRow("the quotation marks need not agree") << "<div id=\"content'>la</div>"
                                                        << "la";
    QTest::newRow("no content block") << "<div id=\"contents\">la</div>"
                                      << "";
    QTest::newRow("a content block that is not closed") << "<div id=\"content\">la"
                                                        << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_LyricsFreakProvider::findsTheLyrics()
{
    QFETCH(QString, page);
    QTEST(LyricsFreakProvider::lyricsRequestFinished({page, {}}).lyrics(), "lyrics");
}

// As large as pages may be. What tries the rest of the page anew from every tag takes minutes for these.
void tst_LyricsFreakProvider::answersHostilePages_data()
{
    QTest::addColumn<QString>("page");
    const QString row = QStringLiteral("<div data-sorting-artist=\"\" data-sorting-song=\"\">");
    QTest::newRow("brackets") << repeated(QStringLiteral("<"), hostileSize);
    QTest::newRow("openings") << repeated(QStringLiteral("<div "), hostileSize);
    QTest::newRow("openings, then nearly a content block")
        << repeated(QStringLiteral("<div "), hostileSize) + QStringLiteral("id=\"content\"> x</div");
    QTest::newRow("content blocks that are not closed")
        << repeated(QStringLiteral("<div id=\"content\">"), hostileSize);
    QTest::newRow("content blocks without an end of the tag")
        << repeated(QStringLiteral("<div id=\"content\" "), hostileSize);
    QTest::newRow("names that do not end") << repeated(QStringLiteral("<div data-sorting-artist=\""), hostileSize);
    QTest::newRow("matching rows that are not closed") << repeated(row, hostileSize);
    QTest::newRow("matching rows one inside the other")
        << repeated(row, hostileSize * 9 / 10) + repeated(QStringLiteral("</div>"), hostileSize / 10);
    QTest::newRow("matching rows with half a link")
        << repeated(row + QStringLiteral("<a href=\"<a href=\""), hostileSize * 9 / 10) +
               repeated(QStringLiteral("</div>"), hostileSize / 10);
}

void tst_LyricsFreakProvider::answersHostilePages()
{
    QFETCH(QString, page);
    QVERIFY(!LyricsFreakProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a")));
    QVERIFY(LyricsFreakProvider::lyricsRequestFinished({page, {}}).lyrics().isEmpty());
    QVERIFY(cleanLyrics(page).size() <= page.size());
}

void tst_LyricsFreakProvider::asksForTheSearchAndThenForTheSong()
{
    m_rig->page(QStringLiteral("/search.php"), sitePage(QStringLiteral("lyricsfreak"), QStringLiteral("search.html")));
    m_rig->page(QStringLiteral("/t/tin+lanterns/harbour+lights_20443.html"),
                sitePage(QStringLiteral("lyricsfreak"), QStringLiteral("song.html")));
    QCOMPARE(search(QStringLiteral("Tin Lanterns feat. Moth"), QStringLiteral("Harbour Lights (Official)")).lyrics,
             harbourLights());
    QCOMPARE(server().requests().size(), 2);
    const LoopbackRequest query = server().requests().at(0);
    QCOMPARE(query.target, QByteArray("/search.php?a=search&type=song&q=Harbour%20Lights"));
    QCOMPARE(query.header("Referer"), server().url("/search.php").toEncoded());
    const LoopbackRequest song = server().requests().at(1);
    QVERIFY(song.header("Referer").isNull());
    for (const LoopbackRequest &request : server().requests())
        QVERIFY2(!request.header("User-Agent").contains("Chrome"), "only redirects show a browser");

    QVERIFY(search(QStringLiteral("Nobody"), QStringLiteral("50% + C&A #1 да")).lyrics.isEmpty());
    QCOMPARE(server().requests().at(2).target,
             QByteArray("/search.php?a=search&type=song&q=50%25%20%2B%20C%26A%20%231%20%D0%B4%D0%B0"));
}

void tst_LyricsFreakProvider::carriesBrowserHeadersOnRedirects()
{
    const QByteArray row =
        "<div data-sorting-artist=\"b\" data-sorting-song=\"a\"><a href=\"/1\" class=\"song\"></a></div>";
    server().route(QStringLiteral("/search.php"), LoopbackResponse::redirect(301, "/found"));
    server().route(QStringLiteral("/found"), LoopbackResponse::page(row));
    server().route(QStringLiteral("/1"), LoopbackResponse::redirect(307, "/2"));
    server().route(QStringLiteral("/2"), LoopbackResponse::page("<div id=\"content\">la</div>"));
    QCOMPARE(search(QStringLiteral("b"), QStringLiteral("a")).lyrics, QStringLiteral("la"));
    QCOMPARE(server().requests().size(), 4);
    for (const int followed : {1, 3}) {
        const LoopbackRequest request = server().requests().at(followed);
        QCOMPARE(request.header("Referer"), server().url("/search.php").toEncoded());
        QVERIFY(request.header("User-Agent").contains("Chrome/46.0.2490.86"));
    }
}

void tst_LyricsFreakProvider::asksForLinksAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<QString>("lyrics");
    QTest::addColumn<bool>("failed");
    QTest::newRow("on the site") << QByteArray("/song") << "la" << false;
    QTest::newRow("a full address") << QByteArray("@BASE@/song") << "la" << false;
    QTest::newRow("a second slash leads to no other host") << QByteArray("//other.invalid/song") << "" << true;
    QTest::newRow("an address without a host") << QByteArray("song") << "" << true;
    QTest::newRow("a file") << QByteArray("file:///etc/passwd") << "" << true;
    QTest::newRow("nothing") << QByteArray() << "" << true;
}

void tst_LyricsFreakProvider::asksForLinksAsTheyStand()
{
    QFETCH(QByteArray, link);
    QFETCH(bool, failed);
    link.replace("@BASE@", server().base().toUtf8());
    server().route(QStringLiteral("/song"), LoopbackResponse::page("<div id=\"content\">la</div>"));
    server().route(QStringLiteral("/search.php"), LoopbackResponse::page("<div data-sorting-artist=\"\"><a href=\"" +
                                                                         link + "\" class=\"song\"></a></div>"));
    const SiteAnswer answer = search(QStringLiteral("b"), QStringLiteral("a"));
    QTEST(answer.lyrics, "lyrics");
    QCOMPARE(!answer.errorString.isEmpty(), failed);
}

QTEST_GUILESS_MAIN(tst_LyricsFreakProvider)
#include "tst_lyricsfreakprovider.moc"
