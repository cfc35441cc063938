// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace tags {

// The number of a track or a disc, and of how many; a total of 0 is not known.
struct NumberPair
{
    int number = 0;
    int total = 0;
};

// Reads "3", "3/9" or "3\9", with any spaces; nothing for any other text.
std::optional<NumberPair> parseNumberPair(const QString &text);

// "3/9", or "3" without a total. Numbers below 1 are left out, so the text may be empty.
QString numberPairText(const NumberPair &pair);

} // namespace tags
