// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ChainPattern.h"

#include <vector>

// A place where a piece of a pattern stands, and where the match that goes on from there ends.
struct ChainSpot
{
    int position;
    int end;
    // The index of the place of the next piece on the way to that end.
    quint32 next = 0;
};
// In the order of their positions, in which their ends rise as well.
using ChainSpots = std::vector<ChainSpot>;

// From `begin` up to `end`, which is not part of it.
struct ChainCapture
{
    int begin;
    int end;
};
using ChainCaptures = std::vector<ChainCapture>;

// What the groups of `pattern` capture in the match that begins at `start` and goes from place to place as they say.
[[nodiscard]] ChainCaptures stepwiseCaptures(const ChainPattern &pattern, const std::vector<ChainSpots> &spots,
                                             const ChainSpot &start);

// What the groups of `pattern` capture in the match that begins at `start`; `spots` holds the places of each piece.
// Where several ways through the pieces lead to the same end, the first capture decides, then the second: the one that
// begins early, then the one that ends late, and one that holds nothing last of all.
[[nodiscard]] ChainCaptures bestCaptures(const ChainPattern &pattern, const QString &text,
                                         const std::vector<ChainSpots> &spots, const ChainSpot &start);
