// SPDX-License-Identifier: MIT
#include "lyrics/ChainPattern.h"

#include <algorithm>

namespace {

// Reads the sets of characters that a pattern is made of, one after another.
class SetReader
{
public:
    using CharacterSet = ChainPattern::CharacterSet;

    SetReader(const QString &pattern, bool perlStyle)
        : m_pattern(pattern)
        , m_perlStyle(perlStyle)
    {
    }

    [[nodiscard]] bool atEnd() const { return m_at >= m_pattern.size(); }

    bool take(char c)
    {
        if (atEnd() || m_pattern.at(m_at) != QLatin1Char(c))
            return false;
        ++m_at;
        return true;
    }

    CharacterSet takeSet()
    {
        if (take('.'))
            return m_perlStyle ? CharacterSet::anyButNewline() : CharacterSet::anyCharacter();
        if (take('['))
            return takeBracketed();
        if (take('\\'))
            return takeEscaped();
        return CharacterSet::of(m_pattern.mid(m_at++, 1));
    }

private:
    CharacterSet takeEscaped()
    {
        if (take('s'))
            return m_perlStyle ? CharacterSet::asciiSpaces() : CharacterSet::spaces();
        if (take('d'))
            return m_perlStyle ? CharacterSet::asciiDigits() : CharacterSet::digits();
        return CharacterSet::of(m_pattern.mid(m_at++, 1));
    }

    CharacterSet takeBracketed()
    {
        const bool negated = take('^');
        const int end = m_pattern.indexOf(QLatin1Char(']'), m_at);
        Q_ASSERT(end > m_at);
        const QString characters = m_pattern.mid(m_at, end - m_at);
        m_at = end + 1;
        return CharacterSet::of(characters, negated);
    }

    QString m_pattern;
    bool m_perlStyle;
    int m_at = 0;
};

} // namespace

ChainPattern::CharacterSet::CharacterSet(Kind kind, const QString &characters)
    : m_kind(kind)
    , m_characters(characters)
{
    for (std::size_t c = 0; c < asciiCount; ++c)
        m_ascii[c] = containsByKind(QChar(static_cast<ushort>(c)));
}

bool ChainPattern::CharacterSet::containsByKind(QChar c) const
{
    switch (m_kind) {
    case Kind::Listed:
        return m_characters.contains(c);
    case Kind::Unlisted:
        return !m_characters.contains(c);
    case Kind::Space:
        return c.isSpace();
    case Kind::Digit:
        return c.isDigit();
    }
    return false;
}

bool ChainPattern::Link::standsAt(const QChar *characters) const
{
    if (isPlain())
        return std::equal(prefix.begin(), prefix.end(), characters);
    return std::all_of(piece.begin(), piece.end(),
                       [&characters](const CharacterSet &set) { return set.contains(*characters++); });
}

// By the first character: QString prepares a table for each longer text that it searches for, and pages have many
// places.
std::vector<int> ChainPattern::Link::placesIn(const QString &text) const
{
    std::vector<int> places;
    const int last = text.size() - length();
    for (int at = 0; at <= last; ++at) {
        at = prefix.isEmpty() ? at : text.indexOf(prefix.at(0), at);
        if (at < 0 || at > last)
            break;
        if (standsAt(text.constData() + at))
            places.push_back(at);
    }
    return places;
}

int ChainPattern::Link::endOfGap(const QString &text, int from, int limit) const
{
    if (gap.isAnyCharacter())
        return limit;
    const QChar *const characters = text.constData();
    while (from < limit && gap.contains(characters[from]))
        ++from;
    return from;
}

ChainPattern::ChainPattern(const QString &pattern, Matching matching)
    : m_matching(matching)
    , m_links(1)
{
    SetReader reader(pattern, matching == Matching::Stepwise);
    while (!reader.atEnd()) {
        if (reader.take('(')) {
            m_groups.push_back({here(), {}});
            continue;
        }
        if (reader.take(')')) {
            m_groups.back().end = here();
            Q_ASSERT(m_groups.back().end.link == m_groups.back().begin.link + 1);
            continue;
        }
        const CharacterSet set = reader.takeSet();
        const bool more = reader.take('+');
        if (more)
            addPiece(set);
        if (more || reader.take('*'))
            closeLink(set);
        else
            addPiece(set);
        if (m_afterGap && matching == Matching::Stepwise && reader.take('?'))
            m_links.back().isLazy = true;
    }
    Q_ASSERT(!m_afterGap && m_groups.size() <= mostGroups);
}

// Behind a gap stands the beginning of the next piece, which has no link of its own yet.
ChainPattern::Mark ChainPattern::here() const
{
    if (m_afterGap)
        return {m_links.size(), 0};
    return {m_links.size() - 1, m_links.back().length()};
}

void ChainPattern::addPiece(const CharacterSet &set)
{
    if (m_afterGap)
        m_links.emplace_back();
    m_afterGap = false;
    Link &link = m_links.back();
    if (set.isSingle() && link.prefix.size() == link.length())
        link.prefix.append(set.characters());
    link.piece.push_back(set);
}

void ChainPattern::closeLink(const CharacterSet &gap)
{
    Q_ASSERT(!m_afterGap && m_links.back().length() > 0);
    m_links.back().gap = gap;
    m_afterGap = true;
}
