// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <bitset>
#include <vector>

// A regular expression of the simple kind that picks something out of a page: a chain of fixed pieces with gaps
// between them, such as `<div[^>]*id=["']content["'].*>(.*)</div>`. ChainScan runs it over a page in time that grows
// in step with the page, where QRegExp tries the rest of the page anew from every opening tag.
//
// Understood are plain characters, `\` before a special one, `.`, `\s`, `\d`, `[...]` and `[^...]` with plain
// characters in them, `*` and `+` behind any of these, and groups that capture one gap. The first and the last
// piece are not gaps, and two gaps do not touch. Anything else is a mistake of the programmer and asserts. Meaning,
// matches and captures are those of a case-sensitive QRegExp, or of a QRegularExpression without options, which knows
// `*?` and `+?` as well, and whose `.` stops at the end of a line.
class ChainPattern
{
public:
    // Which end is taken of the several that a match may have; where it begins is always the first place that can.
    enum class Matching {
        Shortest, // QRegExp set to minimal
        Longest,  // QRegExp as it is
        Stepwise, // each gap decides for itself, from left to right, as in QRegularExpression
    };

    explicit ChainPattern(const QString &pattern, Matching matching = Matching::Shortest);

    // A pattern has no more groups than that.
    static constexpr std::size_t mostGroups = 4;

    // A set of characters, of which one matches.
    class CharacterSet
    {
    public:
        static CharacterSet of(const QString &characters, bool negated = false)
        {
            return CharacterSet(negated ? Kind::Unlisted : Kind::Listed, characters);
        }
        static CharacterSet anyCharacter() { return of(QString(), true); }
        static CharacterSet anyButNewline() { return of(QStringLiteral("\n"), true); }
        static CharacterSet spaces() { return CharacterSet(Kind::Space); }
        static CharacterSet asciiSpaces() { return of(QStringLiteral(" \t\n\v\f\r")); }
        static CharacterSet digits() { return CharacterSet(Kind::Digit); }
        static CharacterSet asciiDigits() { return of(QStringLiteral("0123456789")); }

        [[nodiscard]] bool contains(QChar c) const
        {
            return c.unicode() < asciiCount ? m_ascii[c.unicode()] : containsByKind(c);
        }
        // Whether it is one plain character.
        [[nodiscard]] bool isSingle() const { return m_kind == Kind::Listed && m_characters.size() == 1; }
        [[nodiscard]] bool isAnyCharacter() const { return m_kind == Kind::Unlisted && m_characters.isEmpty(); }
        [[nodiscard]] const QString &characters() const { return m_characters; }

    private:
        enum class Kind { Listed, Unlisted, Space, Digit };
        static constexpr std::size_t asciiCount = 128;

        explicit CharacterSet(Kind kind, const QString &characters = {});
        [[nodiscard]] bool containsByKind(QChar c) const;

        Kind m_kind;
        QString m_characters;
        std::bitset<asciiCount> m_ascii; // of which pages are mostly made
    };

    // A fixed piece and the gap behind it; the gap of the last link is not used.
    struct Link
    {
        // The plain characters that the piece begins with, possibly none, for a quick search.
        QString prefix;
        // The whole piece, never empty.
        std::vector<CharacterSet> piece;
        CharacterSet gap = CharacterSet::anyCharacter();
        // Whether the gap ends at the first place that will do instead of the last one; for Matching::Stepwise only.
        bool isLazy = false;

        [[nodiscard]] int length() const { return static_cast<int>(piece.size()); }
        // Whether the piece is plain characters and nothing else.
        [[nodiscard]] bool isPlain() const { return prefix.size() == length(); }
        // Where the piece stands, also within another place of it; rising.
        [[nodiscard]] std::vector<int> placesIn(const QString &text) const;
        // Where the gap that begins at `from` ends at the latest, looking no further than `limit`.
        [[nodiscard]] int endOfGap(const QString &text, int from, int limit) const;

    private:
        // It has as many characters left.
        [[nodiscard]] bool standsAt(const QChar *characters) const;
    };

    // One end of a capture: a place inside or at the edge of a piece, counted from where the piece begins.
    struct Mark
    {
        std::size_t link = 0;
        int offset = 0;
    };
    // Begins in one piece and ends in the next.
    struct Group
    {
        Mark begin;
        Mark end;
    };

    [[nodiscard]] Matching matching() const { return m_matching; }
    [[nodiscard]] const std::vector<Link> &links() const { return m_links; }
    [[nodiscard]] const std::vector<Group> &groups() const { return m_groups; }

private:
    void addPiece(const CharacterSet &set);
    void closeLink(const CharacterSet &gap);
    [[nodiscard]] Mark here() const;

    Matching m_matching;
    std::vector<Link> m_links;
    std::vector<Group> m_groups;
    bool m_afterGap = false;
};
