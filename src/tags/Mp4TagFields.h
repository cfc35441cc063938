// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib::MP4 {
class Tag;
}

// The extended values of an MP4 tag by key; item names are those that iTunes writes.
namespace tags::mp4 {

QString value(const TagLib::MP4::Tag &tag, const QString &key);

// An empty value removes the item. A track or disc that is no number, and a rating that is no star count, is ignored.
void setValue(TagLib::MP4::Tag &tag, const QString &key, const QString &value);

// Empty lyrics remove the item. False when the tag held just these lyrics already.
bool setLyrics(TagLib::MP4::Tag &tag, const QString &lyrics);

} // namespace tags::mp4
