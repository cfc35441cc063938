// SPDX-License-Identifier: MIT
#include "lyrics/ChainScan.h"

#include <algorithm>
#include <utility>

ChainScan::ChainScan(const ChainPattern &pattern, QString text)
    : m_pattern(pattern)
    , m_text(std::move(text))
    , m_spots(m_pattern.links().size())
{
    KnownPlaces known;
    for (std::size_t link = m_spots.size(); link-- > 0;) {
        m_spots[link] = spotsOf(link, known);
        if (m_spots[link].empty())
            return;
    }
}

// Pieces such as "<td" and ">" stand in a pattern several times.
ChainSpots ChainScan::spotsOf(std::size_t link, KnownPlaces &known) const
{
    const ChainPattern::Link &piece = m_pattern.links()[link];
    const bool isLast = link + 1 == m_spots.size();
    const auto spotsAt = [&](const std::vector<int> &places) {
        return isLast ? lastSpots(places) : viableSpots(link, places);
    };
    if (!piece.isPlain())
        return spotsAt(piece.placesIn(m_text));
    auto found = known.find(piece.prefix);
    if (found == known.end())
        found = known.emplace(piece.prefix, piece.placesIn(m_text)).first;
    return spotsAt(found->second);
}

ChainSpots ChainScan::lastSpots(const std::vector<int> &places) const
{
    ChainSpots spots;
    spots.reserve(places.size());
    for (const int place : places)
        spots.push_back({place, place + m_pattern.links().back().length(), 0});
    return spots;
}

// Without the places from which no place of the next piece can be reached. A large page has more places than the
// processor's caches hold, so each piece takes one block of memory and is gone through once.
ChainSpots ChainScan::viableSpots(std::size_t link, const std::vector<int> &places) const
{
    const ChainPattern::Link &piece = m_pattern.links()[link];
    const ChainSpots &next = m_spots[link + 1];
    const bool takesFirst = m_pattern.matching() == ChainPattern::Matching::Shortest ||
                            (m_pattern.matching() == ChainPattern::Matching::Stepwise && piece.isLazy);
    int gapEnd = m_text.size();
    int known = m_text.size();
    // Places [first, last) of the next piece lie within the gap; both bounds only ever fall.
    std::size_t first = next.size();
    std::size_t last = next.size();
    ChainSpots spots(places.size());
    auto spot = spots.end();
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        const int gapBegin = *place + piece.length();
        const int scanned = piece.endOfGap(m_text, gapBegin, known);
        gapEnd = scanned < known ? scanned : gapEnd;
        known = std::min(known, gapBegin);
        while (first > 0 && next[first - 1].position >= gapBegin)
            --first;
        while (last > 0 && next[last - 1].position > gapEnd)
            --last;
        if (first >= last)
            continue;
        const std::size_t taken = takesFirst ? first : last - 1;
        *--spot = {*place, next[taken].end, static_cast<quint32>(taken)};
    }
    spots.erase(spots.begin(), spot);
    return spots;
}

std::optional<ChainMatch> ChainScan::next(int from) const
{
    const ChainSpots &starts = m_spots.front();
    const auto start = std::lower_bound(starts.begin(), starts.end(), from,
                                        [](const ChainSpot &spot, int position) { return spot.position < position; });
    if (start == starts.end())
        return std::nullopt;
    ChainMatch match{start->position, start->end - start->position, {}};
    const bool stepwise = m_pattern.matching() == ChainPattern::Matching::Stepwise;
    const ChainCaptures captures =
        stepwise ? stepwiseCaptures(m_pattern, m_spots, *start) : bestCaptures(m_pattern, m_text, m_spots, *start);
    for (const ChainCapture &capture : captures)
        match.captures.append(m_text.mid(capture.begin, capture.end - capture.begin));
    return match;
}

QString withMatchesReplaced(const QString &text, const ChainPattern &pattern, const QString &replacement)
{
    QString result;
    int copied = 0;
    const ChainScan matches(pattern, text);
    for (auto match = matches.next(); match; match = matches.next(match->end())) {
        result.append(QStringView(text).mid(copied, match->position - copied)).append(replacement);
        copied = match->end();
    }
    return result.append(QStringView(text).mid(copied));
}

std::optional<QString> firstCapture(const ChainPattern &pattern, const QString &text)
{
    const std::optional<ChainMatch> match = ChainScan(pattern, text).next();
    return match ? std::make_optional(match->captures.value(0)) : std::nullopt;
}
