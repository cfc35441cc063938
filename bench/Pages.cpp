// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "GivenPages.h"
#include "Table.h"

#include "lyrics/JunkCheck.h"
#include "lyrics/LastfmTagCorrector.h"
#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsText.h"
#include "lyrics/NamedCharacters.h"
#include "lyrics/PageBytes.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "soak/LyricsSites.h"

#include <memory>
#include <vector>

namespace {

// The largest page that is read, and one four times smaller.
constexpr int largest = 1024 * 1024;
// The same of an answer of the corrector.
constexpr int largestAnswer = 64 * 1024;
constexpr int times = 4;
constexpr double mostTimes = 4.5;
// The window stands still meanwhile.
constexpr double mostMilliseconds = 200;

// The sites in their order.
enum Site { LyricsFreak, Genius, Megalyrics, AZLyrics, DarkLyrics, MusixMatch };

// A page that is `opening` and then `piece` again and again up to the wanted size, without anything to find.
struct LargePage
{
    const char *name;
    QString opening;
    QString piece;
    QString closing;

    [[nodiscard]] QString text(int size) const
    {
        return opening + piece.repeated((size - opening.size() - closing.size()) / piece.size()) + closing;
    }
};

// What a site could send as its answer to the request of this number in a search, from 0.
struct HostilePage
{
    Site site;
    int request;
    LargePage page;
};

// What the frame of all clients does to each page, and to what a client takes for lyrics: with an ordinary page, and
// with pages of what has to be removed or decoded.
std::vector<LargePage> cleaningPages()
{
    return {
        {"clean a page of lyrics", {}, QStringLiteral("A line &amp; <i>a%20word</i> nobody sang<br />\n"), {}},
        {"clean a page of breaks", {}, QStringLiteral("<br>"), {}},
        {"clean a page of entities", {}, QStringLiteral("&#38;#38;"), {}},
        {"clean a page of tags that do not end", {}, QStringLiteral("<b"), {}},
        {"clean a page of scripts", {}, QStringLiteral("<script></style>"), {}},
        {"clean a page of escapes", {}, QStringLiteral("%25"), {}},
        {"clean a page of comments", {}, QStringLiteral("<!--<script>-->"), {}},
        {"clean a page of names of characters", {}, QStringLiteral("&eacute;"), {}},
    };
}

// An answer of the corrector with far too many entries.
LargePage correctorAnswer()
{
    return {"Last.fm, tracks without names", QStringLiteral("<lfm><results><trackmatches>"), QStringLiteral("<track/>"),
            QStringLiteral("</trackmatches></results></lfm>")};
}

void clean(const QString &page)
{
    const QString decoded = QString::fromUtf8(decodePercentEscapes(pageInUtf8(page.toUtf8(), {})));
    const QString lyrics = withoutBrokenCharacters(withNamedCharacters(cleanLyrics(withoutScriptsAndStyles(decoded))));
    if (!isJunk(lyrics, decoded) && lyrics.size() == page.size())
        qFatal("nothing was cleaned");
}

std::vector<HostilePage> hostilePages()
{
    const QString megaTable = QStringLiteral("<div class=\"songs-table\"><table><tbody>");
    const QString megaEnd = QStringLiteral("</tr></tbody>");
    const QString azTable = QStringLiteral(" <table>");
    const QString answer = QStringLiteral(R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[)");
    const QString container = QStringLiteral("<div class=\"Lyrics__Container\">");
    const QString content = QStringLiteral("<div class='cntwrap'><h3>Songs:</h3>");
    const QString divEnd = QStringLiteral("</div>");
    const QString list = QStringLiteral("<ul class=\"tracks list thumb-list\">");
    const QString block = QStringLiteral("<div class=\"mxm-lyrics\">");
    return {
        {LyricsFreak,
         0,
         {"LyricsFreak, rows that match, not closed",
          {},
          QStringLiteral("<div data-sorting-artist=\"\" data-sorting-song=\"\">"),
          {}}},
        {LyricsFreak, 1, {"LyricsFreak, blocks not closed", {}, QStringLiteral("<div id=\"content\">"), {}}},
        {Genius,
         0,
         {"Genius, hits without an address", answer, QStringLiteral(R"({"type":"song","result":{"_type":"song"}},)"),
          QStringLiteral("0]}]}}")}},
        {Genius, 1, {"Genius, older blocks not closed", {}, QStringLiteral("<div class=\"lyrics\">"), {}}},
        {Genius, 1, {"Genius, containers not closed", {}, container, {}}},
        {Genius, 1, {"Genius, empty containers", {}, container + QStringLiteral("</div>"), {}}},
        {Megalyrics,
         0,
         {"Megalyrics, rows of other songs", megaTable,
          QStringLiteral("<tr><td><td><a href=\"\">x</a><td>x</td><td><td></tr>"), megaEnd}},
        {Megalyrics,
         0,
         {"Megalyrics, cells of one row", megaTable + QStringLiteral("<tr>"),
          QStringLiteral("<td><a href=\"\">x</a></td>"), megaEnd}},
        {Megalyrics, 1, {"Megalyrics, texts without a switch", {}, QStringLiteral("<div id=\"song_text\"></div>"), {}}},
        {AZLyrics, 0, {"AZLyrics, other attributes in one line", {}, QStringLiteral("setAttribute(\"x\",\"x\")"), {}}},
        {AZLyrics,
         1,
         {"AZLyrics, rows of other artists", azTable,
          QStringLiteral("<tr><td class><a href=\"\"><b>s</b><b>x</b></td></tr>"), QStringLiteral("</table>")}},
        {AZLyrics,
         1,
         {"AZLyrics, links of one row", azTable + QStringLiteral("<tr>"),
          QStringLiteral("<td class><a href=\"\"><b>x</b><b>x</b>"), QStringLiteral("</td></tr></table>")}},
        {AZLyrics, 2, {"AZLyrics, blocks not closed", {}, QStringLiteral("<div>"), {}}},
        {DarkLyrics,
         0,
         {"DarkLyrics, links to other songs", content, QStringLiteral("<h2><a x href=\"x\" x>x</a>"), divEnd}},
        {DarkLyrics, 0, {"DarkLyrics, addresses without an end", content, QStringLiteral("<h2><a x href=\"x"), divEnd}},
        {DarkLyrics, 1, {"DarkLyrics, headings", content, QStringLiteral("<h3>x</h3>"), divEnd}},
        {DarkLyrics, 1, {"DarkLyrics, wrappers not closed", {}, QStringLiteral("<div class='cntwrap'>"), {}}},
        {MusixMatch,
         0,
         {"MusixMatch, other songs", list, QStringLiteral("<li x><a class=\"title\" href=\"/\">x</a></li>"),
          QStringLiteral("</ul>")}},
        {MusixMatch,
         0,
         {"MusixMatch, anchors of one item", list + QStringLiteral("<li x>"),
          QStringLiteral("<a class=\"title\" href=\"/\">"), QStringLiteral("</li></ul>")}},
        {MusixMatch,
         1,
         {"MusixMatch, parts not closed", block, QStringLiteral("<span class=\"lyrics__content__ok\">"), divEnd}},
        {MusixMatch, 1, {"MusixMatch, blocks not closed", {}, block, {}}},
    };
}

// The client of the site from the delivered bytes of the page to what it makes of them, in seconds. Before that page
// the site answers as it should, and after it with nothing.
double secondsFor(const HostilePage &hostile, const QByteArray &page)
{
    int requests = 0;
    GivenPages manager([&](const QUrl &url) {
        const QByteArray target = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
        const int request = requests++;
        if (request < hostile.request)
            return LyricsSites::pageFor(hostile.site, target, url.adjusted(QUrl::RemovePath).toString());
        return request == hostile.request ? page : QByteArray();
    });
    const std::unique_ptr<LyricsProvider> client = std::move(makeProviders(&manager).at(hostile.site));
    bool isDone = false;
    QObject::connect(client.get(), &LyricsProvider::finished, &manager, [&](const QString &lyrics) {
        isDone = lyrics.isEmpty() && requests > hostile.request;
        if (!isDone)
            qFatal("%s: there is nothing to find", hostile.page.name);
    });
    // A list is compared with the longest title there may be; to get further, the title must be that of a song.
    const QString title = hostile.request == 0 ? QString(longestName, QLatin1Char('x')) : QStringLiteral("Song 7");
    if (!client->search(QStringLiteral("Artist"), title))
        qFatal("%s: nothing is searched for", hostile.page.name);
    turnUntil([&isDone] { return isDone; });
    return manager.seconds();
}

// `secondsOf` a page of so many bytes; it waits for nothing.
void printPage(const LargePage &page, const std::function<double(const QString &)> &secondsOfPage, int size = largest)
{
    const QString large = page.text(size);
    const QString smaller = page.text(size / times);
    const Pair pair = medianRound(
        15, [&] { return secondsOfPage(large); }, [&] { return secondsOfPage(smaller); });
    BenchTable::printRow(QStringLiteral("%1 / %2 KiB of it").arg(QLatin1String(page.name)).arg(size / times / 1024),
                         size, pair.work, pair.reference, 0, 0, {mostTimes, 0, mostMilliseconds});
}

} // namespace

void benchPages()
{
    for (const LargePage &page : cleaningPages())
        printPage(page, [](const QString &text) { return processorSecondsOf([&text] { clean(text); }); });
    const auto readAnswer = [](const QString &text) {
        const QByteArray answer = text.toUtf8();
        return processorSecondsOf([&answer] { static_cast<void>(LastfmTagCorrector::foundTracks(answer)); });
    };
    printPage(correctorAnswer(), readAnswer, largestAnswer);
    for (const HostilePage &hostile : hostilePages())
        printPage(hostile.page, [&hostile](const QString &text) { return secondsFor(hostile, text.toUtf8()); });
}
