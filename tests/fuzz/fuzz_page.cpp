// SPDX-License-Identifier: MIT
// Pages of lyrics sites: patterns must find what QRegExp finds, and no clean-up may crash or stand still.
#include "lyrics/ChainScan.h"
#include "lyrics/JunkCheck.h"
#include "lyrics/LyricsText.h"
#include "lyrics/NestedElements.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QRegExp>

#include <array>

namespace {

using Matching = ChainPattern::Matching;

// QRegExp takes the square of the length.
constexpr int mostCompared = 200;

constexpr std::array patterns{
    R"re(<div[^>]*id=["']content["'].*>(.*)</div>)re",
    R"re(<a[^>]*href="([^"]*)"[^>]*class="song")re",
    R"re(<tr>.*<td[^<]*class[^<]*>.*<a.*href="([^"]*)".*>.*<b>(.*)</b>.*<b>([^<]*)</b>.*</td></tr>)re",
    R"re(<div\s*id="native_roll">.*</div>)re",
    R"re(&#(\d+);)re",
    R"re(a(.*)b([^x]*)c(b*)a)re",
};

void compare(const char *text, Matching matching, const QString &page)
{
    const QString pattern = QString::fromLatin1(text);
    QRegExp expression(pattern);
    expression.setMinimal(matching == Matching::Shortest);
    const int position = expression.indexIn(page);
    const ChainPattern chain(pattern, matching);
    const auto match = ChainScan(chain, page).next();
    if (match.has_value() != (position >= 0))
        std::abort();
    if (match && (match->position != position || match->length != expression.matchedLength() ||
                  match->captures != expression.capturedTexts().mid(1)))
        std::abort();
}

// Words that the patterns ask for are rare in random bytes: one byte stands for each.
QString pageOf(FuzzedDataProvider &data)
{
    constexpr std::array words{"<div ", "</div>",     "id=\"content\"",
                               ">",     "<a href=\"", "\" class=\"song\"",
                               "<tr>",  "<td ",       "class",
                               "<b>",   "</b>",       "</td></tr>",
                               "&#",    ";",          "<!--",
                               "-->",   "<br>",       "&amp;",
                               "%41",   "a",          "b",
                               "c",     "x",          "id=\"native_roll\""};
    QByteArray page;
    while (data.remaining_bytes() > 0) {
        const auto byte = data.ConsumeIntegral<quint8>();
        page += byte < words.size() ? QByteArray(words[byte]) : QByteArray(1, static_cast<char>(byte));
    }
    return QString::fromUtf8(page);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const char *pattern = data.PickValueInArray(patterns);
    const Matching matching = data.ConsumeBool() ? Matching::Shortest : Matching::Longest;
    const QString page = pageOf(data);
    compare(pattern, matching, page.left(mostCompared));
    const QString lyrics = withoutBrokenCharacters(cleanLyrics(page));
    if (lyrics.contains(QChar(QChar::Null)))
        std::abort();
    static_cast<void>(isJunk(lyrics));
    static_cast<void>(decodePercentEscapes(page.toUtf8()));
    const NestedElements elements(page, QStringLiteral("div"));
    for (int at = page.indexOf(QLatin1String("<div")); at >= 0; at = page.indexOf(QLatin1String("<div"), at + 1)) {
        const int closing = elements.closingTag(at);
        if (closing >= 0 && (closing <= at || !page.midRef(closing).startsWith(QLatin1String("</div"))))
            std::abort();
    }
    return 0;
}
