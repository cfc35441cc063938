// SPDX-License-Identifier: MIT
#include "tags/TagCloning.h"

#include "tags/FileTags.h"
#include "tags/TagFields.h"
#include "tags/TagKeys.h"
#include "tags/TagKind.h"

#include <taglib/apetag.h>
#include <taglib/asftag.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2synchdata.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mp4tag.h>
#include <taglib/xiphcomment.h>

namespace tags {

namespace {

constexpr unsigned frameHeaderSize = 10;

// A frame renders itself in the version that it was read in, and does not tell which. The size in its header does:
// ID3v2.4 keeps it in seven bits a byte. A size below 128 looks alike in both, and so does the rest of the frame.
unsigned versionOfRendering(const TagLib::ByteVector &frame)
{
    const unsigned size = frame.size() - frameHeaderSize;
    return TagLib::ID3v2::SynchData::toUInt(frame.mid(4, 4)) == size ? 4 : 3;
}

// Frames cannot be copied; they are rendered and read again.
std::unique_ptr<TagLib::Tag> clone(const TagLib::ID3v2::Tag &tag)
{
    auto copy = std::make_unique<TagLib::ID3v2::Tag>();
    for (const TagLib::ID3v2::Frame *frame : tag.frameList()) {
        const TagLib::ByteVector data = frame->render();
        if (data.size() <= frameHeaderSize)
            continue;
        TagLib::ID3v2::Header header;
        header.setMajorVersion(versionOfRendering(data));
        const TagLib::ID3v2::Header *tagHeader = &header;
        if (TagLib::ID3v2::Frame *made = TagLib::ID3v2::FrameFactory::instance()->createFrame(data, tagHeader))
            copy->addFrame(made); // the tag owns it from here on
    }
    return copy;
}

std::unique_ptr<TagLib::Tag> clone(const TagLib::MP4::Tag &tag)
{
    auto copy = std::make_unique<TagLib::MP4::Tag>();
    for (const auto &[name, item] : tag.itemMap())
        copy->setItem(name, item);
    return copy;
}

std::unique_ptr<TagLib::Tag> clone(const TagLib::ASF::Tag &tag)
{
    auto copy = std::make_unique<TagLib::ASF::Tag>();
    // The five values of the content description are no attributes.
    copy->setTitle(tag.title());
    copy->setArtist(tag.artist());
    copy->setCopyright(tag.copyright());
    copy->setComment(tag.comment());
    copy->setRating(tag.rating());
    for (const auto &[name, attributes] : tag.attributeListMap())
        copy->setAttribute(name, attributes);
    return copy;
}

std::unique_ptr<TagLib::Tag> clone(const TagLib::Ogg::XiphComment &tag)
{
    auto copy = std::make_unique<TagLib::Ogg::XiphComment>();
    for (const auto &[name, values] : tag.fieldListMap()) {
        for (const TagLib::String &value : values)
            copy->addField(name, value, false);
    }
    return copy;
}

template<typename Format>
std::unique_ptr<TagLib::Tag> cloneBasics(const TagLib::Tag &tag)
{
    auto copy = std::make_unique<Format>();
    TagLib::Tag::duplicate(&tag, copy.get(), true);
    return copy;
}

// The number alone; the extended key "track" carries the total with it where the target has a place for it.
unsigned trackNumber(const FileTags &tags)
{
    for (const TagLib::Tag *member : tags.members) {
        if (member && member->track() > 0)
            return member->track();
    }
    return 0;
}

} // namespace

std::unique_ptr<TagLib::Tag> cloneTag(const TagLib::Tag &tag)
{
    switch (kindOf(&tag)) {
    case TagKind::Id3v2:
        return clone(static_cast<const TagLib::ID3v2::Tag &>(tag));
    case TagKind::Mp4:
        return clone(static_cast<const TagLib::MP4::Tag &>(tag));
    case TagKind::Asf:
        return clone(static_cast<const TagLib::ASF::Tag &>(tag));
    case TagKind::Xiph:
        return clone(static_cast<const TagLib::Ogg::XiphComment &>(tag));
    case TagKind::Ape:
        return cloneBasics<TagLib::APE::Tag>(tag);
    case TagKind::Id3v1:
        return cloneBasics<TagLib::ID3v1::Tag>(tag);
    default:
        // Whatever has no format of its own here (RIFF INFO, the comments of tracker modules) is kept as RIFF INFO.
        return cloneBasics<TagLib::RIFF::Info::Tag>(tag);
    }
}

void mergeTags(const FileTags &source, TagLib::Tag &target)
{
    for (const QLatin1String key : basicKeys)
        setValue(target, key, value(source, key));
    target.setTrack(trackNumber(source));
    for (const QLatin1String key : extendedKeys) {
        const QString text = value(source, key);
        if (!text.isEmpty())
            setValue(target, key, text);
    }
}

} // namespace tags
