// SPDX-License-Identifier: MIT
#pragma once

#include "tags/ReadFailure.h"
#include "tags/TagKeys.h"

#include <QImage>
#include <QString>

#include <algorithm>
#include <array>

namespace tags {

// Every key that can be asked for.
constexpr std::array<QLatin1String, 14> allKeys{
    keys::title, keys::artist, keys::album, keys::year,     keys::genre,       keys::comment, keys::rating,
    keys::bpm,   keys::track,  keys::disc,  keys::composer, keys::albumArtist, keys::lyrics,  keys::cuesheet};

// The value of each key, in the order of allKeys.
using TagValues = std::array<QString, allKeys.size()>;

// Null for an unknown key. `Values` is TagValues, const or not.
template<typename Values>
auto *valueIn(Values &values, const QString &key)
{
    const auto found =
        std::find_if(allKeys.begin(), allKeys.end(), [&key](QLatin1String known) { return key == known; });
    return found == allKeys.end() ? nullptr : &values[static_cast<std::size_t>(found - allKeys.begin())];
}

// What is said of a file by the process that read it: plain data, to be handed from process to process. Texts are
// cleaned and cut as TagText.h says.
struct TagSummary
{
    ReadFailure failure = ReadFailure::None;
    int duration = 0; // whole seconds; 0 when no audio was found
    TagValues values;
    QImage thumbnail; // of thumbnailSize(); null when there is none
};

} // namespace tags
