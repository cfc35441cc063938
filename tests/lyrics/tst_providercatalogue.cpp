// SPDX-License-Identifier: MIT
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

#include <QTest>

#include <functional>

using ReadPage = std::function<ProviderStep(const Page &)>;
Q_DECLARE_METATYPE(ReadPage)
using FindLink = SongLink (*)(const QString &page, const QString &artist, const QString &title);
Q_DECLARE_METATYPE(FindLink)

namespace {

ProviderStep readMusixMatch(const Page &page)
{
    const QString block = MusixMatchProvider::lyricsBlock(page.text);
    return block.isEmpty() ? ProviderStep::notUnderstood()
                           : MusixMatchProvider::lyricsOfBlock(block).value_or(ProviderStep::nothing());
}

} // namespace

class tst_ProviderCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void listsTheSitesInTheirOrder()
    {
        SiteRig rig({Endpoint::LyricsFreak, Endpoint::Genius, Endpoint::Megalyrics, Endpoint::AZLyrics,
                     Endpoint::DarkLyrics, Endpoint::MusixMatch});
        QStringList names;
        for (const auto &provider : makeProviders(rig.manager())) {
            names.append(provider->name());
            QVERIFY(provider->siteUrl().startsWith(rig.server().base()));
        }
        QCOMPARE(names.join(QLatin1Char(' ')), "LyricsFreak Genius Megalyrics AZLyrics DarkLyrics MusixMatch"_s);
    }

    void copiesEachSite()
    {
        const SiteRig rig({});
        for (const auto &provider : makeProviders(nullptr)) {
            QObject owner;
            const LyricsProvider *copy = provider->clone(&owner);
            QCOMPARE(copy->parent(), &owner);
            QCOMPARE(copy->metaObject(), provider->metaObject());
        }
    }

    // "@" is where the rows stand; `row` is one of another song, `changed` one that cannot be read.
    void tellsWhyThereIsNoSong_data()
    {
        QTest::addColumn<FindLink>("find");
        addTextColumns("page", "row", "changed");
        const auto azLyrics = [](const QString &page, const QString &artist, const QString &) {
            return AZLyricsProvider::songLink(page, artist);
        };
        addRow("LyricsFreak", FindLink(LyricsFreakProvider::songLink), "@",
               "<div data-sorting-artist=\"x\" data-sorting-song=\"x\"></div>",
               "<div data-sorting-artist=\"b\" data-sorting-song=\"a\"><a href=\"/1\"></a></div>");
        addRow("Genius", FindLink(GeniusProvider::songPath),
               R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[@]},{"type":"video"}]}})",
               R"({"type":"song","result":{"_type":"song","title":"x","path":"/1"}})", R"({"type":"song","hit":{}})");
        addRow("Megalyrics", FindLink(MegaLyricsProvider::songLink),
               "<div class=\"songs-table\"><table><tbody>@</tbody></table></div>",
               "<tr><td></td><td><a href=\"/1\">x</a></td><td>x</td><td></td><td></td></tr>", "<tr><td>x</td></tr>");
        addRow("AZLyrics", FindLink(azLyrics), " <table>@</table>",
               "<tr><td class=\"x\"><a href=\"/1\"><b>x</b></a><b>x</b></td></tr>", "<tr><td>x</td></tr>");
        addRow("DarkLyrics", FindLink(DarkLyricsProvider::songLink), "<div class=\"cntwrap\"><h3>Songs</h3>@</div>",
               "<h2><a x href=\"1\" x>x - x</a></h2>", "<h2>x</h2>");
        addRow("MusixMatch", FindLink(MusixMatchProvider::trackLink), "<ul class=\"tracks list thumb-list\">@</ul>",
               "<li x><a class=\"artist\">x</a><a class=\"title\" href=\"/1\">x</a></li>",
               "<li x><a href=\"/1\">x</a></li>");
    }

    void tellsWhyThereIsNoSong()
    {
        QFETCH(FindLink, find);
        QFETCH(QString, page);
        QFETCH(QString, row);
        QFETCH(QString, changed);
        const auto missingWith = [&](const QString &rows) {
            const SongLink link = find(QString(page).replace(QLatin1Char('@'), rows), "b"_s, "a"_s);
            return link ? -1 : static_cast<int>(link.missing());
        };
        QCOMPARE(missingWith(row), static_cast<int>(SongLink::Missing::NoSuchSong));
        QCOMPARE(missingWith(changed), static_cast<int>(SongLink::Missing::NotUnderstood));
        QCOMPARE(missingWith(QString()), static_cast<int>(SongLink::Missing::ListedNothing));
        const bool showsNoList = page == QLatin1String("@");
        QVERIFY(showsNoList || find("<html>"_s, "b"_s, "a"_s).missing() == SongLink::Missing::NotUnderstood);
    }

    // "@" is where the lyrics stand.
    void tellsJunkFromLyricsOnSongPages_data()
    {
        QTest::addColumn<ReadPage>("read");
        QTest::addColumn<QString>("page");
        addRow("LyricsFreak", ReadPage(LyricsFreakProvider::lyricsRequestFinished), "<div id=\"content\">@</div>");
        addRow("Genius, older", ReadPage(GeniusProvider::lyricsRequestFinished), "<div class=\"lyrics\">@</div>");
        addRow("Genius, newer", ReadPage(GeniusProvider::lyricsRequestFinished),
               "<div class=\"Lyrics__Container\">@</div>");
        addRow("Megalyrics, older", ReadPage(MegaLyricsProvider::lyricsRequestFinished),
               "<div class=\"text_inner\">@</div>");
        addRow("Megalyrics, newer", ReadPage(MegaLyricsProvider::lyricsRequestFinished),
               "<div id=\"song_text\"><div class=\"text\">@</div></div><div class=\"switch-block\">");
        addRow("AZLyrics", ReadPage(AZLyricsProvider::lyricsRequestFinished), "<div>@</div>");
        addRow("DarkLyrics", ReadPage(DarkLyricsProvider::lyricsRequestFinished),
               "<div class=\"cntwrap\"><h3><a name=\"7\">x</a></h3>@</div>");
        addRow("MusixMatch", ReadPage(readMusixMatch),
               "<div class=\"mxm-lyrics\"><script>ad()</script><span class=\"lyrics__content__ok\">@</span></div>");
    }

    void tellsJunkFromLyricsOnSongPages()
    {
        QFETCH(ReadPage, read);
        QFETCH(QString, page);
        const auto stepWith = [&](const char *lyrics) {
            const QString text = QString(page).replace(QLatin1Char('@'), QLatin1String(lyrics));
            return read({text, QUrl("http://127.0.0.1/album#7"_s)});
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
        QVERIFY2(read({"<html><p>la</p></html>"_s, {}}).meaning() == notUnderstood, "another page");
        QVERIFY2(stepWith("").meaning() == notUnderstood, "a page without words");
    }
};

QTEST_GUILESS_MAIN(tst_ProviderCatalogue)
#include "tst_providercatalogue.moc"
