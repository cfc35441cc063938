// SPDX-License-Identifier: MIT
#include "tags/TagCopy.h"

#include "tags/TagCloning.h"
#include "tags/TagFields.h"

#include <taglib/apetag.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/wavfile.h>

#include <utility>

namespace tags {

namespace {

std::unique_ptr<TagLib::Tag> copyOf(TagLib::MPEG::File &file)
{
    auto copy = file.hasID3v2Tag() ? cloneTag(*file.ID3v2Tag()) : std::make_unique<TagLib::ID3v2::Tag>();
    if (file.ID3v1Tag())
        TagLib::Tag::duplicate(file.ID3v1Tag(), copy.get(), false);
    if (file.APETag())
        TagLib::Tag::duplicate(file.APETag(), copy.get(), false);
    return copy;
}

// Frames such as lyrics are deliberately left out for WAV.
std::unique_ptr<TagLib::Tag> copyOf(TagLib::RIFF::WAV::File &file)
{
    if (file.hasID3v2Tag()) {
        auto copy = std::make_unique<TagLib::ID3v2::Tag>();
        TagLib::Tag::duplicate(file.ID3v2Tag(), copy.get(), false);
        return copy;
    }
    return file.hasInfoTag() ? cloneTag(*file.InfoTag()) : nullptr;
}

} // namespace

TagCopy::TagCopy() = default;
TagCopy::~TagCopy() = default;
TagCopy::TagCopy(TagCopy &&other) noexcept
    : m_members(std::move(other.m_members))
    , m_kind(std::exchange(other.m_kind, TagKind::None))
{
}

TagCopy &TagCopy::operator=(TagCopy &&other) noexcept
{
    m_members = std::move(other.m_members);
    m_kind = std::exchange(other.m_kind, TagKind::None);
    return *this;
}

TagCopy::TagCopy(const TagCopy &other)
    : TagCopy(other.tags())
{
}

TagCopy &TagCopy::operator=(const TagCopy &other)
{
    if (this != &other)
        *this = TagCopy(other);
    return *this;
}

TagCopy::TagCopy(std::unique_ptr<TagLib::Tag> tag)
    : m_kind(kindOf(tag.get()))
{
    m_members.front() = std::move(tag);
}

TagCopy::TagCopy(const FileTags &tags)
{
    for (std::size_t i = 0; i < m_members.size(); ++i) {
        if (!tags.members[i])
            continue;
        m_members[i] = cloneTag(*tags.members[i]);
        m_kind = tags.isUnion ? TagKind::Union : kindOf(m_members[i].get());
    }
}

TagCopy TagCopy::ofFile(TagLib::File &file)
{
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        return TagCopy(copyOf(*mpeg));
    if (auto *wav = dynamic_cast<TagLib::RIFF::WAV::File *>(&file))
        return TagCopy(copyOf(*wav));
    return TagCopy(tagsOf(file));
}

QString TagCopy::value(const QString &key) const
{
    return tags::value(tags(), key);
}

void TagCopy::setValue(const QString &key, const QString &value)
{
    for (const auto &member : m_members) {
        if (member)
            tags::setValue(*member, key, value);
    }
}

FileTags TagCopy::tags() const
{
    return {m_kind == TagKind::Union, {m_members[0].get(), m_members[1].get(), m_members[2].get()}};
}

} // namespace tags
