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

namespace {

SongLink findOnAZLyrics(const QString &page, const QString &artist, const QString & /*title*/)
{
    return AZLyricsProvider::songLink(page, artist);
}

ProviderStep readMusixMatch(const Page &page)
{
    const QString block = MusixMatchProvider::lyricsBlock(page.text);
    return block.isEmpty() ? ProviderStep::notUnderstood()
                           : MusixMatchProvider::lyricsOfBlock(block).value_or(ProviderStep::notUnderstood());
}

// What a client reads, and the pages that the tests put around what matters, which stands at "@".
struct Site
{
    SongLink (*find)(const QString &page, const QString &artist, const QString &title);
    ProviderStep (*read)(const Page &page);
    const char *list; // of songs
    const char *row;  // of such a list: "@" is the artist and the title, LINK the link
    const char *song;
};

// The name of the site is what a row's sentence begins with.
QByteArray nameIn(const char *sentence)
{
    return QByteArray(sentence).split(':').first();
}

const Site &siteOf(const char *sentence)
{
    static const QMap<QByteArray, Site> sites{
        {"LyricsFreak",
         {LyricsFreakProvider::songLink, LyricsFreakProvider::lyricsRequestFinished, "@",
          R"(<div data-sorting-artist="@" data-sorting-song="@"><a href="LINK" class="song"></a></div>)",
          "<div id=\"content\">@</div>"}},
        {"Genius",
         {GeniusProvider::songPath, GeniusProvider::lyricsRequestFinished,
          R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[@]},{"type":"video"}]}})",
          R"({"type":"song","result":{"_type":"song","title":"@","path":"LINK","primary_artist":{"name":"@"}}})",
          "<div class=\"lyrics\">@</div>"}},
        {"Megalyrics",
         {MegaLyricsProvider::songLink, MegaLyricsProvider::lyricsRequestFinished,
          R"(<div class="songs-table"><table><tbody>@</tbody></table></div>)",
          R"(<tr><td></td><td><a href="LINK">@</a></td><td><a href="/b">@</a></td><td></td><td></td></tr>)",
          R"(<div id="song_text"><div class="text">@</div></div><div class="switch-block">)"}},
        {"AZLyrics",
         {findOnAZLyrics, AZLyricsProvider::lyricsRequestFinished, " <table>@</table>",
          R"(<tr><td class="x"><a href="LINK"><b>s</b></a><b>@</b></td></tr>)", "<div>@</div>"}},
        {"DarkLyrics",
         {DarkLyricsProvider::songLink, DarkLyricsProvider::lyricsRequestFinished,
          "<div class=\"cntwrap\"><h3>Songs</h3>@</div>", R"(<h2><a x href="LINK" x>@ - @</a></h2>)",
          R"(<div class="cntwrap"><h3><a name="7">x</a></h3>@</div>)"}},
        {"MusixMatch",
         {MusixMatchProvider::trackLink, readMusixMatch, "<ul class=\"tracks list thumb-list\">@</ul>",
          R"(<li x><a class="artist">@</a><a class="title" href="LINK">@</a></li>)",
          R"(<div class="mxm-lyrics"><script>ad()</script><span class="lyrics__content__ok">@</span></div>)"}},
    };
    return *sites.find(nameIn(sentence));
}

const Site &site()
{
    return siteOf(QTest::currentDataTag());
}

QString at(const QString &page, const QString &content)
{
    return QString(page).replace(QLatin1Char('@'), content);
}

QString at(const char *page, const QString &content)
{
    return at(QString::fromUtf8(page), content);
}

// The list of this site with one song, whose artist and title are `name`.
QString listOf(const char *sentence, const char *name, const QString &link = "/1"_s)
{
    const Site &site = siteOf(sentence);
    return at(site.list, at(site.row, QString::fromUtf8(name)).replace("LINK"_s, link));
}

QString fixture(const char *sentence, const QByteArray &name)
{
    return sitePage(nameIn(sentence).toLower(), name);
}

ProviderStep read(const QString &page)
{
    return site().read({page, QUrl("http://127.0.0.1/album#7"_s)});
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
    void init() { m_rig = std::make_unique<SiteRig>(); }

    void areListedInTheirOrderAndCopied()
    {
        QStringList names;
        for (const auto &provider : makeProviders(m_rig->manager())) {
            names.append(provider->name());
            const std::unique_ptr<LyricsProvider> copy(provider->clone(nullptr));
            QCOMPARE(copy->metaObject(), provider->metaObject());
        }
        QCOMPARE(names.join(QLatin1Char(' ')), "LyricsFreak Genius Megalyrics AZLyrics DarkLyrics MusixMatch"_s);
    }

    // Behind the class, as all tables with raw strings: the meta-object compiler does not see what follows them.
    void findTheSong_data();

    void findTheSong()
    {
        QFETCH(QString, page);
        QFETCH(QString, names);
        QTEST(site()
                  .find(page, names.section(QLatin1Char('/'), 0, 0), names.section(QLatin1Char('/'), 1))
                  .value_or(QString()),
              "link");
    }

    void readListsOfSongs_data();

    void readListsOfSongs()
    {
        QFETCH(QString, changed);
        const auto readOn = [](const QString &page) {
            const SongLink link = site().find(page, "Beyoncés ë"_s, "Beyoncés ë"_s);
            return link ? *link : QString::number(static_cast<int>(link.missing()));
        };
        const QString notUnderstood = QString::number(static_cast<int>(SongLink::Missing::NotUnderstood));
        const char *tag = QTest::currentDataTag();
        QCOMPARE(readOn(listOf(tag, "Beyonc&eacute;&#146;s &amp;euml;")), "/1"_s);
        QCOMPARE(readOn(listOf(tag, "x")), QString::number(static_cast<int>(SongLink::Missing::NoSuchSong)));
        QCOMPARE(readOn(at(site().list, changed)), notUnderstood);
        QCOMPARE(readOn(at(site().list, {})), QString::number(static_cast<int>(SongLink::Missing::ListedNothing)));
        QVERIFY(qstrcmp(tag, "LyricsFreak") == 0 || readOn("<html>"_s) == notUnderstood); // which shows no list
    }

    void findTheLyrics_data();

    void findTheLyrics()
    {
        QFETCH(QString, page);
        QTEST(read(page).lyrics(), "lyrics");
    }

    void tellJunkFromLyrics_data();

    void tellJunkFromLyrics()
    {
        QFETCH(QString, page);
        const auto junkWith = [&](const char *lyrics) {
            const ProviderStep step = read(at(page, QString::fromLatin1(lyrics)));
            return isJunk(step.lyrics(), step.markup());
        };
        const QString kept = read(at(page, "la\n<script>ad(1)</script>\n<STYLE a=b>ad(2)</Style >li"_s)).lyrics();
        QVERIFY2(kept.contains("la"_s) && kept.contains("li"_s) && !kept.contains("ad("_s), qPrintable(kept));
        const ProviderStep hidden = read(at(page, "la<!-- --><script>ad(1)<!-- -->li"_s));
        QVERIFY2(!hidden.lyrics().contains("ad("_s) || isJunk(hidden.lyrics(), hidden.markup()), "between comments");
        QVERIFY(!junkWith("I sign in, I log in<br>blocked"));
        QVERIFY2(junkWith("la\n<script>ad(1)\nli"), "a script that is not closed");
        const auto notUnderstood = ProviderStep::Meaning::NotUnderstood;
        QVERIFY2(read("<html><p>la</p></html>"_s).meaning() == notUnderstood, "another page");
        QVERIFY2(read(at(page, {})).meaning() == notUnderstood, "a page without words");
    }

    void answerHostilePages_data();

    // What tries the rest of the page anew from every tag takes minutes for these.
    void answerHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!site().find(page, "b"_s, "y"_s));
        const QString lyrics = read(page).lyrics();
        QVERIFY(lyrics.size() < page.size() && !lyrics.contains("</span>"_s));
        QVERIFY(AZLyricsProvider::searchParameter(page).first.isEmpty());
    }

    void askForTheirPages_data();

    void askForTheirPages()
    {
        QFETCH(QString, pages);
        QFETCH(QString, targets);
        QFETCH(QString, strange);
        m_rig->server().routeOthers([](const LoopbackRequest &) { return LoopbackResponse::page("nothing"); });
        for (const QString &page : pages.split(QLatin1Char(' ')))
            serve(page);
        const SiteAnswer found = search("Tin Lanterns feat. Moth"_s, "Harbour Lights (Official)"_s);
        const bool isGenius = nameIn(QTest::currentDataTag()) == "Genius"; // which joins parts by CR LF
        QCOMPARE(isGenius ? QString(found.lyrics).replace("\r\n"_s, "\n\n"_s) : found.lyrics, harbourLights());
        const SiteAnswer missing = search("C&A/DC?"_s, "50% + #1 да"_s);
        QVERIFY(missing.lyrics.isEmpty() && missing.errorString.isEmpty());
        QCOMPARE(m_rig->targets(), targets + QLatin1Char(' ') + strange);
        QByteArrayList heads;
        for (const LoopbackRequest &request : m_rig->server().requests())
            heads.append(headsOf(request, m_rig->server()));
        QTEST(QString::fromLatin1(heads.join(' ')), "heads");
    }

    // On the site itself, however they begin, and with the escapes of the page; nothing is asked for what is no path.
    void askForLinksAsTheyStand_data()
    {
        addTextColumns("link", "asked");
        const QString escapes = "/a%20%D0%B0?c=%26%E9%25E9"_s;
        for (const char *name : {"LyricsFreak", "Genius", "Megalyrics", "AZLyrics", "DarkLyrics", "MusixMatch"})
            addRow(name, escapes, escapes);
        addRow("AZLyrics: a percent sign beside escapes", "/100%/caf%C3%A9%u2019"_s, "/100%25/caf%C3%A9%25u2019"_s);
        addRow("LyricsFreak: two slashes", "//other.invalid/a", "/other.invalid/a");
        addRow("LyricsFreak: no path", "song", "");
        addRow("LyricsFreak: an empty path", "", "");
        addRow("Genius: two slashes", "//other.invalid/a", "/other.invalid/a");
        addRow("Megalyrics: marks without escapes", "/100#1?", "/100%231%3F");
    }

    void askForLinksAsTheyStand()
    {
        QFETCH(QString, link);
        QFETCH(QString, asked);
        const char *tag = QTest::currentDataTag();
        m_rig->server().routeOthers([](const LoopbackRequest &) {
            return LoopbackResponse::page("<div class=\"lyrics\" id=\"content\">100%</div>");
        });
        const QString base = nameIn(tag) == "AZLyrics" ? m_rig->server().base() : QString();
        for (const char *path : {"/search", "/search.php", "/api/search/multi", "/search/b b/tracks"})
            m_rig->page(QLatin1String(path), listOf(tag, "b", base + link));
        QCOMPARE(search("b"_s, "b"_s).errorString.isEmpty(), !asked.isEmpty());
        const QString last = m_rig->targets().section(QLatin1Char(' '), -1);
        QCOMPARE(last.contains("/search"_s) ? QString() : last, asked);
    }

    void azLyricsReadsTheParameter()
    {
        const auto named =
            AZLyricsProvider::searchParameter(sitePage("azlyrics", "geo.js")); // with a draft of the name
        QCOMPARE(named.first + QLatin1Char('=') + named.second, "x&y=7f3a+90=c2"_s);
        const QString script = "setAttribute(\"a\", b); setAttribute(\"name\", \"n\"))"_s;
        QVERIFY2(AZLyricsProvider::searchParameter(script).first.isEmpty(), "an attribute that runs into the name");
        m_rig->page("/geo.js"_s, script);
        m_rig->page("/search.php"_s, "<p>No results</p>"_s);
        AZLyricsProvider provider(m_rig->manager());
        QVERIFY(SiteRig::search(provider, "b"_s, "a"_s).errorString.isEmpty());
        QCOMPARE(m_rig->targets(), "/geo.js /search.php?q=b%20a"_s);
    }

    void darkLyricsFindsTheSongUnderItsAnchor_data()
    {
        addTextColumns("anchor", "lyrics");
        addRow("a colon in its title", "2", "high");
        addRow("the beginning of another number", "1", "low");
        addRow("in another letter case", "bonus", "bonus");
        addRow("no anchor takes the first heading with an empty name", "", "unnamed");
        // Compared anew from each place, a heading that nearly is the anchor takes minutes.
        addRow("hostile: as long as a page", QString(200 * 1000, QLatin1Char('"')), "");
    }

    void darkLyricsFindsTheSongUnderItsAnchor()
    {
        QFETCH(QString, anchor);
        const QString page = sitePage("darklyrics", "album.html")
                                 .replace("<h3><a name=\"1\""_s, "<h3>"_s + repeated("\""_s) + "<a name=\"1\""_s);
        QTEST(DarkLyricsProvider::songUnderAnchor(page, anchor).value_or(QString()).remove("<br />"_s).trimmed(),
              "lyrics");
    }

    // Also on redirects, and when the site has set cookies of its own. Links are resolved.
    void darkLyricsCarriesItsCookieAlways()
    {
        const QByteArray before = visitCookie(QDateTime::currentMSecsSinceEpoch());
        m_rig->server().route("/search"_s,
                              LoopbackResponse::redirect(307, "/a/found").with("Set-Cookie", "lastvisitts=1; Path=/"));
        m_rig->page("/a/found"_s, at(siteOf("DarkLyrics").list, "<h2><a x href='song#B%41' x>b - a</a></h2>"_s));
        serve("/a/song>301:/moved"_s);
        m_rig->page("/moved"_s, "<div class=\"cntwrap\"><h3><a name=\"ba\">a</a></h3>la</div>"_s);
        DarkLyricsProvider provider(m_rig->manager());
        QCOMPARE(SiteRig::search(provider, "b"_s, "a"_s).lyrics, "la"_s);
        QCOMPARE(m_rig->targets(), "/search?q=b%20a /a/found /a/song /moved"_s);
        const QByteArray after = visitCookie(QDateTime::currentMSecsSinceEpoch());
        for (const LoopbackRequest &request : m_rig->server().requests())
            QVERIFY(request.header("Cookie") == before || request.header("Cookie") == after);
    }

    void musixMatchGivesUpOnListsWithoutAnEnd()
    {
        const LoopbackResponse list = LoopbackResponse::page(listOf("MusixMatch", "b", "/more"_s).toUtf8());
        m_rig->server().routeOthers([list](const LoopbackRequest &) { return list; });
        MusixMatchProvider provider(m_rig->manager());
        QVERIFY(SiteRig::search(provider, "b"_s, "b"_s).errorString.contains("MusixMatch"_s));
        QCOMPARE(m_rig->server().requests().size(), 20);
    }

private:
    // "path=fixture" of the row's site, or "path>status:location".
    void serve(const QString &page)
    {
        const QString path = QUrl::fromPercentEncoding(page.section(QRegularExpression("[=>]"_s), 0, 0).toLatin1());
        const QString redirect = page.section(QLatin1Char('>'), 1);
        const QByteArray name = page.section(QLatin1Char('='), 1).toLatin1();
        if (redirect.isEmpty())
            m_rig->page(path, fixture(QTest::currentDataTag(), name).replace("@BASE@"_s, m_rig->server().base()));
        else
            m_rig->server().route(path,
                                  LoopbackResponse::redirect(redirect.left(3).toInt(), redirect.mid(4).toLatin1()));
    }

    SiteAnswer search(const QString &artist, const QString &title)
    {
        const QString name = QString::fromLatin1(nameIn(QTest::currentDataTag()));
        for (const auto &provider : makeProviders(m_rig->manager())) {
            if (provider->name() == name)
                return SiteRig::search(*provider, artist, title);
        }
        return {};
    }

    std::unique_ptr<SiteRig> m_rig;
};

// `names`: "artist/title".
void tst_SiteClients::findTheSong_data()
{
    addTextColumns("page", "names", "link");
    const auto listed = [](const char *name, const char *names, const char *link) {
        addRow(name, fixture(name, nameIn(name) == "Genius" ? "search.json" : "search.html"), names, link);
    };
    // Rows in a list of their own; the letters stand in no other name.
    const auto row = [](const char *name, const QString &rows, const char *link) {
        addRow(name, at(siteOf(name).list, rows), "b/a", link);
    };
    listed("LyricsFreak: marks that do not count, and another host", "Moth Lamp/Don't Dim",
           "https://mirror.invalid/dim");
    listed("LyricsFreak: a row that names no song resembles every title", "Unsigned Hands/Any",
           "/u/untitled_20447.html");
    const QString freak = R"(<div data-sorting-artist="b" data-sorting-song="a">)"_s;
    const QString song = R"(<a href="/1" class="song">x</a>)"_s;
    row("LyricsFreak: a row that is not closed has no block", freak + song, "");
    row("LyricsFreak: a link behind the row's own block", freak + "</div>"_s + song, "");
    row("LyricsFreak: a row within a row that has a link", freak + freak + "</div>"_s + song + "</div>"_s, "/1");
    row("LyricsFreak: a row behind one without a block", freak + "<divider>"_s + freak + song + "</div>"_s, "/1");

    listed("Genius: marks, entities, and a percent sign", "Moth Lamp/Dont Dim", "/Moth-lamp-dont-dim-100%-lyrics");
    const QString hit = at(siteOf("Genius").row, {}).replace("LINK"_s, "/1"_s);
    row("Genius: behind hits of the wrong shape", R"(null,7,[],{"type":"song","result":[]},)"_s + hit, "/1");
    row("Genius: missing names", R"({"type":"song","result":{"_type":"song","path":"/2"}})"_s, "/2");
    addRow("Genius: it failed", listOf("Genius", "").replace("200"_s, "404"_s), "b/a", "");

    listed("Megalyrics: references in both names", "The Paper Kites Club, Choir/harbourlights", "/song/kites");
    listed("Megalyrics: Cyrillic behind references and escapes", "паруса/Огни Гавани", "/song/parusa-ogni");
    listed("Megalyrics: other tables do not count", "Tin Lanterns/Lighthouse", "");

    const QString az = R"(<tr><td class="x"><a href="/@"><b>s</b></a><b>b</b></td></tr>)"_s;
    listed("AZLyrics: a wrong song of the right artist", "Paper & Sons/", "@BASE@/lyrics/lanterns/bells.html");
    listed("AZLyrics: other tables do not count", "Second Table/", "");
    row("AZLyrics: behind an artist, whose row does not take the names of the next",
        R"(<tr><td class="x"><a href="/b"><b>b</b></a></td></tr>)"_s + at(az, "1"_s), "/1");
    addRow("AZLyrics: a table at the very start does not count", "<table>"_s + az + "</table>"_s, "b/a", "");
    addRow("AZLyrics: a table without an end", " <table>"_s + az, "b/a", "");

    listed("DarkLyrics: links behind the content", "Late Band/Late Song", "");

    listed("MusixMatch: only the first list counts", "Late Band/Late Song", "");
}

// Rows that lack a link or a name.
void tst_SiteClients::readListsOfSongs_data()
{
    addTextColumns("changed");
    addRow("LyricsFreak", R"(<div data-sorting-artist="" data-sorting-song=""><a href="/1"></a></div>)");
    addRow("Genius", R"({"type":"song","hit":{}})");
    addRow("Megalyrics", R"(<tr><td></td><td><a href="/1">a</a></td><td><img src="/b"></td><td></td><td></td></tr>)");
    addRow("AZLyrics", R"(<tr><td class="x"><a href="/1"><b>a</b></a><b></b></td></tr>)");
    addRow("DarkLyrics", "<h2><a x href=\"1\" x> </a></h2>");
    addRow("MusixMatch", R"(<li x><a class="artist verified">x</a><a class="title" href="/1">a</a></li>)");
}

void tst_SiteClients::findTheLyrics_data()
{
    addTextColumns("page", "lyrics");
    const auto newer = [](const char *name, const char *page, const QString &lyrics) {
        addRow(name, at(page, "<div class=\"Lyrics__Container-sc\">"_s), lyrics);
    };
    addRow("LyricsFreak: up to the first closing tag", "<div id=\"content'>la<div>li</div>lu</div>", "lali");
    addRow("Genius: an older page", sitePage("genius", "older.html"), harbourLights());
    addRow("Genius: breaks with a blank are tags, entities stay, the quotation mark may come twice",
           "<div class=\"lyrics\"\">a<br />b<br>\r\nc&amp;d</div>", "ab\nc&amp;d");
    newer("Genius: an empty older block hides the newer layout", "<div class=\"lyrics\"></div>@la</div>", {});
    newer("Genius: references of any length, through others too",
          "@&#0000000065;&#38;#66;&#9;&#x43;&amp;lt;&#1114112;</div>", "AB\tC<\ufffd"_s);
    newer("Genius: elements in one another, and one that closes itself", "@a<div\n>b</div><div />c</div>d", "abc"_s);
    newer("Genius: a head on one line goes", "@<div>head</div>a</div>", "a"_s);
    newer("Genius: containers, one of them without words", "@a</div>x@</div>@b<br/>c</div>", "a\r\nb\nc"_s);
    newer("Genius: half a song, whose page was cut off", "@a</div>@b", {});
    newer("Genius: a container that is not closed on a whole page", "@a</div>@b</html>", "a"_s);
    newer("Genius: a list of songs is no song",
          "@1. <a href=\"/1-lyrics\">Harbour Bells</a> 2. <a href='/2-lyrics' x>Harbour Lights</a></div>", {});
    newer("Genius: words with notes", "@<a href=\"/1/one/la\">la</a></div>", "la"_s);
    addRow("Megalyrics: the older layout", sitePage("megalyrics", "older-song.html"), harbourLights());
    addRow("Megalyrics: no switch behind the song text: the older layout counts",
           R"(<div id="song_text"><div class="text">la</div></div><div class="text_inner">li</div>)", "li");
    addRow("Megalyrics: a song text without blocks: the older layout does not count",
           R"(<div id="song_text">la</div><div class="switch-block"><div class="text_inner">li</div>)", "");
    addRow("Megalyrics: tags stay", at(siteOf("Megalyrics").song, "a<br>b"_s), "a<br>b");
    addRow("AZLyrics: the first bare block", "<div id=\"x\">a</div><div>b<div>c</div>d</div>", "bc");
    addRow("AZLyrics: a list of links is no song", "<div><a href=\"/\">Home</a> by <a href=\"/a\">letters</a></div>",
           "");
    const QString span = "<span class=\"lyrics__content__ok\">%1</span>"_s;
    addRow("MusixMatch: a part that comes again is taken once, but not for one that begins like it",
           "<div class=\"mxm-lyrics\">%1%2%3%1</div>"_s.arg(span.arg("a"_s), span.arg(""_s), span.arg("ab"_s)), "aab");
}

void tst_SiteClients::tellJunkFromLyrics_data()
{
    addTextColumns("page");
    for (const char *name : {"LyricsFreak", "Genius", "Megalyrics", "AZLyrics", "DarkLyrics", "MusixMatch"})
        addRow(name, siteOf(name).song);
    addRow("Genius: newer", "<div class=\"Lyrics__Container\">@</div>");
    addRow("Megalyrics: older", "<div class=\"text_inner\">@</div>");
}

// As large as pages may be.
void tst_SiteClients::answerHostilePages_data()
{
    addTextColumns("page");
    const auto row = [](const char *name, const QString &begin, const char *piece, const QString &end = {}) {
        addRow(name, begin + repeated(QString::fromUtf8(piece)) + end);
    };
    const auto listed = [](const char *name, const char *piece) {
        addRow(name, at(siteOf(name).list, repeated(QString::fromUtf8(piece))));
    };
    const auto half = [](const char *piece) {
        return repeated(QString::fromUtf8(piece), hostileSize / 2);
    };
    for (const char *name : {"LyricsFreak", "Megalyrics", "AZLyrics", "MusixMatch"})
        row(name, {}, "<");
    const QString freak = "<div data-sorting-artist=\"\"><a href=\""_s;
    addRow("LyricsFreak: matching rows with half a link",
           repeated(freak, hostileSize * 17 / 20) + repeated("</div>"_s, hostileSize * 3 / 20));

    const QString container = "<div class=\"Lyrics__Container\">"_s;
    row("Genius: older blocks that are not closed", {}, "<div class=\"lyrics\">");
    row("Genius: one container of a long name", {}, "<div\nclass=\"Lyrics__Container\">", " "_s);
    addRow("Genius: elements in one another", container + half("<div ") + half("</div") + "</div"_s);
    row("Genius: references to references", container, "&#38;#38;", "</div>"_s);

    listed("Megalyrics: cells in one row", "<tr><td><a href=\"\">x</a></td>");
    listed("AZLyrics: links in one row", "<tr><td class><a href=\"\"><b>x</b><b>x</b>");
    listed("DarkLyrics: links without an end of the address", "<h2><a x href=\"x");

    row("AZLyrics: attributes in one line", {}, "setAttribute(\"x\",\"x\")");
    listed("MusixMatch: anchors in one item", "<a class=\"title\" href=\"/\">");
    listed("MusixMatch: items of other songs", "<li x><a class=\"title\" href=\"/\">x</a></li");
    row("MusixMatch: classes on lines of their own", {}, "<div class='a'\n");
    const QString block = "<div class=\"mxm-lyrics\">"_s;
    const QString span = "<span class=\"lyrics__content__ok\">"_s;
    row("MusixMatch: parts that are not closed", block, "<span class=\"lyrics__content__ok\">", "</div>"_s);
    addRow("MusixMatch: openings in one part", block + span + half("<span ") + half("</span") + "</span></div>"_s);
    QString parts;
    for (int i = 0; parts.size() < hostileSize; ++i)
        parts += "%1%2</span>"_s.arg(span).arg(i);
    addRow("MusixMatch: many parts", block + parts + "</div>"_s);
}

// The song stands among decoys, comments, adverts and tables of other things. The second search is for names with marks
// in them. For `heads` see headsOf().
void tst_SiteClients::askForTheirPages_data()
{
    addTextColumns("pages", "targets", "strange", "heads");
    const auto row = [](const char *name, const char *pages, const char *targets, const char *strange,
                        const char *heads) {
        addRow(name, pages, at(targets, "Tin%20Lanterns%20Harbour%20Lights"_s),
               at(strange, "C%26A%2FDC%3F%2050%25%20%2B%20%231%20%D0%B4%D0%B0"_s), heads);
    };
    row("LyricsFreak",
        "/search.php>301:/found /found=search.html /t/tin+lanterns/harbour+lights_20443.html>307:/2 /2=song.html",
        "/search.php?a=search&type=song&q=Harbour%20Lights /found /t/tin+lanterns/harbour+lights_20443.html /2",
        "/search.php?a=search&type=song&q=50%25%20%2B%20%231%20%D0%B4%D0%B0 /found", "R RU - RU R RU");
    row("Genius",
        "/api/search/multi>307:/found /found=search.json /Tin-lanterns-harbour-lights-lyrics>301:/2 /2=newer.html",
        "/api/search/multi?per_page=5&q=@ /found /Tin-lanterns-harbour-lights-lyrics /2",
        "/api/search/multi?per_page=5&q=@ /found", "- - - - - -");
    row("Megalyrics", "/search=search.html /song/%231-harbour-lights>301:/2 /2=song.html",
        "/search?utf8=%E2%9C%93&search=@ /song/%231-harbour-lights?v=2 /2", "/search?utf8=%E2%9C%93&search=@",
        "- - - -");
    row("AZLyrics", "/geo.js>307:/2 /2=geo.js /search.php=search.html /lyrics/tinlanterns/harbourlights.html=song.html",
        "/geo.js /2 /search.php?q=@&x%26y=7f3a%2B90%3Dc2 /lyrics/tinlanterns/harbourlights.html?a=1&b=2",
        "/geo.js /2 /search.php?q=@&x%26y=7f3a%2B90%3Dc2", "RU RU RU RU RU RU RU");
    row("DarkLyrics", "/search=search.html /lyrics/tinlanterns/tides.html>301:/2 /2=album.html",
        "/search?q=@ /lyrics/tinlanterns/tides.html /2", "/search?q=@", "U U U U");
    row("MusixMatch",
        "/search/Tin%20Lanterns%20Harbour%20Lights/tracks>301:/x/list /x/list=search.html "
        "/lyrics/Tin-Lanterns/100%25-Harbour%3F>307:/2 /2=track.html",
        "/search/@/tracks /x/list /lyrics/Tin-Lanterns/100%25-Harbour%3F /2", "/search/@/tracks", "U U U U U");
}

QTEST_GUILESS_MAIN(tst_SiteClients)
#include "tst_siteclients.moc"
