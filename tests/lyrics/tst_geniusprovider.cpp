// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "SitePages.h"
#include "SiteRig.h"
#include "lyrics/LyricsText.h"
#include "lyrics/providers/GeniusProvider.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QTest>

namespace {

// With double quotation marks for the single ones.
QString json(const char *text)
{
    return QString::fromLatin1(text).replace(QLatin1Char('\''), QLatin1Char('"'));
}

QString searchAnswer()
{
    QStringList decoys;
    for (int i = 0; i < 120; ++i)
        decoys << json("{'type':'%1','hits':[{'type':'song','result':{'_type':'song','path':'/decoy-%2','titl"
                       "e':'Harbour Lights','stats':{'hot':false,'views':%2},'primary_artist':{'name':'Tin La"
                       "nterns','url':'https://x.invalid/%2'}}}]}")
                      .arg(i % 2 == 0 ? "album"_s : "Song"_s)
                      .arg(i);
    return sitePage("genius", "search.json").replace("\"@DECOYS@\""_s, decoys.join(QLatin1Char(',')));
}

// Containers are joined by CR LF.
QString newerLyrics()
{
    return harbourLights().replace("\n\n"_s, "\r\n"_s);
}

// The same as it is written with the expressions themselves.
namespace plain {

QRegExp minimal(const QString &pattern)
{
    QRegExp expression(pattern);
    expression.setMinimal(true);
    return expression;
}

QString elementAt(const QString &page, int start)
{
    const QString rest = page.mid(start);
    const QString name = rest.mid(1, std::max(0, rest.indexOf(QLatin1Char(' '), 1) - 1));
    if (name.isEmpty())
        return {};
    QRegExp tag("<%1[^>]+/>|<%1|</%1"_s.arg(QRegExp::escape(name)));
    int depth = 0;
    for (int at = tag.indexIn(rest); at >= 0; at = tag.indexIn(rest, at + tag.matchedLength())) {
        if (!tag.cap(0).endsWith("/>"_s))
            depth += tag.cap(0).startsWith("</"_s) ? -1 : 1;
        if (depth == 0)
            return rest.left(at + tag.matchedLength());
    }
    return {};
}

QString lyricsOfContainer(QString text)
{
    text.replace(QRegExp("<br/?>"_s), "\n"_s);
    text.replace(QRegularExpression("<div.*?</div>"_s), "\n"_s);
    text = stripTags(text).trimmed();
    return decodeHtmlEntities(decodeDecimalReferences(text)).remove("</div"_s);
}

QString lyricsOfPage(const QString &page)
{
    QRegExp older = minimal("<div class=\"lyrics\"*>(.*)</div>"_s);
    if (older.indexIn(page) >= 0) {
        QString block = older.cap(1).remove(QLatin1Char('\n')).remove(QLatin1Char('\r'));
        return stripTags(block.replace(QRegExp("<br/?>"_s), "\n"_s)).trimmed();
    }
    QStringList texts;
    QRegExp container = minimal("<div[^>]*class=\"Lyrics__Container.*>"_s);
    for (int at = container.indexIn(page); at >= 0;) {
        const QString element = elementAt(page, at);
        if (element.isEmpty())
            break;
        texts << lyricsOfContainer(element);
        at = container.indexIn(page, at + element.size());
    }
    texts.removeAll(QString());
    return texts.join("\r\n"_s);
}

} // namespace plain

QString lyricsOf(const QString &page)
{
    return GeniusProvider::lyricsRequestFinished({page, {}}).lyrics();
}

} // namespace

class tst_GeniusProvider : public QObject
{
    Q_OBJECT

private slots:
    void findsTheSong_data()
    {
        addTextColumns("artist", "title", "path");
        addRow("decoys of other kinds, other sections and other addresses before it", "Tin Lanterns", "Harbour Lights",
               "/Tin-lanterns-harbour-lights-lyrics");
        addRow("a slash is no space", "Moth Lamp", "Harbour Lights", "");
        addRow("quotation marks do not count, entities are decoded", "Moth Lamp", "Dont Dim",
               "/Moth-lamp-dont-dim-lyrics");
        addRow("Cyrillic in any case", "ПАРУСА", "огни Гавани", "/Parusa-ogni-gavani-lyrics");
        addRow("right to left, and a percent sign", "מגדלור", "נמל קטן", "/Migdalor-namal-katan-100%-lyrics");
    }

    void findsTheSong()
    {
        QFETCH(QString, artist);
        QFETCH(QString, title);
        const QString answer = searchAnswer();
        QVERIFY(answer.size() > 20000 && answer.size() < 60000);
        QTEST(GeniusProvider::songPath(answer, artist, title).value_or(QString()), "path");
    }

    void understandsAnswers_data()
    {
        addTextColumns("answer", "path");
        const QString song =
            json("{'type':'song','result':{'_type':'song','title':'a','path':'/1','primary_artist':{'name':'b'}}}");
        const QString answer = json("{'meta':%1,'response':{'sections':[{'type':'top_hit','hits':[%2]}]}}");
        addRow("a top hit", answer.arg(json("{'status':200}"), song), "/1");
        addRow("the service says that it failed", answer.arg(json("{'status':404}"), song), "");
        addRow("a status that is text", answer.arg(json("{'status':'200'}"), song), "/1");
        addRow("hits of the wrong shape before it",
               answer.arg(json("{'status':200}"), json("null,7,[],{'type':'song','result':[]},") + song), "/1");
        addRow("names that are missing resemble everything",
               answer.arg(json("{'status':200}"), json("{'type':'song','result':{'_type':'song','path':'/2'}}")), "/2");
    }

    void understandsAnswers()
    {
        QFETCH(QString, answer);
        const auto path = GeniusProvider::songPath(answer, "b"_s, "a"_s);
        QTEST(path.value_or(QString()), "path");
    }

    void findsTheLyrics_data()
    {
        addTextColumns("page", "lyrics");
        addRow("older: a whole page", sitePage("genius", "older.html"), harbourLights());
        addRow("older: breaks with a blank are tags, entities stay",
               "<div class=\"lyrics\">a<br />b<br>\r\nc&amp;d</div>", "ab\nc&amp;d");
        addRow("older: the quotation mark may be missing or come twice",
               "<div class=\"lyrics\"\">a</div><div class=\"lyrics>b</div>", "a");
        addRow("older: an empty block hides the newer layout", "<div class=\"lyrics\"></div>@la</div>", "");
        addRow("newer: a whole page, a header block in the container", sitePage("genius", "newer.html"), newerLyrics());
        addRow("newer: an inner element is counted", "@a<div>\nb</div>\nc</div>d", "a\nb\nc");
        addRow("newer: a self-closing element is not", "@a<div class=\"x\" />b</div>c</div>", "ab");
        addRow("newer: empty containers leave no line", "@</div>@a</div>@ </div>@b</div>", "a\r\nb");
        addRow("newer: an unclosed container ends the walk", "@a</div>@b", "a");
        addRow("newer: a container that is closed already", "<div class=\"Lyrics__Container\" />x@a</div>", "a");
        addRow("newer: a name that goes on to the next space is never closed",
               "<div\nclass=\"Lyrics__Container x\">a</div>", "");
        addRow("newer: references of any length, through others too",
               "@&#0000000065;&#38;#66;&#9;&#x43;&amp;lt;&#1114112;</div>", "AB\tC<\ufffd");
    }

    void findsTheLyrics()
    {
        QFETCH(QString, page);
        page.replace(QLatin1Char('@'), "<div class=\"Lyrics__Container-sc\">"_s);
        QTEST(lyricsOf(page), "lyrics");
    }

    void readsLikeThePlainExpressions()
    {
        for (const char *name : {"older.html", "newer.html"}) {
            const QString page = sitePage("genius", name);
            QVERIFY(page.size() > 20000 && page.size() < 60000);
            QCOMPARE(lyricsOf(page), plain::lyricsOfPage(page));
        }
        const QString pieces =
            "<div~class=\"Lyrics__Container </div </div> </div> <div~ <div /> > <br> <br/> x \n \r ~ "
            "class=\"Lyrics__Container &#65; &#38; amp; #66; <div~class=\"Lyrics__Container\"> </div> "
            "/ &lt; <b>"_s;
        compareOnRandomTexts(pieces, lyricsOf, plain::lyricsOfPage);
        compareOnRandomTexts(pieces + " <div~class=\"lyrics\">"_s, lyricsOf, plain::lyricsOfPage);
    }

    void answersHostilePages_data()
    {
        QTest::addColumn<QString>("page");
        const QString container = "<div class=\"Lyrics__Container\">"_s;
        const QString hit = json("{'type':'song','result':{'_type':'song'}},");
        const QString answer = json("{'meta':{'status':200},'response':{'sections':[{'type':'song','hits':");
        addRow("older blocks that are not closed", repeated("<div class=\"lyrics\">"));
        addRow("one container that is not closed, of a long name",
               repeated("<div\nclass=\"Lyrics__Container\">") + QLatin1Char(' '));
        addRow("elements in one another",
               container + repeated("<div ", hostileSize / 2) + repeated("</div", hostileSize / 2) + "</div"_s);
        addRow("references to references", container + repeated("&#38;#38;") + "</div>"_s);
        addRow("objects in one another", repeated("{\"meta\":"));
        addRow("hits without an address", answer + QLatin1Char('[') + repeated(hit) + "0]}]}}"_s);
    }

    void answersHostilePages()
    {
        QFETCH(QString, page);
        QVERIFY(!GeniusProvider::songPath(page, "b"_s, "a"_s));
        QVERIFY(lyricsOf(page).size() < page.size());
    }

    void asksForTheSearchAndThenForTheSong()
    {
        SiteRig rig({Endpoint::Genius});
        rig.server().route("/api/search/multi"_s, LoopbackResponse::redirect(307, "/found"));
        rig.page("/found", searchAnswer());
        rig.server().route("/Tin-lanterns-harbour-lights-lyrics"_s, LoopbackResponse::redirect(301, "/song"));
        rig.page("/song", sitePage("genius", "newer.html"));
        const SiteAnswer found = rig.search<GeniusProvider>("Tin Lanterns feat. Moth", "Harbour Lights (Official)");
        QCOMPARE(GeniusProvider(rig.manager()).siteUrl(), rig.server().base() + QLatin1Char('/'));
        QCOMPARE(found.lyrics, newerLyrics());
        const SiteAnswer missing = rig.search<GeniusProvider>("AC/DC", "50% + C&A да");
        QVERIFY(missing.lyrics.isEmpty() && missing.errorString.isEmpty());
        const QByteArray search = "/api/search/multi?per_page=5&q=";
        QCOMPARE(rig.targets(), (QList<QByteArray>{search + "Tin%20Lanterns%20Harbour%20Lights", "/found",
                                                   "/Tin-lanterns-harbour-lights-lyrics", "/song",
                                                   search + "AC%2FDC%2050%25%20%2B%20C%26A%20%D0%B4%D0%B0", "/found"}));
        for (const LoopbackRequest &request : rig.server().requests())
            QVERIFY(request.header("Referer").isNull() && !request.header("User-Agent").contains("Chrome"));
    }

    // On the site itself, however it begins.
    void asksForPathsAsTheyStand()
    {
        SiteRig rig({Endpoint::Genius});
        const QString answer =
            json("{'meta':{'status':200},'response':{'sections':[{'type':'song','hits':[{'type':'song',"
                 "'result':{'_type':'song','path':'@'}}]}]}}");
        rig.server().routeOthers(
            [](const LoopbackRequest &) { return LoopbackResponse::page("<div class=\"lyrics\">100%41</div>"); });
        for (const char *path : {"/a%20b%2F", "//other.invalid/a", "/a?b=%26"}) {
            rig.page("/api/search/multi", QString(answer).replace(QLatin1Char('@'), QLatin1String(path)));
            const SiteAnswer found = rig.search<GeniusProvider>("b", "a");
            QCOMPARE(found.lyrics, "100%41"_s);
            QCOMPARE(rig.targets().last(), QByteArray(path).replace("//", "/"));
        }
    }
};

QTEST_GUILESS_MAIN(tst_GeniusProvider)
#include "tst_geniusprovider.moc"
