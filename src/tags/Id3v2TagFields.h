// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib::ID3v2 {
class Tag;
}

// Values of an ID3v2 tag by key. Frame names are those of ID3v2.4 (id3.org), as TagLib keeps them in memory.
namespace tags::id3v2 {

// Beside the extended keys "artist" is known: the names of all TPE1 frames joined with two backslashes, so that
// several artists can be told from one. Empty for an unknown key and for a frame that is not there.
QString value(const TagLib::ID3v2::Tag &tag, const QString &key);

// The counterpart of value(): "artist" is split at two backslashes into the values of one TPE1 frame. An empty value
// removes the frame. A rating is a star count; any other text is ignored.
void setValue(TagLib::ID3v2::Tag &tag, const QString &key, const QString &value);

// Makes the lyrics the only USLT frame, with CR LF line breaks, in UTF-8 when they hold more than 7-bit characters,
// else in Latin-1. Empty lyrics remove all USLT frames. False when the tag held just that already.
bool setLyrics(TagLib::ID3v2::Tag &tag, const QString &lyrics);

} // namespace tags::id3v2
