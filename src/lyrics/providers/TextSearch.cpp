// SPDX-License-Identifier: MIT
#include "lyrics/providers/TextSearch.h"

#include <QStringView>

#include <vector>

namespace {

// The algorithm of Knuth, Morris and Pratt: after a mismatch it goes on with the longest beginning of the part that
// stands where the comparison has come to. (The standard library's searcher for long texts takes quadratic time for
// its tables.)
class Searcher
{
public:
    explicit Searcher(const QString &part)
        : m_part(part)
        , m_borders(static_cast<std::size_t>(part.size()), 0)
    {
        for (int i = 1, matched = 0; i < part.size(); ++i) {
            matched = extended(matched, part.at(i));
            m_borders[static_cast<std::size_t>(i)] = matched;
        }
    }

    // Where the part stands first from `from` on, -1 when nowhere.
    [[nodiscard]] int indexIn(const QString &text, int from) const
    {
        int matched = 0;
        for (int i = from; i < text.size(); ++i) {
            matched = extended(matched, text.at(i));
            if (matched == m_part.size())
                return i + 1 - matched;
        }
        return -1;
    }

private:
    // How much of the part matches once `next` stands behind its first `matched` characters, which are not all of it.
    [[nodiscard]] int extended(int matched, QChar next) const
    {
        while (matched > 0 && m_part.at(matched) != next)
            matched = m_borders[static_cast<std::size_t>(matched) - 1];
        return m_part.at(matched) == next ? matched + 1 : 0;
    }

    const QString &m_part;
    // For each length of a beginning, less one: how much of it is beginning and end of it at once.
    std::vector<int> m_borders;
};

} // namespace

bool holdsText(const QString &text, const QString &part)
{
    return part.isEmpty() || (part.size() <= text.size() && Searcher(part).indexIn(text, 0) >= 0);
}

QString withoutText(const QString &text, const QString &part, const QString &follower)
{
    const QString sought = part + follower;
    const Searcher searcher(sought);
    QString rest;
    rest.reserve(text.size());
    int from = 0;
    for (int at = searcher.indexIn(text, from); at >= 0; at = searcher.indexIn(text, from)) {
        rest += QStringView(text).mid(from, at - from);
        from = at + part.size();
    }
    return rest += QStringView(text).mid(from);
}
