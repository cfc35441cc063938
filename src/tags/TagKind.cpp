// SPDX-License-Identifier: MIT
#include "tags/TagKind.h"

#include <taglib/apetag.h>
#include <taglib/asftag.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4tag.h>
#include <taglib/xiphcomment.h>

namespace tags {

namespace {

template<typename Format>
bool is(const TagLib::Tag *tag)
{
    return dynamic_cast<const Format *>(tag) != nullptr;
}

} // namespace

TagKind kindOf(const TagLib::Tag *tag)
{
    if (!tag)
        return TagKind::None;
    if (is<TagLib::APE::Tag>(tag))
        return TagKind::Ape;
    if (is<TagLib::ASF::Tag>(tag))
        return TagKind::Asf;
    if (is<TagLib::ID3v1::Tag>(tag))
        return TagKind::Id3v1;
    if (is<TagLib::ID3v2::Tag>(tag))
        return TagKind::Id3v2;
    if (is<TagLib::MP4::Tag>(tag))
        return TagKind::Mp4;
    if (is<TagLib::Ogg::XiphComment>(tag))
        return TagKind::Xiph;
    return TagKind::Other;
}

} // namespace tags
