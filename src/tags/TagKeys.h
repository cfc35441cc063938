// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <array>

namespace tags {

// QLatin1String measures a text with strlen(), which not every compiler takes for a constant.
template<int Size>
constexpr QLatin1String latin1(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

// The keys that address the values of a tag. The basic ones have accessors of their own in every format; the others
// are stored under names that differ from format to format.
namespace keys {
constexpr QLatin1String title = latin1("title");
constexpr QLatin1String artist = latin1("artist");
constexpr QLatin1String album = latin1("album");
constexpr QLatin1String year = latin1("year");
constexpr QLatin1String genre = latin1("genre");
constexpr QLatin1String comment = latin1("comment");

constexpr QLatin1String rating = latin1("rating");
constexpr QLatin1String bpm = latin1("bpm");
constexpr QLatin1String track = latin1("track");
constexpr QLatin1String disc = latin1("disc");
constexpr QLatin1String composer = latin1("composer");
constexpr QLatin1String albumArtist = latin1("albumArtist");
constexpr QLatin1String lyrics = latin1("lyrics");
constexpr QLatin1String cuesheet = latin1("cuesheet"); // Xiph comments only
} // namespace keys

constexpr std::array<QLatin1String, 6> basicKeys{keys::title, keys::artist, keys::album,
                                                 keys::year,  keys::genre,  keys::comment};

// In the order in which they are copied from one tag to another.
constexpr std::array<QLatin1String, 7> extendedKeys{keys::rating,   keys::bpm,         keys::track, keys::disc,
                                                    keys::composer, keys::albumArtist, keys::lyrics};

// Under which name a format stores the value of a key.
struct KeyName
{
    QLatin1String key;
    const char *name;
};

// Null for a key that is not in the table.
template<std::size_t Size>
const char *nameOf(const std::array<KeyName, Size> &table, const QString &key)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [&key](const KeyName &entry) { return key == entry.key; });
    return found == table.end() ? nullptr : found->name;
}

// Two backslashes, between several artists in one text.
constexpr QLatin1String artistSeparator = latin1(R"(\\)");

} // namespace tags
