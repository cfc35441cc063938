// SPDX-License-Identifier: MIT
#include "lyrics/providers/LinkList.h"

#include "lyrics/ChainScan.h"
#include "lyrics/LyricsText.h"

#include <algorithm>

namespace {

// A list may have words between its links, such as "by"; of lyrics, hardly a line is a link.
constexpr int lettersForOneOutside = 5;

auto lettersIn(const QString &markup)
{
    const QString text = stripTags(markup);
    return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

} // namespace

bool isLinkList(const QString &markup, const ChainPattern &link)
{
    const auto letters = lettersIn(markup);
    return letters > 0 && lettersIn(withMatchesReplaced(markup, link, QString())) * lettersForOneOutside < letters;
}
