// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

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

// Two backslashes, between several artists in one text.
constexpr QLatin1String artistSeparator{R"(\\)"};

} // namespace tags
