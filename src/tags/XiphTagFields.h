// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib::Ogg {
class XiphComment;
}

// The extended values of a Xiph comment (Ogg and FLAC) by key, "cuesheet" included.
namespace tags::xiph {

QString value(const TagLib::Ogg::XiphComment &tag, const QString &key);

// An empty value removes the fields. A track or disc that is no number is ignored.
void setValue(TagLib::Ogg::XiphComment &tag, const QString &key, const QString &value);

// Empty lyrics remove the field. False when the tag held just these lyrics already.
bool setLyrics(TagLib::Ogg::XiphComment &tag, const QString &lyrics);

} // namespace tags::xiph
