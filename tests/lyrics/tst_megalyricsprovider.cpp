// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/providers/MegaLyricsProvider.h"
#include "lyrics/providers/MegaLyricsText.h"

#include <QTest>

namespace {

QString lyricsOf(const QString &page)
{
    return MegaLyricsProvider::lyricsRequestFinished({page, {}}).lyrics();
}

} // namespace

class tst_MegaLyricsProvider : public QObject
{
    Q_OBJECT

private slots:
    void findsTheLink_data();
    void findsTheLink();
    void findsTheLinkInTables_data();
    void findsTheLinkInTables();
    void findsTheLyrics_data();
    void findsTheLyrics();
    void decodesTexts_data();
    void decodesTexts();
    void logsBadEscapes();
    void answersHostilePages_data();
    void answersHostilePages();
    void asksForTheSearchAndThenForTheSong();
};

void tst_MegaLyricsProvider::findsTheLink_data()
{
    QTest::addColumn<QString>("artist");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("link");
    QTest::newRow("decoys and an advert's row before it") << "Tin Lanterns"
                                                          << "Harbour Lights"
                                                          << "/song/tin-lanterns-harbour-lights?v=2";
    QTest::newRow("a named reference in the artist, one for a blank in the title")
        << "The Paper Kites Club, Choir"
        << "harbourlights"
        << "/song/paper-kites-club-harbour-lights";
    QTest::newRow("Cyrillic behind references and escapes, any case") << "паруса"
                                                                      << "Огни Гавани"
                                                                      << "/song/parusa-ogni-gavani";
    QTest::newRow("right to left, with quotation marks") << "מגדלור"
                                                         << "נמל קטן"
                                                         << "/song/migdalor-namal";
    QTest::newRow("a hexadecimal reference") << "Moth Lamp"
                                             << "Don't Dim"
                                             << "/song/moth-lamp-dont-dim";
    QTest::newRow("other tables do not count") << "Tin Lanterns"
                                               << "Lighthouse"
                                               << "";
}

void tst_MegaLyricsProvider::findsTheLink()
{
    QFETCH(QString, artist);
    QFETCH(QString, title);
    const QString page = sitePage(QStringLiteral("megalyrics"), QStringLiteral("search.html"));
    QVERIFY(page.size() > 20000 && page.size() < 60000);
    QTEST(MegaLyricsProvider::songLink(page, artist, title).value_or(QString()), "link");
}

// The wanted song is always "a" by "b"; the letters stand in no other name.
void tst_MegaLyricsProvider::findsTheLinkInTables_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("link");
    QTest::newRow("the first of two") << "@TABLE<tr>@1</tr><tr>@2</tr></tbody>"
                                      << "/1";
    QTest::newRow("a row of four cells takes its fifth from the next")
        << "@TABLE<tr><td><td><a href=\"/0\">a</a><td>b</td><td></tr><tr>@1</tr><tr>@2</tr></tbody>"
        << "/0";
    QTest::newRow("a row that is not closed") << "@TABLE<tr>@1</tbody>"
                                              << "";
    QTest::newRow("a body that is not closed") << "@TABLE<tr>@1</tr>"
                                               << "";
    QTest::newRow("a row behind the body") << "@TABLE</tbody><tr>@1</tr>"
                                           << "";
    QTest::newRow("a table with attributes is none")
        << "<div class=\"songs-table\"><table id=\"x\"><tbody><tr>@1</tr></tbody>"
        << "";
    QTest::newRow("what stands behind a tag in the title is its name, here none")
        << "@TABLE<tr><td><td><a href=\"/1\"><b>a</b></a><td>b</td><td><td></tr></tbody>"
        << "/1";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_MegaLyricsProvider::findsTheLinkInTables()
{
    QFETCH(QString, page);
    page.replace(QLatin1String("@TABLE"), QLatin1String(R"(<div class="songs-table"><table><tbody>)"));
    for (const char *number : {"1", "2"})
        page.replace(QLatin1Char('@') + QLatin1String(number),
                     QStringLiteral(R"(<td><td><a href="/%1">a</a><td>b</td><td><td>)").arg(QLatin1String(number)));
    const auto link = MegaLyricsProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a"));
    QTEST(link.value_or(QString()), "link");
}

void tst_MegaLyricsProvider::findsTheLyrics_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("lyrics");
    const QString site = QStringLiteral("megalyrics");
    QTest::newRow("a whole page") << sitePage(site, QStringLiteral("song.html")) << harbourLights();
    QTest::newRow("a whole page of the older layout")
        << sitePage(site, QStringLiteral("older-song.html")) << harbourLights();
    QTest::newRow("no switch behind the song text: the older layout counts")
        << R"(<div id="song_text"><div class="text">la</div></div><div class="text_inner">li</div>)"
        << "li";
    QTest::newRow("a song text without blocks: the older layout does not count")
        << R"(<div id="song_text">la</div><div class="switch-block"><div class="text_inner">li</div>)"
        << "";
    QTest::newRow("tags in the blocks stay")
        << R"(<div id="song_text"><div class="text">a<br>b</div></div><div class="switch-block">)"
        << "a<br>b";
    QTest::newRow("no block") << R"(<div class="text">la</div>)"
                              << "";
}

void tst_MegaLyricsProvider::findsTheLyrics()
{
    QFETCH(QString, page);
    QTEST(lyricsOf(page), "lyrics");
}

void tst_MegaLyricsProvider::decodesTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("decoded");
    QTest::newRow("named references") << "&quot;&lt;&gt;&nbsp;&middot;&AMP;&apos;"
                                      << "\"<> &AMP;&apos;";
    QTest::newRow("an ampersand uncovers the names behind it") << "&amp;lt;&amp;quot;&amp;#1040;"
                                                               << "<&quot;А";
    QTest::newRow("escapes") << R"(a\\nb\b\f\n\r\tc\x\"\)"
                             << "a\\nb\b\f\n\r\tc\\x\\\"\\";
    QTest::newRow("UTF-16 units, a pair of them, in any case") << R"(Д\u0430 \uD83C\udfB5 &\u002339;)"
                                                               << "Да 🎵 '";
    QTest::newRow("escapes that are none stay") << R"(\u12г4 \uxyz \u)"
                                                << R"(\u12г4 \uxyz \u)";
    QTest::newRow("references last") << R"(&#1040;&#92;n)"
                                     << R"(А\n)";
}

void tst_MegaLyricsProvider::decodesTexts()
{
    QFETCH(QString, text);
    QTEST(decodeMegaLyricsText(text), "decoded");
}

void tst_MegaLyricsProvider::logsBadEscapes()
{
    QTest::ignoreMessage(QtCriticalMsg, "Not an hex string: xy12");
    QTest::ignoreMessage(QtCriticalMsg, "error converting hex value to short: 04");
    QCOMPARE(decodeMegaLyricsText(QStringLiteral(R"(\uxy12\u04)")), QStringLiteral(R"(\uxy12\u04)"));
}

void tst_MegaLyricsProvider::answersHostilePages_data()
{
    QTest::addColumn<QString>("page");
    const QString table = QStringLiteral(R"(<div class="songs-table"><table><tbody>)");
    const QString row = QStringLiteral("<tr><td><td><a href=\"\">x</a><td>x</td><td><td></tr>");
    QTest::newRow("brackets") << repeated(QStringLiteral("<"), hostileSize);
    QTest::newRow("tables without an end") << repeated(table, hostileSize);
    QTest::newRow("beginnings of rows") << table + repeated(QStringLiteral("<tr><td>"), hostileSize) +
                                               QStringLiteral("</tbody>");

    QTest::newRow("rows of other songs") << table + repeated(row, hostileSize) + QStringLiteral("</tbody>");
    QTest::newRow("links in a row without an end")
        << table + repeated(QStringLiteral("<tr><td><td><a href=\"\">x</a><td></td>"), hostileSize) +
               QStringLiteral("</tbody>");
    QTest::newRow("cells in one row") << table + QStringLiteral("<tr>") +
                                             repeated(QStringLiteral("<td><a href=\"\">x</a></td>"), hostileSize) +
                                             QStringLiteral("</tr></tbody>");
    QTest::newRow("adverts without an end") << repeated(QStringLiteral("<div id=\"native_roll\">"), hostileSize);
    QTest::newRow("song texts without a switch")
        << repeated(QStringLiteral("<div id=\"song_text\"></div>"), hostileSize);
    QTest::newRow("blanks in an advert's tag")
        << repeated(QStringLiteral("<div "), hostileSize / 2) + repeated(QStringLiteral(" "), hostileSize / 2);
}

void tst_MegaLyricsProvider::answersHostilePages()
{
    QFETCH(QString, page);
    QVERIFY(!MegaLyricsProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a")));
    QVERIFY(lyricsOf(page).isEmpty());
}

void tst_MegaLyricsProvider::asksForTheSearchAndThenForTheSong()
{
    SiteRig rig({Endpoint::Megalyrics});
    rig.page(QStringLiteral("/search"), sitePage(QStringLiteral("megalyrics"), QStringLiteral("search.html")));
    rig.server().route(QStringLiteral("/song/tin-lanterns-harbour-lights"), LoopbackResponse::redirect(301, "/moved"));
    rig.page(QStringLiteral("/moved"), sitePage(QStringLiteral("megalyrics"), QStringLiteral("song.html")));
    const auto search = [&rig](const QString &artist, const QString &title) {
        return rig.search<MegaLyricsProvider>(artist, title);
    };
    QCOMPARE(search(QStringLiteral("Tin Lanterns feat. Moth"), QStringLiteral("Harbour Lights (Official)")).lyrics,
             harbourLights());
    const SiteAnswer nothing = search(QStringLiteral("C&A + #1"), QStringLiteral("50% да"));
    QVERIFY(nothing.lyrics.isEmpty() && nothing.errorString.isEmpty());
    QCOMPARE(rig.targets(),
             (QList<QByteArray>{"/search?utf8=%E2%9C%93&search=Tin%20Lanterns%20Harbour%20Lights",
                                "/song/tin-lanterns-harbour-lights?v=2", "/moved",
                                "/search?utf8=%E2%9C%93&search=C%26A%20%2B%20%231%2050%25%20%D0%B4%D0%B0"}));
    for (const LoopbackRequest &request : rig.server().requests())
        QVERIFY(request.header("Referer").isNull() && !request.header("User-Agent").contains("Chrome"));
}

QTEST_GUILESS_MAIN(tst_MegaLyricsProvider)
#include "tst_megalyricsprovider.moc"
