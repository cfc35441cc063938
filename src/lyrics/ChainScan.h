// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ChainPattern.h"

#include <QStringList>

#include <optional>
#include <vector>

/// One match of a ChainPattern: positions and lengths in UTF-16 units of the text.
struct ChainMatch
{
    int position = 0;
    int length = 0;
    /// What the groups captured, in their order.
    QStringList captures;

    [[nodiscard]] int end() const { return position + length; }
};

/// All matches of one pattern in one text. The work is done once, at construction, in time that grows in step with the
/// text times the pieces of the pattern; asking for the next match is cheap.
///
/// It goes from the last piece back to the first and keeps, for each place where a piece stands, where a match that
/// goes on from there ends, if it does. Since later places never end earlier, one look at the next piece's places
/// suffices.
class ChainScan
{
public:
    ChainScan(ChainPattern pattern, QString text);

    /// The first match that begins at \a from or behind it.
    [[nodiscard]] std::optional<ChainMatch> next(int from = 0) const;

private:
    /// A place where a piece stands and from which the rest of the pattern can be matched.
    struct Spot
    {
        int position;
        int end;
    };
    /// In the order of their positions, in which their ends rise as well.
    using Spots = std::vector<Spot>;

    [[nodiscard]] Spots placesOf(std::size_t link) const;
    void keepViable(std::size_t link, Spots &spots) const;
    [[nodiscard]] std::vector<int> path(const Spot &start) const;
    [[nodiscard]] bool isCapturing(std::size_t link) const;

    ChainPattern m_pattern;
    QString m_text;
    /// For each piece of the pattern.
    std::vector<Spots> m_spots;
};

/// The first capture of the first match.
[[nodiscard]] std::optional<QString> firstCapture(const ChainPattern &pattern, const QString &text);
