// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib::APE {
class Tag;
}

// APE tags are read by their basic values only; lyrics are written into them all the same, for other players.
namespace tags::ape {

// Empty lyrics remove the item "LYRICS". False when the tag held just these lyrics already.
bool setLyrics(TagLib::APE::Tag &tag, const QString &lyrics);

} // namespace tags::ape
