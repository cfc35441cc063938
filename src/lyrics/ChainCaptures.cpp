// SPDX-License-Identifier: MIT
#include "lyrics/ChainCaptures.h"

#include <algorithm>
#include <array>

namespace {

// One of the ways to a place of a piece: the best one, going by what it captured.
struct Route
{
    int position;
    // Those so far; the others are empty.
    std::array<ChainCapture, ChainPattern::mostGroups> captures;
};

int rank(const ChainCapture &left, const ChainCapture &right)
{
    const bool leftEmpty = left.begin == left.end;
    const bool rightEmpty = right.begin == right.end;
    if (leftEmpty || rightEmpty)
        return static_cast<int>(leftEmpty) - static_cast<int>(rightEmpty);
    return left.begin != right.begin ? left.begin - right.begin : right.end - left.end;
}

bool isBetter(const Route &left, const Route &right)
{
    for (std::size_t i = 0; i < left.captures.size(); ++i) {
        const int order = rank(left.captures[i], right.captures[i]);
        if (order != 0)
            return order < 0;
    }
    return false;
}

// Leads routes over the gap behind one piece to the places of the next piece, which are asked for in rising order.
class GapCrossing
{
public:
    GapCrossing(const ChainPattern::Link &piece, const QString &text, const std::vector<Route> &routes, int matchEnd)
        : m_piece(piece)
        , m_text(text)
        , m_routes(routes)
        , m_matchEnd(matchEnd)
    {
    }

    // The best route that reaches `position`; null when none does.
    const Route *to(int position)
    {
        while (m_entered < m_routes.size() && gapBegin(m_routes[m_entered]) < position)
            enter(m_routes[m_entered++]);
        while (m_firstInGap < m_inGap.size() && m_inGap[m_firstInGap].gapEnd < position)
            ++m_firstInGap;
        const Route *best = m_firstInGap < m_inGap.size() ? m_inGap[m_firstInGap].route : nullptr;
        const bool emptyGap = m_entered < m_routes.size() && gapBegin(m_routes[m_entered]) == position;
        if (emptyGap && (!best || isBetter(m_routes[m_entered], *best)))
            best = &m_routes[m_entered];
        return best;
    }

private:
    struct Entry
    {
        const Route *route;
        int gapEnd;
    };

    [[nodiscard]] int gapBegin(const Route &route) const { return route.position + m_piece.length(); }

    // Earlier gaps never end later, so a route that is worse than a later one is of no more use.
    void enter(const Route &route)
    {
        while (m_inGap.size() > m_firstInGap && isBetter(route, *m_inGap.back().route))
            m_inGap.pop_back();
        if (gapBegin(route) > m_gapEnd)
            m_gapEnd = m_piece.endOfGap(m_text, gapBegin(route), m_matchEnd);
        m_inGap.push_back({&route, m_gapEnd});
    }

    const ChainPattern::Link &m_piece;
    const QString &m_text;
    const std::vector<Route> &m_routes;
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
    std::vector<Route> routes{{start.position, {}}};
    std::vector<Route> reached;
    auto group = pattern.groups().begin();
    const ChainSpot *onTheWay = &start;
    for (std::size_t link = 1; link < spots.size() && group != pattern.groups().end(); ++link) {
        const bool captures = group->end.link == link;
        GapCrossing crossing(pattern.links()[link - 1], text, routes, start.end);
        const auto [first, last] = placesAround(spots[link], onTheWay->next, start.position, start.end);
        reached.clear();
        reached.reserve(last - first);
        onTheWay = &spots[link][onTheWay->next];
        for (std::size_t spot = first; spot < last; ++spot) {
            const int position = spots[link][spot].position;
            const Route *route = crossing.to(position);
            if (!route)
                continue;
            reached.push_back({position, route->captures});
            if (captures)
                reached.back().captures[static_cast<std::size_t>(group - pattern.groups().begin())] = {
                    route->position + group->begin.offset, position + group->end.offset};
        }
        routes.swap(reached);
        group += captures ? 1 : 0;
    }
    const auto best = std::min_element(routes.begin(), routes.end(), isBetter);
    return {best->captures.begin(), best->captures.begin() + (group - pattern.groups().begin())};
}
