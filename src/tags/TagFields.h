// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib {
class Tag;
}

// Values of one tag of any format by the keys of TagKeys.h.
namespace tags {

// Cleaned and cut as TagText.h says. The year is empty when it is 0. Formats without a place for a key give an empty
// text: ID3v1, APE and RIFF INFO know the basic keys only.
QString value(const TagLib::Tag &tag, const QString &key);

void setValue(TagLib::Tag &tag, const QString &key, const QString &value);

// Stores an artist or a title, not an empty one. False when nothing had to be changed: the tag reads as that name
// already, or it is ID3v1 and cannot hold it. Of several artists, divided by two backslashes, ID3v1 holds the first.
bool setName(TagLib::Tag &tag, const QString &key, const QString &name);

// False when nothing had to be changed, also for a format that holds no lyrics.
bool setLyrics(TagLib::Tag &tag, const QString &lyrics);

bool canHoldLyrics(const TagLib::Tag &tag);

} // namespace tags
