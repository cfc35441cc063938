// SPDX-License-Identifier: MIT
#include "lyrics/ChainCaptures.h"

#include <algorithm>
#include <array>

namespace {

// Those so far; the others are empty.
using CaptureSet = std::array<ChainCapture, ChainPattern::mostGroups>;

// One of the ways to a place of a piece: the best one, going by what it captured. Most gaps capture nothing, and a
// large page has more routes than fit the processor's caches, so what was captured lies elsewhere.
struct Route
{
    int position;
    quint32 captures; // index of the set
};

int rank(const ChainCapture &left, const ChainCapture &right)
{
    const bool leftEmpty = left.begin == left.end;
    const bool rightEmpty = right.begin == right.end;
    if (leftEmpty || rightEmpty)
        return static_cast<int>(leftEmpty) - static_cast<int>(rightEmpty);
    return left.begin != right.begin ? left.begin - right.begin : right.end - left.end;
}

bool isBetter(const CaptureSet &left, const CaptureSet &right)
{
    for (std::size_t i = 0; i < left.size(); ++i) {
        const int order = rank(left[i], right[i]);
        if (order != 0)
            return order < 0;
    }
    return false;
}

// Leads routes over the gap behind one piece to the places of the next piece, which are asked for in rising order.
class GapCrossing
{
public:
    GapCrossing(const ChainPattern::Link &piece, const QString &text, const std::vector<Route> &routes,
                const std::vector<CaptureSet> &captures, int matchEnd)
        : m_piece(piece)
        , m_text(text)
        , m_routes(routes)
        , m_captures(captures)
        , m_matchEnd(matchEnd)
    {
    }

    // The best route that reaches `position`; null when none does.
    const Route *to(int position)
    {
        while (m_entered < m_routes.size() && gapBegin(m_routes[m_entered]) < position)
            enter(static_cast<quint32>(m_entered++));
        while (m_firstInGap < m_inGap.size() && m_inGap[m_firstInGap].gapEnd < position)
            ++m_firstInGap;
        const Route *best = m_firstInGap < m_inGap.size() ? &m_routes[m_inGap[m_firstInGap].route] : nullptr;
        const bool emptyGap = m_entered < m_routes.size() && gapBegin(m_routes[m_entered]) == position;
        if (emptyGap && (!best || isBetterRoute(m_routes[m_entered], *best)))
            best = &m_routes[m_entered];
        return best;
    }

private:
    struct Entry
    {
        quint32 route; // index
        int gapEnd;
    };

    [[nodiscard]] int gapBegin(const Route &route) const { return route.position + m_piece.length(); }

    [[nodiscard]] bool isBetterRoute(const Route &left, const Route &right) const
    {
        return left.captures != right.captures && isBetter(m_captures[left.captures], m_captures[right.captures]);
    }

    // Earlier gaps never end later, so a route that is worse than a later one is of no more use.
    void enter(quint32 index)
    {
        const Route &route = m_routes[index];
        while (m_inGap.size() > m_firstInGap && isBetterRoute(route, m_routes[m_inGap.back().route]))
            m_inGap.pop_back();
        if (gapBegin(route) > m_gapEnd)
            m_gapEnd = m_piece.endOfGap(m_text, gapBegin(route), m_matchEnd);
        m_inGap.push_back({index, m_gapEnd});
    }

    const ChainPattern::Link &m_piece;
    const QString &m_text;
    const std::vector<Route> &m_routes;
    const std::vector<CaptureSet> &m_captures;
    int m_matchEnd;
    std::size_t m_entered = 0;
    int m_gapEnd = -1;
    // From m_firstInGap on, the routes within whose gap the place may lie, the best and earliest first. No queue of the
    // standard library: to make one takes longer than most gaps take to cross.
    std::vector<Entry> m_inGap;
    std::size_t m_firstInGap = 0;
};

// The places behind `position` from which a match goes on to `matchEnd`, one of which is the one at `index`: they stand
// side by side.
std::pair<std::size_t, std::size_t> placesAround(const ChainSpots &spots, std::size_t index, int position, int matchEnd)
{
    std::size_t first = index;
    std::size_t last = index + 1;
    while (first > 0 && spots[first - 1].position > position && spots[first - 1].end == matchEnd)
        --first;
    while (last < spots.size() && spots[last].end == matchEnd)
        ++last;
    return {first, last};
}

} // namespace

ChainCaptures stepwiseCaptures(const ChainPattern &pattern, const std::vector<ChainSpots> &spots,
                               const ChainSpot &start)
{
    ChainCaptures captures;
    const ChainSpot *spot = &start;
    auto group = pattern.groups().begin();
    for (std::size_t link = 1; link < spots.size() && group != pattern.groups().end(); ++link) {
        const ChainSpot *next = &spots[link][spot->next];
        if (group->end.link == link) {
            captures.push_back({spot->position + group->begin.offset, next->position + group->end.offset});
            ++group;
        }
        spot = next;
    }
    return captures;
}

ChainCaptures bestCaptures(const ChainPattern &pattern, const QString &text, const std::vector<ChainSpots> &spots,
                           const ChainSpot &start)
{
    std::vector<Route> routes{{start.position, 0}};
    std::vector<Route> reached;
    std::vector<CaptureSet> sets(1);
    std::vector<CaptureSet> reachedSets;
    auto group = pattern.groups().begin();
    const ChainSpot *onTheWay = &start;
    for (std::size_t link = 1; link < spots.size() && group != pattern.groups().end(); ++link) {
        const bool captures = group->end.link == link;
        GapCrossing crossing(pattern.links()[link - 1], text, routes, sets, start.end);
        const auto [first, last] = placesAround(spots[link], onTheWay->next, start.position, start.end);
        reached.clear();
        reached.reserve(last - first);
        onTheWay = &spots[link][onTheWay->next];
        for (std::size_t spot = first; spot < last; ++spot) {
            const int position = spots[link][spot].position;
            const Route *route = crossing.to(position);
            if (!route)
                continue;
            reached.push_back({position, captures ? static_cast<quint32>(reachedSets.size()) : route->captures});
            if (!captures)
                continue;
            reachedSets.push_back(sets[route->captures]);
            reachedSets.back()[static_cast<std::size_t>(group - pattern.groups().begin())] = {
                route->position + group->begin.offset, position + group->end.offset};
        }
        routes.swap(reached);
        if (captures) {
            sets.swap(reachedSets);
            reachedSets.clear();
            ++group;
        }
    }
    const auto best = std::min_element(routes.begin(), routes.end(), [&sets](const Route &left, const Route &right) {
        return isBetter(sets[left.captures], sets[right.captures]);
    });
    const CaptureSet &found = sets[best->captures];
    return {found.begin(), found.begin() + (group - pattern.groups().begin())};
}
