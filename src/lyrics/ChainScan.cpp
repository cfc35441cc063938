// SPDX-License-Identifier: MIT
#include "lyrics/ChainScan.h"

#include <algorithm>
#include <utility>

namespace {

/// Where a gap that begins at \a from ends at the latest, looking no further than \a limit.
int endOfGap(const ChainPattern::CharacterSet &gap, const QString &text, int from, int limit)
{
    if (gap.isAnyCharacter())
        return limit;
    while (from < limit && gap.contains(text.at(from)))
        ++from;
    return from;
}

} // namespace

ChainScan::ChainScan(ChainPattern pattern, QString text)
    : m_pattern(std::move(pattern))
    , m_text(std::move(text))
    , m_spots(m_pattern.links().size())
{
    for (std::size_t link = m_spots.size(); link-- > 0;) {
        Spots spots = placesOf(link);
        if (link + 1 < m_spots.size())
            keepViable(link, spots);
        if (spots.empty())
            return;
        m_spots[link] = std::move(spots);
    }
}

ChainScan::Spots ChainScan::placesOf(std::size_t link) const
{
    const ChainPattern::Link &piece = m_pattern.links()[link];
    Spots spots;
    for (int at = piece.indexIn(m_text, 0); at >= 0; at = piece.indexIn(m_text, at + 1))
        spots.push_back({at, at + piece.length()});
    return spots;
}

/// Drops the places from which no place of the next piece can be reached, and sets the end of the others.
void ChainScan::keepViable(std::size_t link, Spots &spots) const
{
    const ChainPattern::Link &piece = m_pattern.links()[link];
    const Spots &next = m_spots[link + 1];
    const bool shortest = m_pattern.matching() == ChainPattern::Matching::Shortest;
    int gapEnd = m_text.size();
    int known = m_text.size();
    // Places [first, last) of the next piece lie within the gap; both bounds only ever fall.
    std::size_t first = next.size();
    std::size_t last = next.size();
    for (auto spot = spots.rbegin(); spot != spots.rend(); ++spot) {
        const int gapBegin = spot->position + piece.length();
        const int scanned = endOfGap(piece.gap, m_text, gapBegin, known);
        gapEnd = scanned < known ? scanned : gapEnd;
        known = std::min(known, gapBegin);
        while (first > 0 && next[first - 1].position >= gapBegin)
            --first;
        while (last > 0 && next[last - 1].position > gapEnd)
            --last;
        spot->end = first < last ? next[shortest ? first : last - 1].end : -1;
    }
    spots.erase(std::remove_if(spots.begin(), spots.end(), [](const Spot &spot) { return spot.end < 0; }), spots.end());
}

/// Whether a capture is open where the piece of \a link begins.
bool ChainScan::isCapturing(std::size_t link) const
{
    const auto &groups = m_pattern.groups();
    return std::any_of(groups.begin(), groups.end(), [link](const ChainPattern::Group &group) {
        return group.begin.link < link && group.end.link >= link;
    });
}

/// The places of all pieces in the match that starts at \a start. Where several paths lead to the same end, captures
/// begin as early and then end as late as they can, the first capture first.
std::vector<int> ChainScan::path(const Spot &start) const
{
    std::vector<int> places{start.position};
    for (std::size_t link = 1; link < m_spots.size(); ++link) {
        const ChainPattern::Link &before = m_pattern.links()[link - 1];
        const Spots &spots = m_spots[link];
        const int gapBegin = places.back() + before.length();
        const int gapEnd = endOfGap(before.gap, m_text, gapBegin, start.end);
        const auto inGap = [](const Spot &spot, int position) {
            return spot.position < position;
        };
        const auto endsBefore = [](const Spot &spot, int end) {
            return spot.end < end;
        };
        const auto first = std::lower_bound(spots.begin(), spots.end(), gapBegin, inGap);
        const auto last = std::lower_bound(first, spots.end(), gapEnd + 1, inGap);
        const auto earliest = std::lower_bound(first, last, start.end, endsBefore);
        const auto behindLatest = std::lower_bound(earliest, last, start.end + 1, endsBefore);
        places.push_back(isCapturing(link) ? std::prev(behindLatest)->position : earliest->position);
    }
    return places;
}

std::optional<ChainMatch> ChainScan::next(int from) const
{
    const Spots &starts = m_spots.front();
    const auto start = std::lower_bound(starts.begin(), starts.end(), from,
                                        [](const Spot &spot, int position) { return spot.position < position; });
    if (start == starts.end())
        return std::nullopt;
    const std::vector<int> places = path(*start);
    const auto position = [&](const ChainPattern::Mark &mark) {
        return places[mark.link] + mark.offset;
    };
    ChainMatch match{start->position, start->end - start->position, {}};
    for (const ChainPattern::Group &group : m_pattern.groups())
        match.captures.append(m_text.mid(position(group.begin), position(group.end) - position(group.begin)));
    return match;
}

std::optional<QString> firstCapture(const ChainPattern &pattern, const QString &text)
{
    const std::optional<ChainMatch> match = ChainScan(pattern, text).next();
    return match ? std::make_optional(match->captures.value(0)) : std::nullopt;
}
