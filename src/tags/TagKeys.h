// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <array>

namespace tags {

// The keys that address the values of a tag. The basic ones have accessors of their own in every format; the others
// are stored under names that differ from format to format.
namespace keys {
constexpr QLatin1String title{"title"};
constexpr QLatin1String artist{"artist"};
constexpr QLatin1String album{"album"};
constexpr QLatin1String year{"year"};
constexpr QLatin1String genre{"genre"};
constexpr QLatin1String comment{"comment"};

constexpr QLatin1String rating{"rating"};
constexpr QLatin1String bpm{"bpm"};
constexpr QLatin1String track{"track"};
constexpr QLatin1String disc{"disc"};
constexpr QLatin1String composer{"composer"};
constexpr QLatin1String albumArtist{"albumArtist"};
constexpr QLatin1String lyrics{"lyrics"};
constexpr QLatin1String cuesheet{"cuesheet"}; // Xiph comments only
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
constexpr QLatin1String artistSeparator{R"(\\)"};

} // namespace tags
