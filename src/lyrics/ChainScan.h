// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ChainCaptures.h"
#include "lyrics/ChainPattern.h"

#include <QStringList>

#include <map>
#include <optional>
#include <vector>

// One match of a ChainPattern: positions and lengths in UTF-16 units of the text.
struct ChainMatch
{
    int position = 0;
    int length = 0;
    // What the groups captured, in their order.
    QStringList captures;

    [[nodiscard]] int end() const { return position + length; }
};

// All matches of one pattern in one text. The work is done once, at construction, in time that grows in step with the
// text times the pieces of the pattern; asking for the next match is cheap.
//
// It goes from the last piece back to the first and keeps, for each place where a piece stands, where a match that
// goes on from there ends, if it does. Since later places never end earlier, one look at the next piece's places
// suffices.
class ChainScan
{
public:
    // The pattern must outlive it: copying one costs more than scanning a short text.
    ChainScan(const ChainPattern &pattern, QString text);
    ChainScan(ChainPattern &&pattern, QString text) = delete;

    // The first match that begins at `from` or behind it.
    [[nodiscard]] std::optional<ChainMatch> next(int from = 0) const;

private:
    // Positions of the pieces of plain characters.
    using KnownPlaces = std::map<QString, std::vector<int>>;

    [[nodiscard]] ChainSpots spotsOf(std::size_t link, KnownPlaces &known) const;
    [[nodiscard]] ChainSpots lastSpots(const std::vector<int> &places) const;
    [[nodiscard]] ChainSpots viableSpots(std::size_t link, const std::vector<int> &places) const;

    const ChainPattern &m_pattern;
    QString m_text;
    // For each piece, where it stands and the rest of the pattern can be matched from there.
    std::vector<ChainSpots> m_spots;
};

// The text with `replacement` in place of every match.
[[nodiscard]] QString withMatchesReplaced(const QString &text, const ChainPattern &pattern, const QString &replacement);

// The first capture of the first match.
[[nodiscard]] std::optional<QString> firstCapture(const ChainPattern &pattern, const QString &text);
