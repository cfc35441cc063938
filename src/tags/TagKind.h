// SPDX-License-Identifier: MIT
#pragma once

namespace TagLib {
class Tag;
}

namespace tags {

enum class TagKind {
    None,
    Ape,
    Asf,
    Id3v1,
    Id3v2,
    Mp4,
    Xiph,
    Union, // several tags of one file, see FileTags
    Other, // RIFF INFO and whatever else TagLib knows: basic values only
};

// Never Union: a tag object of ours is always a single tag.
TagKind kindOf(const TagLib::Tag *tag);

} // namespace tags
