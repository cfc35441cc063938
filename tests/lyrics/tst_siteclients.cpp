// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/JunkCheck.h"
#include "lyrics/providers/AZLyricsProvider.h"
#include "lyrics/providers/DarkLyricsProvider.h"
#include "lyrics/providers/GeniusProvider.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "lyrics/providers/MegaLyricsProvider.h"
#include "lyrics/providers/MusixMatchProvider.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "support/TestTable.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

namespace {

const auto allSites = {Endpoint::LyricsFreak, Endpoint::Genius,     Endpoint::Megalyrics,
                       Endpoint::AZLyrics,    Endpoint::DarkLyrics, Endpoint::MusixMatch};

SongLink findOnAZLyrics(const QString &page, const QString &artist, const QString & /*title*/)
{
    return AZLyricsProvider::songLink(page, artist);
}

ProviderStep readMusixMatch(const Page &page)
{
    const QString block = MusixMatchProvider::lyricsBlock(page.text);
    return block.isEmpty() ? ProviderStep::notUnderstood()
                           : MusixMatchProvider::lyricsOfBlock(block).value_or(ProviderStep::nothing());
}

// What a client reads, and the pages that the tests put around what matters, which stands at "@".
struct Site
{
    SongLink (*find)(const QString &page, const QString &artist, const QString &title);
    ProviderStep (*read)(const Page &page);
    const char *list; // of songs
    const char *song;
};

// The site whose name a row's sentence begins with.
const Site &siteOf(const char *sentence)
{
    static const QMap<QByteArray, Site> sites{
        {"LyricsFreak",
         {LyricsFreakProvider::songLink, LyricsFreakProvider::lyricsRequestFinished, "@",
          "<div id=\"content\">@</div>"}},
        {"Genius",
         {GeniusProvider::songPath, GeniusProvider::lyricsRequestFinished,
          R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[@]},{"type":"video"}]}})",
          "<div class=\"lyrics\">@</div>"}},
        {"Megalyrics",
         {MegaLyricsProvider::songLink, MegaLyricsProvider::lyricsRequestFinished,
          R"(<div class="songs-table"><table><tbody>@</tbody></table></div>)",
          R"(<div id="song_text"><div class="text">@</div></div><div class="switch-block">)"}},
        {"AZLyrics", {findOnAZLyrics, AZLyricsProvider::lyricsRequestFinished, " <table>@</table>", "<div>@</div>"}},
        {"DarkLyrics",
         {DarkLyricsProvider::songLink, DarkLyricsProvider::lyricsRequestFinished,
          "<div class=\"cntwrap\"><h3>Songs</h3>@</div>", R"(<div class="cntwrap"><h3><a name="7">x</a></h3>@</div>)"}},
        {"MusixMatch",
         {MusixMatchProvider::trackLink, readMusixMatch, "<ul class=\"tracks list thumb-list\">@</ul>",
          R"(<div class="mxm-lyrics"><script>ad()</script><span class="lyrics__content__ok">@</span></div>)"}},
    };
    return *sites.find(QByteArray(sentence).split(':').first());
}

QByteArray folderOf(const char *sentence)
{
    return QByteArray(sentence).split(':').first().toLower();
}

const Site &site()
{
    return siteOf(QTest::currentDataTag());
}

QString at(const QByteArray &page, const QString &content)
{
    return QString::fromUtf8(page).replace(QLatin1Char('@'), content);
}

ProviderStep read(const QString &page)
{
    return site().read({page, QUrl("http://127.0.0.1/album#7"_s)});
}

// The rows of the short pages; the wanted song is always "a" by "b", and the letters stand in no other name.
QString unfolded(const QString &page)
{
    static const QList<QPair<QString, QString>> rows{
        {"@freak"_s, R"(<div data-sorting-artist="b" data-sorting-song="a">)"_s},
        {"@song"_s, R"(<a href="/1" class="song">x</a>)"_s},
        {"@mega1"_s, R"(<td><td><a href="/1">a</a><td>b</td><td><td>)"_s},
        {"@mega2"_s, R"(<td><td><a href="/2">a</a><td>b</td><td><td>)"_s},
        {"@table"_s, R"(<div class="songs-table"><table><tbody>)"_s},
        {"@az0"_s, R"(<tr><td class="x"><a href="/0"><b>s</b></a><b>o</b></td></tr>)"_s},
        {"@az1"_s, R"(<tr><td class="x"><a href="/1"><b>s</b></a><b>b</b></td></tr>)"_s},
        {"@genius"_s,
         R"({"type":"song","result":{"_type":"song","title":"a","path":"/1","primary_artist":{"name":"b"}}})"_s},
    };
    QString html = page;
    for (const auto &[key, row] : rows)
        html.replace(key, row);
    return html;
}

// The hash that the script of DarkLyrics computes, for a time in milliseconds since the epoch.
QByteArray visitCookie(qint64 time)
{
    const qint64 period = 6LL * 60 * 60 * 1000;
    quint32 hash = 0;
    for (const char digit : QByteArray::number((time + period - 1) / period))
        hash = hash * 31 + static_cast<quint32>(digit);
    return "lastvisitts=" + QByteArray::number(static_cast<qint32>(hash));
}

// "R": it names the search page as its referer; "U": it shows a browser; "-": neither.
QByteArray headsOf(const LoopbackRequest &request, const LoopbackServer &server)
{
    QByteArray heads;
    if (!request.header("Referer").isNull())
        heads += request.header("Referer") == server.url("/search.php").toEncoded() ? "R" : "?";
    if (request.header("User-Agent").contains("Chrome/46.0.2490.86"))
        heads += "U";
    return heads.isEmpty() ? QByteArray("-") : heads;
}

} // namespace

class tst_SiteClients : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_rig = std::make_unique<SiteRig>(std::initializer_list<Endpoint>{
            Endpoint::LyricsFreak, Endpoint::Genius, Endpoint::Megalyrics, Endpoint::AZLyrics, Endpoint::AZLyricsSearch,
            Endpoint::DarkLyrics, Endpoint::MusixMatch});
    }

    void areListedInTheirOrderAndCopied()
    {
        auto expected = allSites.begin();
        for (const auto &provider : makeProviders(m_rig->manager())) {
            QVERIFY(expected != allSites.end());
            QCOMPARE(provider->name(), endpointKey(*expected++));
            const QString slash = provider->name() == "Genius"_s ? "/"_s : QString();
            QCOMPARE(provider->siteUrl(), m_rig->server().base() + slash);
            QObject owner;
            const LyricsProvider *copy = provider->clone(&owner);
            QCOMPARE(copy->parent(), &owner);
            QCOMPARE(copy->metaObject(), provider->metaObject());
        }
        QVERIFY(expected == allSites.end());
    }

    void findTheSong_data()
    {
        addTextColumns("page", "artist", "title", "link");
        const auto listed = [](const char *name, const char *artist, const char *title, const char *link) {
            const char *fixture = folderOf(name) == "genius" ? "search.json" : "search.html";
            addRow(name, sitePage(folderOf(name), fixture), artist, title, link);
        };
        const auto row = [](const char *name, const char *page, const char *link) {
            addRow(name, unfolded(QString::fromUtf8(page)), "b", "a", link);
        };
        const auto hit = [](const char *name, const char *page, const char *link) {
            addRow(name, at(siteOf("Genius").list, unfolded(QString::fromUtf8(page))), "b", "a", link);
        };
        listed("LyricsFreak: decoys, comments and a row without a link before it", "Tin Lanterns", "Harbour Lights",
               "/t/tin+lanterns/harbour+lights_20443.html");
        listed("LyricsFreak: marks that do not count, and another host", "Moth Lamp", "Don't Dim",
               "https://mirror.invalid/m/moth/dont+dim_20446.html");
        listed("LyricsFreak: a row that names no song resembles every title", "Unsigned Hands", "Anything",
               "/u/unsigned+hands/untitled_20447.html");
        row("LyricsFreak: a row that is not closed has no block", "@freak@song", "");
        row("LyricsFreak: a link behind the row's own block", "@freak</div>@song", "");
        row("LyricsFreak: a row within a row that has a link", "@freak@freak</div>@song</div>", "/1");
        row("LyricsFreak: the next row after one without a block", "@freak<divider>@freak@song</div>", "/1");
        row("LyricsFreak: the class must not stand first", R"(@freak<a class="song" href="/1">x</a></div>)", "");
        row("LyricsFreak: an empty name", R"(<div data-sorting-artist="">@song</div>)", "/1");

        listed("Genius: decoys of other kinds, sections and addresses before it", "Tin Lanterns", "Harbour Lights",
               "/Tin-lanterns-harbour-lights-lyrics");
        listed("Genius: a slash is no space", "Moth Lamp", "Harbour Lights", "");
        listed("Genius: quotation marks and entities", "Moth Lamp", "Dont Dim", "/Moth-lamp-dont-dim-lyrics");
        listed("Genius: right to left, and a percent sign", "מגדלור", "נמל קטן", "/Migdalor-namal-katan-100%-lyrics");
        hit("Genius: hits of the wrong shape before it", R"(null,7,[],{"type":"song","result":[]},@genius)", "/1");
        hit("Genius: missing names", R"({"type":"song","result":{"_type":"song","path":"/2"}})", "/2");
        for (const auto &[name, status, link] :
             {std::tuple("Genius: it failed", "404", ""), std::tuple("Genius: a status in words", "\"200\"", "/1")})
            addRow(name, unfolded(at(siteOf(name).list, "@genius"_s)).replace("200"_s, QLatin1String(status)), "b", "a",
                   link);

        listed("Megalyrics: decoys and an advert's row before it", "Tin Lanterns", "Harbour Lights",
               "/song/tin-lanterns-harbour-lights?v=2");
        listed("Megalyrics: references in both names", "The Paper Kites Club, Choir", "harbourlights",
               "/song/paper-kites-club-harbour-lights");
        listed("Megalyrics: Cyrillic behind references and escapes", "паруса", "Огни Гавани",
               "/song/parusa-ogni-gavani");
        listed("Megalyrics: other tables do not count", "Tin Lanterns", "Lighthouse", "");
        row("Megalyrics: the first of two", "@table<tr>@mega1</tr><tr>@mega2</tr></tbody>", "/1");
        row("Megalyrics: a row of four cells takes its fifth from the next",
            "@table<tr><td><td><a href=\"/0\">a</a><td>b</td><td></tr><tr>@mega1</tr></tbody>", "/0");
        row("Megalyrics: a row behind the body", "@table</tbody><tr>@mega1</tr>", "");
        row("Megalyrics: what stands behind a tag in the title is its name, here none",
            "@table<tr><td><td><a href=\"/1\"><b>a</b></a><td>b</td><td><td></tr></tbody>", "/1");

        listed("AZLyrics: blanks and dots behind the artist", "Tin Lanterns", "",
               "@BASE@/lyrics/tinlanterns/harbourlights.html?a=1&b=2");
        listed("AZLyrics: a wrong song of the right artist", "Paper & Sons", "", "@BASE@/lyrics/lanterns/bells.html");
        listed("AZLyrics: other tables do not count", "Second Table", "", "");
        row("AZLyrics: the first whose artist agrees", " <table>@az0@az1</table>", "/1");
        row("AZLyrics: a table at the very start does not count", "<table>@az1</table>", "");
        row("AZLyrics: a table without an end", " <table>@az1", "");
        row("AZLyrics: a blank in the end of the table", " <table>@az1</table >", "/1");
        row("AZLyrics: a row behind the table", " <table></table>@az1", "");

        listed("DarkLyrics: decoys before it and a remark behind the title", "Tin Lanterns", "Harbour Lights",
               "lyrics/tinlanterns/tides.html#4");
        listed("DarkLyrics: entities", "Moth Lamp", "Dont Dim", "lyrics/mothlamp/dim.html#1");
        listed("DarkLyrics: Cyrillic, and another host", "паруса", "ОГНИ ГАВАНИ",
               "http://mirror.invalid/parusa.html#7");
        listed("DarkLyrics: links behind the content", "Late Band", "Late Song", "");

        listed("MusixMatch: decoys before it, and classes in any order", "Tin Lanterns", "Harbour Lights",
               "/lyrics/Tin-Lanterns/Harbour-Lights");
        listed("MusixMatch: entities", "Moth Lamp", "Dont Dim", "/lyrics/Moth/Dont-Dim");
        listed("MusixMatch: Cyrillic, and another host", "паруса", "ОГНИ ГАВАНИ", "http://mirror.invalid/Ogni");
        listed("MusixMatch: a slash is no space", "Moth Lamp", "Harbour Lights", "");
        listed("MusixMatch: only the first list counts", "Second List", "Second List", "");
    }

    void findTheSong()
    {
        QFETCH(QString, page);
        QFETCH(QString, artist);
        QFETCH(QString, title);
        QTEST(site().find(page, artist, title).value_or(QString()), "link");
    }

    // A row of another song, and one that cannot be read.
    void tellWhyThereIsNoSong_data()
    {
        addTextColumns("row", "changed");
        addRow("LyricsFreak", R"(<div data-sorting-artist="x" data-sorting-song="x"></div>)",
               R"(<div data-sorting-artist="b" data-sorting-song="a"><a href="/1"></a></div>)");
        addRow("Genius", R"({"type":"song","result":{"_type":"song","title":"x","path":"/1"}})",
               R"({"type":"song","hit":{}})");
        addRow("Megalyrics", "<tr><td></td><td><a href=\"/1\">x</a></td><td>x</td><td></td><td></td></tr>",
               "<tr><td>x</td></tr>");
        addRow("AZLyrics", R"(<tr><td class="x"><a href="/1"><b>x</b></a><b>x</b></td></tr>)", "<tr><td>x</td></tr>");
        addRow("DarkLyrics", "<h2><a x href=\"1\" x>x - x</a></h2>", "<h2>x</h2>");
        addRow("MusixMatch", R"(<li x><a class="artist">x</a><a class="title" href="/1">x</a></li>)",
               "<li x><a href=\"/1\">x</a></li>");
    }

    void tellWhyThereIsNoSong()
    {
        QFETCH(QString, row);
        QFETCH(QString, changed);
        const auto missingOn = [](const QString &page) {
            const SongLink link = site().find(page, "b"_s, "a"_s);
            return link ? -1 : static_cast<int>(link.missing());
        };
        const char *list = site().list;
        QCOMPARE(missingOn(at(list, row)), static_cast<int>(SongLink::Missing::NoSuchSong));
        QCOMPARE(missingOn(at(list, changed)), static_cast<int>(SongLink::Missing::NotUnderstood));
        QCOMPARE(missingOn(at(list, {})), static_cast<int>(SongLink::Missing::ListedNothing));
        const bool showsNoList = qstrcmp(list, "@") == 0;
        QVERIFY(showsNoList || missingOn("<html>"_s) == static_cast<int>(SongLink::Missing::NotUnderstood));
    }

    void findTheLyrics_data()
    {
        addTextColumns("page", "lyrics");
        const auto whole = [](const char *name, const char *fixture, const QString &lyrics = harbourLights()) {
            addRow(name, sitePage(folderOf(name), fixture), lyrics);
        };
        const auto newer = [](const char *name, const char *page, const char *lyrics) {
            addRow(name, at(page, "<div class=\"Lyrics__Container-sc\">"_s), QString::fromUtf8(lyrics));
        };
        whole("LyricsFreak: a whole page", "song.html");
        addRow("LyricsFreak: up to the first closing tag", "<div id=\"content\">la<div>li</div>lu</div>", "lali");
        addRow("LyricsFreak: the quotation marks need not agree", "<div id=\"content'>la</div>", "la");
        whole("Genius: an older page", "older.html");
        addRow("Genius: breaks with a blank are tags, entities stay",
               "<div class=\"lyrics\">a<br />b<br>\r\nc&amp;d</div>", "ab\nc&amp;d");
        addRow("Genius: the quotation mark may be missing or come twice",
               "<div class=\"lyrics\"\">a</div><div class=\"lyrics>b</div>", "a");
        newer("Genius: an empty older block hides the newer layout", "<div class=\"lyrics\"></div>@la</div>", "");
        // Containers are joined by CR LF.
        whole("Genius: a newer page, a header block in the container", "newer.html",
              harbourLights().replace("\n\n"_s, "\r\n"_s));
        newer("Genius: references of any length, through others too",
              "@&#0000000065;&#38;#66;&#9;&#x43;&amp;lt;&#1114112;</div>", "AB\tC<\ufffd");
        whole("Megalyrics: a whole page", "song.html");
        whole("Megalyrics: a whole page of the older layout", "older-song.html");
        addRow("Megalyrics: no switch behind the song text: the older layout counts",
               R"(<div id="song_text"><div class="text">la</div></div><div class="text_inner">li</div>)", "li");
        addRow("Megalyrics: a song text without blocks: the older layout does not count",
               R"(<div id="song_text">la</div><div class="switch-block"><div class="text_inner">li</div>)", "");
        addRow("Megalyrics: tags stay",
               R"(<div id="song_text"><div class="text">a<br>b</div></div><div class="switch-block">)", "a<br>b");
        whole("AZLyrics: a whole page", "song.html");
        addRow("AZLyrics: the first bare block", "<div id=\"x\">a</div><div>b<div>c</div>d</div>", "bc");
        addRow("AZLyrics: a block that is not closed", "<div>a", "");
    }

    void findTheLyrics()
    {
        QFETCH(QString, page);
        QTEST(read(page).lyrics(), "lyrics");
    }

    void tellJunkFromLyrics_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *name : {"LyricsFreak", "Genius", "Megalyrics", "AZLyrics", "DarkLyrics", "MusixMatch"})
            addRow(name, siteOf(name).song);
        addRow("Genius: newer", "<div class=\"Lyrics__Container\">@</div>");
        addRow("Megalyrics: older", "<div class=\"text_inner\">@</div>");
    }

    void tellJunkFromLyrics()
    {
        QFETCH(QString, page);
        const auto stepWith = [&](const char *lyrics) {
            return read(at(page.toUtf8(), QString::fromLatin1(lyrics)));
        };
        const auto junkWith = [&](const char *lyrics) {
            const ProviderStep step = stepWith(lyrics);
            return isJunk(step.lyrics(), step.markup());
        };
        const QString kept = stepWith("la\n<script>ad(1)</script>\n<STYLE a=b>ad(2)</Style >li").lyrics();
        QVERIFY2(kept.contains("la"_s) && kept.contains("li"_s) && !kept.contains("ad("_s), qPrintable(kept));
        const ProviderStep hidden = stepWith("la<!-- --><script>ad(1)<!-- -->li");
        QVERIFY2(!hidden.lyrics().contains("ad("_s) || isJunk(hidden.lyrics(), hidden.markup()), "between comments");
        QVERIFY(!junkWith("I sign in, I log in<br>blocked"));
        QVERIFY2(junkWith("la\n<script>ad(1)\nli"), "a script that is not closed");
        QVERIFY2(junkWith("You must be logged in to read on."), "a notice");
        const auto notUnderstood = ProviderStep::Meaning::NotUnderstood;
        QVERIFY2(read("<html><p>la</p></html>"_s).meaning() == notUnderstood, "another page");
        QVERIFY2(stepWith("").meaning() == notUnderstood, "a page without words");
    }

    // As large as pages may be. What tries the rest of the page anew from every tag takes minutes for these.
    void answerHostilePages_data()
    {
        QTest::addColumn<QString>("page");
        const auto row = [](const char *name, const QString &begin, const char *piece, const QString &end = {}) {
            addRow(name, begin + repeated(piece) + end);
        };
        for (const char *name : {"LyricsFreak", "Megalyrics", "AZLyrics", "MusixMatch"})
            row(name, {}, "<");
        row("LyricsFreak: openings, then nearly a content block", {}, "<div ", "id=\"content\"> x</div"_s);
        const QString freak = R"(<div data-sorting-artist="" data-sorting-song="">)"_s;
        addRow("LyricsFreak: matching rows with half a link",
               repeated(freak + "<a href=\"<a href=\""_s, hostileSize * 9 / 10) + repeated("</div>", hostileSize / 10));

        const QString container = "<div class=\"Lyrics__Container\">"_s;
        row("Genius: older blocks that are not closed", {}, "<div class=\"lyrics\">");
        row("Genius: one container of a long name", {}, "<div\nclass=\"Lyrics__Container\">", " "_s);
        addRow("Genius: elements in one another",
               container + repeated("<div ", hostileSize / 2) + repeated("</div", hostileSize / 2) + "</div"_s);
        row("Genius: references to references", container, "&#38;#38;", "</div>"_s);
        row("Genius: objects in one another", {}, "{\"meta\":");
        addRow("Genius: hits without an address",
               at(siteOf("Genius").list, repeated(R"({"type":"song","result":{"_type":"song"}},)") + "0"_s));

        const QString table = unfolded("@table"_s);
        row("Megalyrics: tables without an end", {}, R"(<div class="songs-table"><table><tbody>)");
        row("Megalyrics: rows of other songs", table, "<tr><td><td><a href=\"\">x</a><td>x</td><td><td></tr>",
            "</tbody>"_s);
        row("Megalyrics: cells in one row", table + "<tr>"_s, "<td><a href=\"\">x</a></td>", "</tr></tbody>"_s);

        row("AZLyrics: a row of names without an end", " <table><tr><td class><a href=\"\">"_s, "<b>x</b>",
            "</table>"_s);
        row("AZLyrics: links in one row", " <table><tr>"_s, "<td class><a href=\"\"><b>x</b><b>x</b>",
            "</td></tr></table>"_s);
        row("AZLyrics: attributes in one line", {}, "setAttribute(\"x\",\"x\")");

        for (const auto &[name, piece] :
             {std::pair("DarkLyrics: brackets", "<"), std::pair("DarkLyrics: wrappers", "<div class='cntwrap'"),
              std::pair("DarkLyrics: headings without an end of the tag", "<h3 "),
              std::pair("DarkLyrics: links without an end of the address", "<h2><a x href=\"x")}) {
            row(name, "<h3>Songs:</h3>"_s, piece);
            addRow(name, at(siteOf(name).list, repeated(piece)));
        }

        row("MusixMatch: classes on lines of their own", {}, "<div class='a'\n");
        for (const auto &[name, piece] :
             {std::pair("MusixMatch: items with half a link", "<li x>href=</li"),
              std::pair("MusixMatch: items of other songs", "<li x><a class=\"title\" href=\"/\">x</a></li"),
              std::pair("MusixMatch: anchors in one item", "<a class=\"title\" href=\"/\">")})
            addRow(name, at(siteOf(name).list, repeated(piece)));
        const QString block = "<div class=\"mxm-lyrics\">"_s;
        const QString span = "<span class=\"lyrics__content__ok\">"_s;
        row("MusixMatch: parts that are not closed", block, "<span class=\"lyrics__content__ok\">", "</div>"_s);
        addRow("MusixMatch: a part of many openings", block + span + repeated("<span ", hostileSize / 2) +
                                                          repeated("</span", hostileSize / 2) + "</span></div>"_s);
        QString parts;
        for (int i = 0; parts.size() < hostileSize; ++i)
            parts += "%1%2</span>"_s.arg(span).arg(i);
        addRow("MusixMatch: many parts", block + parts + "</div>"_s);
    }

    void answerHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!site().find(page, "b"_s, "y"_s));
        const QString lyrics = read(page).lyrics();
        QVERIFY(lyrics.size() < page.size() && !lyrics.contains("</span>"_s));
        QVERIFY(AZLyricsProvider::searchParameter(page).first.isEmpty());
    }

    // `pages`: "path=fixture" or "path>status:location"; the second search is for names with marks in them.
    void askForTheirPages_data()
    {
        addTextColumns("pages", "targets", "strange", "heads");
        addRow(
            "LyricsFreak",
            "/search.php>301:/found /found=search.html /t/tin+lanterns/harbour+lights_20443.html>307:/2 /2=song.html",
            "/search.php?a=search&type=song&q=Harbour%20Lights /found /t/tin+lanterns/harbour+lights_20443.html /2",
            "/search.php?a=search&type=song&q=50%25%20%2B%20%231%20%D0%B4%D0%B0 /found", "R RU - RU R RU");
        addRow(
            "Genius",
            "/api/search/multi>307:/found /found=search.json /Tin-lanterns-harbour-lights-lyrics>301:/2 /2=newer.html",
            "/api/search/multi?per_page=5&q=Tin%20Lanterns%20Harbour%20Lights /found "
            "/Tin-lanterns-harbour-lights-lyrics /2",
            "/api/search/multi?per_page=5&q=C%26A%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0 /found", "- - - - - -");
        addRow("Megalyrics", "/search=search.html /song/tin-lanterns-harbour-lights>301:/2 /2=song.html",
               "/search?utf8=%E2%9C%93&search=Tin%20Lanterns%20Harbour%20Lights /song/tin-lanterns-harbour-lights?v=2 "
               "/2",
               "/search?utf8=%E2%9C%93&search=C%26A%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0", "- - - -");
        addRow("AZLyrics",
               "/geo.js>307:/2 /2=geo.js /search.php=search.html /lyrics/tinlanterns/harbourlights.html=song.html",
               "/geo.js /2 /search.php?q=Tin%20Lanterns%20Harbour%20Lights&x%26y=7f3a%2B90%3Dc2 "
               "/lyrics/tinlanterns/harbourlights.html?a=1&b=2",
               "/geo.js /2 /search.php?q=C%26A%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0&x%26y=7f3a%2B90%3Dc2",
               "RU RU RU RU RU RU RU");
        addRow("DarkLyrics", "/search=search.html /lyrics/tinlanterns/tides.html>301:/2 /2=album.html",
               "/search?q=Tin%20Lanterns%20Harbour%20Lights /lyrics/tinlanterns/tides.html /2",
               "/search?q=C%26A%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0", "U U U U");
        addRow("MusixMatch",
               "/search/Tin%20Lanterns%20Harbour%20Lights/tracks>301:/x/list /x/list=search.html "
               "/lyrics/Tin-Lanterns/Harbour-Lights>307:/2 /2=track.html",
               "/search/Tin%20Lanterns%20Harbour%20Lights/tracks /x/list /lyrics/Tin-Lanterns/Harbour-Lights /2",
               "/search/C%26A%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0/tracks", "U U U U U");
    }

    void askForTheirPages()
    {
        QFETCH(QString, pages);
        QFETCH(QString, targets);
        QFETCH(QString, strange);
        m_rig->server().routeOthers([](const LoopbackRequest &) { return LoopbackResponse::page("nothing"); });
        for (const QString &page : pages.split(QLatin1Char(' ')))
            serve(page);
        const SiteAnswer found = search("Tin Lanterns feat. Moth", "Harbour Lights (Official)");
        QCOMPARE(QString(found.lyrics).replace("\r\n"_s, "\n\n"_s), harbourLights());
        const SiteAnswer missing = search("C&A/DC?", "50% + #1 да");
        QVERIFY(missing.lyrics.isEmpty() && missing.errorString.isEmpty());
        QCOMPARE(QString::fromLatin1(m_rig->targets().join(' ')), targets + QLatin1Char(' ') + strange);
        QByteArrayList heads;
        for (const LoopbackRequest &request : m_rig->server().requests())
            heads.append(headsOf(request, m_rig->server()));
        QTEST(QString::fromLatin1(heads.join(' ')), "heads");
    }

    // On the site itself, however they begin.
    void askForLinksAsTheyStand_data()
    {
        addTextColumns("search", "page", "link", "asked"); // nothing is asked for what is no path
        const QString freak = R"(<div data-sorting-artist=""><a href="@" class="song"></a></div>)"_s;
        const QString genius = at(siteOf("Genius").list, R"({"type":"song","result":{"_type":"song","path":"@"}})"_s);
        addRow("LyricsFreak: a path", "/search.php", freak, "/song", "/song");
        addRow("LyricsFreak: two slashes", "/search.php", freak, "//other.invalid/a", "/other.invalid/a");
        for (const char *link : {"song", ""})
            addRow("LyricsFreak: no path", "/search.php", freak, link, "");
        for (const char *link : {"/a%20b%2F", "/a?b=%26"})
            addRow("Genius: a path", "/api/search/multi", genius, link, link);
        addRow("Genius: two slashes", "/api/search/multi", genius, "//other.invalid/a", "/other.invalid/a");
    }

    void askForLinksAsTheyStand()
    {
        QFETCH(QString, search);
        QFETCH(QString, page);
        QFETCH(QString, link);
        QFETCH(QString, asked);
        m_rig->server().routeOthers([](const LoopbackRequest &) {
            return LoopbackResponse::page("<div class=\"lyrics\" id=\"content\">100%</div>");
        });
        m_rig->page(search.toUtf8(), page.replace(QLatin1Char('@'), link));
        const SiteAnswer answer = this->search("b", "a");
        QCOMPARE(answer.errorString.isEmpty(), !asked.isEmpty());
        QCOMPARE(m_rig->targets().size(), asked.isEmpty() ? 1 : 2);
        QVERIFY2(asked.isEmpty() || m_rig->targets().last() == asked.toUtf8(), m_rig->targets().last().constData());
    }

    void azLyricsReadsTheParameter()
    {
        const auto named =
            AZLyricsProvider::searchParameter(sitePage("azlyrics", "geo.js")); // with a draft of the name
        QCOMPARE(named.first + QLatin1Char('=') + named.second, "x&y=7f3a+90=c2"_s);
        const QString script = R"(setAttribute("a", b); setAttribute("name", "n"))"_s;
        QVERIFY2(AZLyricsProvider::searchParameter(script).first.isEmpty(), "an attribute that runs into the name");
        m_rig->page("/geo.js", script);
        m_rig->page("/search.php", "<p>No results</p>"_s);
        QVERIFY(m_rig->search<AZLyricsProvider>("b", "a").errorString.isEmpty());
        QCOMPARE(m_rig->targets(), (QList<QByteArray>{"/geo.js", "/search.php?q=b%20a"}));
    }

    // Also on redirects, and when the site has set cookies of its own. Links are resolved.
    void darkLyricsCarriesItsCookieAlways()
    {
        const QByteArray before = visitCookie(QDateTime::currentMSecsSinceEpoch());
        m_rig->server().route("/search"_s,
                              LoopbackResponse::redirect(307, "/a/found").with("Set-Cookie", "lastvisitts=1; Path=/"));
        m_rig->page("/a/found", at(siteOf("DarkLyrics").list, "<h2><a x href='song#B%41' x>b - a</a></h2>"_s));
        serve("/a/song>301:/moved"_s);
        m_rig->page("/moved", R"(<div class="cntwrap"><h3><a name="ba">a</a></h3>la</div>)"_s);
        QCOMPARE(m_rig->search<DarkLyricsProvider>("b", "a").lyrics, "la"_s);
        QCOMPARE(m_rig->targets(), (QList<QByteArray>{"/search?q=b%20a", "/a/found", "/a/song", "/moved"}));
        const QByteArray after = visitCookie(QDateTime::currentMSecsSinceEpoch());
        for (const LoopbackRequest &request : m_rig->server().requests())
            QVERIFY(request.header("Cookie") == before || request.header("Cookie") == after);
    }

    void musixMatchGivesUpOnListsWithoutAnEnd()
    {
        const QString track = R"(<li x><a class="artist">b</a><a class="title" href="/more">a</a></li>)"_s;
        const LoopbackResponse list = LoopbackResponse::page(at(siteOf("MusixMatch").list, track).toUtf8());
        m_rig->server().routeOthers([list](const LoopbackRequest &) { return list; });
        QVERIFY(m_rig->search<MusixMatchProvider>("b", "a").errorString.contains("MusixMatch"_s));
        QCOMPARE(m_rig->targets().size(), 20);
    }

private:
    // As in askForTheirPages_data(), from the folder of the row's site.
    void serve(const QString &page)
    {
        const QString path = QUrl::fromPercentEncoding(page.section(QRegularExpression("[=>]"_s), 0, 0).toLatin1());
        if (page.contains(QLatin1Char('>'))) {
            const QString redirect = page.section(QLatin1Char('>'), 1);
            m_rig->server().route(path,
                                  LoopbackResponse::redirect(redirect.left(3).toInt(), redirect.mid(4).toLatin1()));
            return;
        }
        const QByteArray fixture = page.section(QLatin1Char('='), 1).toLatin1();
        m_rig->page(path.toUtf8(),
                    sitePage(folderOf(QTest::currentDataTag()), fixture).replace("@BASE@"_s, m_rig->server().base()));
    }

    SiteAnswer search(const char *artist, const char *title)
    {
        const QString name = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(':'), 0, 0);
        for (const auto &provider : makeProviders(m_rig->manager())) {
            if (provider->name() == name)
                return SiteRig::search(*provider, QString::fromUtf8(artist), QString::fromUtf8(title));
        }
        return {};
    }

    std::unique_ptr<SiteRig> m_rig;
};

QTEST_GUILESS_MAIN(tst_SiteClients)
#include "tst_siteclients.moc"
