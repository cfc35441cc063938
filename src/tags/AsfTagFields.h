// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib::ASF {
class Tag;
}

// The extended values of an ASF tag by key; attribute names are those of Windows Media Player.
namespace tags::asf {

// "disc" is never read, although setValue() writes it; this is deliberate.
QString value(const TagLib::ASF::Tag &tag, const QString &key);

// An empty value removes the attribute. A rating that is no star count is ignored.
void setValue(TagLib::ASF::Tag &tag, const QString &key, const QString &value);

// Empty lyrics remove the attribute. False when the tag held just these lyrics already.
bool setLyrics(TagLib::ASF::Tag &tag, const QString &lyrics);

} // namespace tags::asf
