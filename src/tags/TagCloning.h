// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace TagLib {
class Tag;
}

namespace tags {

struct FileTags;

// A tag of the same format with the same content, independent of the file that the original belongs to: every frame,
// item, attribute or field; of APE, ID3v1 and RIFF INFO the basic values. Null for a format that has no copy.
std::unique_ptr<TagLib::Tag> cloneTag(const TagLib::Tag &tag);

// Overwrites the basic values of the target with those of the source, and every extended value that the source has.
void mergeTags(const FileTags &source, TagLib::Tag &target);

} // namespace tags
