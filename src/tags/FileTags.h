// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace TagLib {
class File;
class Tag;
} // namespace TagLib

namespace tags {

// The tags of one open file, in the order in which TagLib asks them; they belong to the file. A file of most formats
// has one; some may have up to three ("a union"), of which any may be absent (null).
struct FileTags
{
    bool isUnion = false;
    std::array<TagLib::Tag *, 3> members{};
};

// Single for WAV, which TagLib presents as its ID3v2 tag alone.
FileTags tagsOf(TagLib::File &file);

// The first value that is not empty, asking the members in order.
QString value(const FileTags &tags, const QString &key);

} // namespace tags
