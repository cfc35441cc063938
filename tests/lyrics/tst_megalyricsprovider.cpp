// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/providers/MegaLyricsProvider.h"
#include "lyrics/providers/MegaLyricsText.h"
#include "support/TestTable.h"

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
    void findsTheLink_data()
    {
        addTextColumns("artist", "title", "link");
        addRow("decoys and an advert's row before it", "Tin Lanterns", "Harbour Lights",
               "/song/tin-lanterns-harbour-lights?v=2");
        addRow("a named reference in the artist, one for a blank in the title", "The Paper Kites Club, Choir",
               "harbourlights", "/song/paper-kites-club-harbour-lights");
        addRow("Cyrillic behind references and escapes, any case", "паруса", "Огни Гавани", "/song/parusa-ogni-gavani");
        addRow("a hexadecimal reference", "Moth Lamp", "Don't Dim", "/song/moth-lamp-dont-dim");
        addRow("other tables do not count", "Tin Lanterns", "Lighthouse", "");
    }

    void findsTheLink()
    {
        QFETCH(QString, artist);
        QFETCH(QString, title);
        const QString page = sitePage("megalyrics", "search.html");
        QVERIFY(page.size() > 20000 && page.size() < 60000);
        QTEST(MegaLyricsProvider::songLink(page, artist, title).value_or(QString()), "link");
    }

    // The wanted song is always "a" by "b"; the letters stand in no other name.
    void findsTheLinkInTables_data()
    {
        addTextColumns("page", "link");
        addRow("the first of two", "@TABLE<tr>@1</tr><tr>@2</tr></tbody>", "/1");
        addRow("a row of four cells takes its fifth from the next",
               "@TABLE<tr><td><td><a href=\"/0\">a</a><td>b</td><td></tr><tr>@1</tr><tr>@2</tr></tbody>", "/0");
        addRow("a row behind the body", "@TABLE</tbody><tr>@1</tr>", "");
        addRow("what stands behind a tag in the title is its name, here none",
               "@TABLE<tr><td><td><a href=\"/1\"><b>a</b></a><td>b</td><td><td></tr></tbody>", "/1");
    }

    void findsTheLinkInTables()
    {
        QFETCH(QString, page);
        page.replace("@TABLE"_s, R"(<div class="songs-table"><table><tbody>)"_s);
        for (const char *number : {"1", "2"})
            page.replace(QLatin1Char('@') + QLatin1String(number),
                         R"(<td><td><a href="/%1">a</a><td>b</td><td><td>)"_s.arg(QLatin1String(number)));
        const auto link = MegaLyricsProvider::songLink(page, "b"_s, "a"_s);
        QTEST(link.value_or(QString()), "link");
    }

    void findsTheLyrics_data()
    {
        addTextColumns("page", "lyrics");
        addRow("a whole page", sitePage("megalyrics", "song.html"), harbourLights());
        addRow("a whole page of the older layout", sitePage("megalyrics", "older-song.html"), harbourLights());
        addRow("no switch behind the song text: the older layout counts",
               R"(<div id="song_text"><div class="text">la</div></div><div class="text_inner">li</div>)", "li");
        addRow("a song text without blocks: the older layout does not count",
               R"(<div id="song_text">la</div><div class="switch-block"><div class="text_inner">li</div>)", "");
        addRow("tags in the blocks stay",
               R"(<div id="song_text"><div class="text">a<br>b</div></div><div class="switch-block">)", "a<br>b");
    }

    void findsTheLyrics()
    {
        QFETCH(QString, page);
        QTEST(lyricsOf(page), "lyrics");
    }

    void decodesTexts_data()
    {
        addTextColumns("text", "decoded");
        addRow("named references", "&quot;&lt;&gt;&nbsp;&middot;&AMP;&apos;", "\"<> &AMP;&apos;");
        addRow("an ampersand uncovers the names behind it", "&amp;lt;&amp;quot;&amp;#1040;", "<&quot;А");
        addRow("escapes", R"(a\\nb\b\f\n\r\tc\x\"\)", "a\\nb\b\f\n\r\tc\\x\\\"\\");
        addRow("UTF-16 units, a pair of them, in any case", R"(Д\u0430 \uD83C\udfB5 &\u002339;)", "Да 🎵 '");
        addRow("escapes that are none stay", R"(\u12г4 \uxyz \u)", R"(\u12г4 \uxyz \u)");
        addRow("references last", R"(&#1040;&#92;n)", R"(А\n)");
    }

    void decodesTexts()
    {
        QFETCH(QString, text);
        QTEST(decodeMegaLyricsText(text), "decoded");
    }

    void logsBadEscapes()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Not an hex string: xy12");
        QTest::ignoreMessage(QtCriticalMsg, "error converting hex value to short: 04");
        QCOMPARE(decodeMegaLyricsText(R"(\uxy12\u04)"_s), R"(\uxy12\u04)"_s);
    }

    void answersHostilePages_data()
    {
        QTest::addColumn<QString>("page");
        const QString table = R"(<div class="songs-table"><table><tbody>)"_s;
        const QString row = "<tr><td><td><a href=\"\">x</a><td>x</td><td><td></tr>"_s;
        addRow("brackets", repeated("<"));
        addRow("tables without an end", repeated(table));

        addRow("rows of other songs", table + repeated(row) + "</tbody>"_s);
        addRow("cells in one row", table + "<tr>"_s + repeated("<td><a href=\"\">x</a></td>") + "</tr></tbody>"_s);
    }

    void answersHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!MegaLyricsProvider::songLink(page, "b"_s, "a"_s));
        QVERIFY(lyricsOf(page).isEmpty());
    }

    void asksForTheSearchAndThenForTheSong()
    {
        SiteRig rig({Endpoint::Megalyrics});
        rig.page("/search", sitePage("megalyrics", "search.html"));
        rig.server().route("/song/tin-lanterns-harbour-lights"_s, LoopbackResponse::redirect(301, "/moved"));
        rig.page("/moved", sitePage("megalyrics", "song.html"));
        QCOMPARE(rig.search<MegaLyricsProvider>("Tin Lanterns feat. Moth", "Harbour Lights (Official)").lyrics,
                 harbourLights());
        const SiteAnswer nothing = rig.search<MegaLyricsProvider>("C&A + #1", "50% да");
        QVERIFY(nothing.lyrics.isEmpty() && nothing.errorString.isEmpty());
        QCOMPARE(rig.targets(),
                 (QList<QByteArray>{"/search?utf8=%E2%9C%93&search=Tin%20Lanterns%20Harbour%20Lights",
                                    "/song/tin-lanterns-harbour-lights?v=2", "/moved",
                                    "/search?utf8=%E2%9C%93&search=C%26A%20%2B%20%231%2050%25%20%D0%B4%D0%B0"}));
        for (const LoopbackRequest &request : rig.server().requests())
            QVERIFY(request.header("Referer").isNull() && !request.header("User-Agent").contains("Chrome"));
    }
};

QTEST_GUILESS_MAIN(tst_MegaLyricsProvider)
#include "tst_megalyricsprovider.moc"
