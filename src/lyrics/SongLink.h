// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

// What a site client made of a page that lists songs: the link to the wanted one, as it stands in the page, or why
// there is none.
class SongLink : public std::optional<QString>
{
public:
    // A site that has changed its pages must not look as if it had no songs.
    enum class Missing { NotUnderstood, ListedNothing, NoSuchSong };

    explicit SongLink(const QString &link)
        : std::optional<QString>(link)
    {
    }
    explicit SongLink(Missing why)
        : m_missing(why)
    {
    }
    static SongLink notUnderstood() { return SongLink(Missing::NotUnderstood); }
    // For a list of which none of the `rows` that could be read is the wanted song. `holdsRows`: there is at least the
    // beginning of a row, read or not.
    static SongLink none(int rows, bool holdsRows)
    {
        const Missing unread = holdsRows ? Missing::NotUnderstood : Missing::ListedNothing;
        return SongLink(rows > 0 ? Missing::NoSuchSong : unread);
    }

    // Without a link only.
    [[nodiscard]] Missing missing() const { return m_missing; }

private:
    Missing m_missing = Missing::NoSuchSong;
};
