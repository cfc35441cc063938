// SPDX-License-Identifier: MIT
// Pages of lyrics sites: patterns must find what QRegExp finds, and no clean-up may crash or stand still.
#include "FuzzInput.h"
#include "lyrics/ChainScan.h"
#include "lyrics/JunkCheck.h"
#include "lyrics/LyricsText.h"
#include "lyrics/NestedElements.h"
#include "lyrics/PageBytes.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QRegExp>

namespace {

// QRegExp takes the square of the length.
constexpr int mostCompared = 200;

constexpr const char *patterns[] = {
    R"re(<div[^>]*id=["']content["'].*>(.*)</div>)re",
    R"re(<a[^>]*href="([^"]*)"[^>]*class="song")re",
    R"re(<tr>.*<td[^<]*class[^<]*>.*<a.*href="([^"]*)".*>.*<b>(.*)</b>.*<b>([^<]*)</b>.*</td></tr>)re",
    R"re(<div\s*id="native_roll">.*</div>)re",
    R"re(&#(\d+);)re",
    R"re(a(.*)b([^x]*)c(b*)a)re",
};
constexpr const char *words[] = {"<div ", "</div>",     "id=\"content\"",
                                 ">",     "<a href=\"", "\" class=\"song\"",
                                 "<tr>",  "<td ",       "class",
                                 "<b>",   "</b>",       "</td></tr>",
                                 "&#",    ";",          "<!--",
                                 "-->",   "<br>",       "&amp;",
                                 "%41",   "a",          "b",
                                 "c",     "x",          "id=\"native_roll\""};

void compare(const char *text, bool isShortest, const QString &page)
{
    const QString pattern = QString::fromLatin1(text);
    QRegExp expression(pattern);
    expression.setMinimal(isShortest);
    const int position = expression.indexIn(page);
    const auto matching = isShortest ? ChainPattern::Matching::Shortest : ChainPattern::Matching::Longest;
    const ChainPattern chain(pattern, matching);
    const auto match = ChainScan(chain, page).next();
    require(match.has_value() == (position >= 0));
    require(!match || (match->position == position && match->length == expression.matchedLength() &&
                       match->captures == expression.capturedTexts().mid(1)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const char *pattern = data.PickValueInArray(patterns);
    const bool isShortest = data.ConsumeBool();
    const QString page = QString::fromUtf8(withWords(data.ConsumeRemainingBytesAsString(), words));
    compare(pattern, isShortest, page.left(mostCompared));
    const QString lyrics = withoutBrokenCharacters(cleanLyrics(page));
    require(!lyrics.contains(QChar(QChar::Null)));
    static_cast<void>(isJunk(lyrics));
    static_cast<void>(decodePercentEscapes(page.toUtf8()));
    const NestedElements elements(page, QStringLiteral("div"));
    for (int at = page.indexOf(QLatin1String("<div")); at >= 0; at = page.indexOf(QLatin1String("<div"), at + 1)) {
        const int closing = elements.closingTag(at);
        require(closing < 0 || (closing > at && page.midRef(closing).startsWith(QLatin1String("</div"))));
    }
    return 0;
}
