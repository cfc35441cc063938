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
        QVERIFY2(!read({"<html><p>la</p></html>"_s, {}}).isUnderstood(), "another page");
    }
};

QTEST_GUILESS_MAIN(tst_ProviderCatalogue)
#include "tst_providercatalogue.moc"
