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
        ChainSpots spots = placesOf(m_pattern.links()[link], known);
        if (link + 1 < m_spots.size())
            keepViable(link, spots);
        if (spots.empty())
            return;
        m_spots[link] = std::move(spots);
    }
}

// Pieces such as "<td" and ">" stand in a pattern several times.
ChainSpots ChainScan::placesOf(const ChainPattern::Link &piece, KnownPlaces &known) const
{
    const bool isPlain = piece.prefix.size() == piece.length();
    if (!isPlain)
        return searchedPlacesOf(piece);
    const auto found = known.find(piece.prefix);
    return found != known.end() ? found->second : known.emplace(piece.prefix, searchedPlacesOf(piece)).first->second;
}

ChainSpots ChainScan::searchedPlacesOf(const ChainPattern::Link &piece) const
{
    ChainSpots spots;
    for (int at = piece.indexIn(m_text, 0); at >= 0; at = piece.indexIn(m_text, at + 1))
        spots.push_back({at, at + piece.length(), 0});
    return spots;
}

// Drops the places from which no place of the next piece can be reached, and sets the end of the others.
void ChainScan::keepViable(std::size_t link, ChainSpots &spots) const
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
    for (auto spot = spots.rbegin(); spot != spots.rend(); ++spot) {
        const int gapBegin = spot->position + piece.length();
        const int scanned = piece.endOfGap(m_text, gapBegin, known);
        gapEnd = scanned < known ? scanned : gapEnd;
        known = std::min(known, gapBegin);
        while (first > 0 && next[first - 1].position >= gapBegin)
            --first;
        while (last > 0 && next[last - 1].position > gapEnd)
            --last;
        spot->next = static_cast<quint32>(takesFirst ? first : last - 1);
        spot->end = first < last ? next[spot->next].end : -1;
    }
    spots.erase(std::remove_if(spots.begin(), spots.end(), [](const ChainSpot &spot) { return spot.end < 0; }),
                spots.end());
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
