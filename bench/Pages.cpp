// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "lyrics/providers/AZLyricsProvider.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "lyrics/providers/MegaLyricsProvider.h"

#include <algorithm>
#include <vector>

namespace {

// The largest page that is read, and one four times smaller.
constexpr int largest = 1024 * 1024;
constexpr int times = 4;

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

Page pageOf(const HostilePage &hostile, int size)
{
    return {hostile.opening + hostile.piece.repeated(size / hostile.piece.size()) + hostile.closing, {}};
}

// The best of three: what else the machine does only ever adds.
double bestSeconds(const std::function<void()> &work)
{
    return std::min({secondsOf(work), secondsOf(work), secondsOf(work)});
}

double readingTime(const HostilePage &hostile, const Page &page)
{
    return bestSeconds([&] {
        if (hostile.findsSomething(page))
            qFatal("%s: there is nothing to find", hostile.name);
    });
}

void printPage(const HostilePage &hostile)
{
    const Page page = pageOf(hostile, largest);
    const double copying = bestSeconds([&page] {
        if (page.text.toLower().isEmpty())
            qFatal("an empty page");
    });
    BenchTable::printRow(QString::fromUtf8(hostile.name), page.text.size(), readingTime(hostile, page), copying,
                         readingTime(hostile, pageOf(hostile, largest / times)), times);
}

} // namespace

void benchPages()
{
    for (const auto &pages : {lyricsFreakPages(), megalyricsPages(), azLyricsPages()})
        std::for_each(pages.begin(), pages.end(), printPage);
}
