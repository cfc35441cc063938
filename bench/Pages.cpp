// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "lyrics/JunkCheck.h"
#include "lyrics/LyricsText.h"
#include "lyrics/providers/AZLyricsProvider.h"
#include "lyrics/providers/DarkLyricsProvider.h"
#include "lyrics/providers/GeniusProvider.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "lyrics/providers/MegaLyricsProvider.h"
#include "lyrics/providers/MusixMatchProvider.h"

#include <algorithm>
#include <vector>

namespace {

// The largest page that is read, and one four times smaller.
constexpr int largest = 1024 * 1024;
constexpr int times = 4;
constexpr double mostTimes = 4.5;
// The window stands still meanwhile.
constexpr double mostMilliseconds = 200;

using ReadPage = std::function<bool(const Page &)>;

// A page that is `opening` and then `piece` again and again up to the wanted size, without anything to find.
struct HostilePage
{
    const char *name;
    QString opening;
    QString piece;
    QString closing;
    ReadPage findsSomething;
};

bool hasLyrics(const ProviderStep &step)
{
    return !step.lyrics().isEmpty();
}

std::vector<HostilePage> lyricsFreakPages()
{
    const auto search = [](const Page &page) {
        return LyricsFreakProvider::songLink(page.text, QStringLiteral("b"), QStringLiteral("a")).has_value();
    };
    const auto song = [](const Page &page) {
        return hasLyrics(LyricsFreakProvider::lyricsRequestFinished(page));
    };
    const QString row = QStringLiteral("<div data-sorting-artist=\"\" data-sorting-song=\"\">");
    return {
        {"LyricsFreak, rows that match, not closed", {}, row, {}, search},
        {"LyricsFreak, blocks not closed", {}, QStringLiteral("<div id=\"content\">"), {}, song},
    };
}

std::vector<HostilePage> megalyricsPages()
{
    const auto search = [](const Page &page) {
        return MegaLyricsProvider::songLink(page.text, QStringLiteral("b"), QStringLiteral("a")).has_value();
    };
    const auto song = [](const Page &page) {
        return hasLyrics(MegaLyricsProvider::lyricsRequestFinished(page));
    };
    const QString table = QStringLiteral("<div class=\"songs-table\"><table><tbody>");
    const QString end = QStringLiteral("</tr></tbody>");
    return {
        {"Megalyrics, rows of other songs", table,
         QStringLiteral("<tr><td><td><a href=\"\">x</a><td>x</td><td><td></tr>"), end, search},
        {"Megalyrics, cells of one row", table + QStringLiteral("<tr>"), QStringLiteral("<td><a href=\"\">x</a></td>"),
         end, search},
        {"Megalyrics, texts without a switch", {}, QStringLiteral("<div id=\"song_text\"></div>"), {}, song},
    };
}

std::vector<HostilePage> azLyricsPages()
{
    const auto script = [](const Page &page) {
        return !AZLyricsProvider::searchParameter(page.text).first.isEmpty();
    };
    const auto search = [](const Page &page) {
        return AZLyricsProvider::songLink(page.text, QStringLiteral("b")).has_value();
    };
    const auto song = [](const Page &page) {
        return hasLyrics(AZLyricsProvider::lyricsRequestFinished(page));
    };
    const QString table = QStringLiteral(" <table>");
    return {
        {"AZLyrics, other attributes in one line", {}, QStringLiteral("setAttribute(\"x\",\"x\")"), {}, script},
        {"AZLyrics, rows of other artists", table,
         QStringLiteral("<tr><td class><a href=\"\"><b>s</b><b>x</b></td></tr>"), QStringLiteral("</table>"), search},
        {"AZLyrics, links of one row", table + QStringLiteral("<tr>"),
         QStringLiteral("<td class><a href=\"\"><b>x</b><b>x</b>"), QStringLiteral("</td></tr></table>"), search},
        {"AZLyrics, blocks not closed", {}, QStringLiteral("<div>"), {}, song},
    };
}

std::vector<HostilePage> geniusPages()
{
    const auto search = [](const Page &page) {
        return GeniusProvider::songPath(page.text, QStringLiteral("b"), QStringLiteral("a")).has_value();
    };
    const auto song = [](const Page &page) {
        return hasLyrics(GeniusProvider::lyricsRequestFinished(page));
    };
    const QString answer = QStringLiteral(R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[)");
    const QString container = QStringLiteral("<div class=\"Lyrics__Container\">");
    return {
        {"Genius, hits without an address", answer, QStringLiteral(R"({"type":"song","result":{"_type":"song"}},)"),
         QStringLiteral("0]}]}}"), search},
        {"Genius, older blocks not closed", {}, QStringLiteral("<div class=\"lyrics\">"), {}, song},
        {"Genius, containers not closed", {}, container, {}, song},
        {"Genius, empty containers", {}, container + QStringLiteral("</div>"), {}, song},
    };
}

std::vector<HostilePage> darkLyricsPages()
{
    const auto search = [](const Page &page) {
        return DarkLyricsProvider::songLink(page.text, QStringLiteral("b"), QStringLiteral("a")).has_value();
    };
    const auto song = [](const Page &page) {
        return hasLyrics(DarkLyricsProvider::lyricsRequestFinished(page));
    };
    const QString content = QStringLiteral("<div class='cntwrap'><h3>Songs:</h3>");
    const QString end = QStringLiteral("</div>");
    return {
        {"DarkLyrics, links to other songs", content, QStringLiteral("<h2><a x href=\"x\" x>x</a>"), end, search},
        {"DarkLyrics, addresses without an end", content, QStringLiteral("<h2><a x href=\"x"), end, search},
        {"DarkLyrics, headings", content, QStringLiteral("<h3>x</h3>"), end, song},
        {"DarkLyrics, wrappers not closed", {}, QStringLiteral("<div class='cntwrap'>"), {}, song},
    };
}

std::vector<HostilePage> musixMatchPages()
{
    const auto search = [](const Page &page) {
        return MusixMatchProvider::trackLink(page.text, QStringLiteral("b"), QStringLiteral("a")).has_value();
    };
    const auto song = [](const Page &page) {
        const auto step = MusixMatchProvider::lyricsOfBlock(MusixMatchProvider::lyricsBlock(page.text));
        return step && hasLyrics(*step);
    };
    const QString list = QStringLiteral("<ul class=\"tracks list thumb-list\">");
    const QString block = QStringLiteral("<div class=\"mxm-lyrics\">");
    const QString span = QStringLiteral("<span class=\"lyrics__content__ok\">");
    return {
        {"MusixMatch, other songs", list, QStringLiteral("<li x><a class=\"title\" href=\"/\">x</a></li>"),
         QStringLiteral("</ul>"), search},
        {"MusixMatch, anchors of one item", list + QStringLiteral("<li x>"),
         QStringLiteral("<a class=\"title\" href=\"/\">"), QStringLiteral("</li></ul>"), search},
        {"MusixMatch, parts not closed", block, span, QStringLiteral("</div>"), song},
        {"MusixMatch, blocks not closed", {}, block, {}, song},
    };
}

// What the frame of all clients does to each page, and to what a client takes for lyrics: with an ordinary page, and
// with pages of what has to be removed or decoded.
std::vector<HostilePage> cleaningPages()
{
    const auto clean = [](const Page &page) {
        const QString decoded = QString::fromUtf8(decodePercentEscapes(page.text.toUtf8()));
        const QString lyrics = withoutBrokenCharacters(cleanLyrics(withoutScriptsAndStyles(decoded)));
        return !isJunk(lyrics, decoded) && lyrics.size() == page.text.size();
    };
    return {
        {"clean a page of lyrics", {}, QStringLiteral("A line &amp; <i>a%20word</i> nobody sang<br />\n"), {}, clean},
        {"clean a page of breaks", {}, QStringLiteral("<br>"), {}, clean},
        {"clean a page of entities", {}, QStringLiteral("&#38;#38;"), {}, clean},
        {"clean a page of tags that do not end", {}, QStringLiteral("<b"), {}, clean},
        {"clean a page of scripts", {}, QStringLiteral("<script></style>"), {}, clean},
        {"clean a page of escapes", {}, QStringLiteral("%25"), {}, clean},
    };
}

Page pageOf(const HostilePage &hostile, int size)
{
    return {hostile.opening + hostile.piece.repeated(size / hostile.piece.size()) + hostile.closing, {}};
}

void readPage(const HostilePage &hostile, const Page &page)
{
    if (hostile.findsSomething(page))
        qFatal("%s: there is nothing to find", hostile.name);
}

// The best of nine rounds, in turns: reading a page waits for nothing, and what else the machine does only adds.
void printPage(const HostilePage &hostile)
{
    const Page page = pageOf(hostile, largest);
    const Page smaller = pageOf(hostile, largest / times);
    std::vector<double> ofPage;
    std::vector<double> ofSmaller;
    while (ofPage.size() < 9) {
        ofSmaller.push_back(processorSecondsOf([&] { readPage(hostile, smaller); }));
        ofPage.push_back(processorSecondsOf([&] { readPage(hostile, page); }));
    }
    BenchTable::printRow(QStringLiteral("%1 / 256 KiB of it").arg(QLatin1String(hostile.name)), largest,
                         *std::min_element(ofPage.begin(), ofPage.end()),
                         *std::min_element(ofSmaller.begin(), ofSmaller.end()), 0, 0, {mostTimes, 0, mostMilliseconds});
}

} // namespace

void benchPages()
{
    for (const auto &pages : {cleaningPages(), lyricsFreakPages(), geniusPages(), megalyricsPages(), azLyricsPages(),
                              darkLyricsPages(), musixMatchPages()})
        std::for_each(pages.begin(), pages.end(), printPage);
}
