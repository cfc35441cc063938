// SPDX-License-Identifier: MIT
#include "tags/FileTags.h"

#include "tags/TagFields.h"

#include <taglib/apefile.h>
#include <taglib/apetag.h>
#include <taglib/flacfile.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/trueaudiofile.h>
#include <taglib/wavpackfile.h>
#include <taglib/xiphcomment.h>

namespace tags {

FileTags tagsOf(TagLib::File &file)
{
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        return {true, {mpeg->ID3v2Tag(), mpeg->APETag(), mpeg->ID3v1Tag()}};
    if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(&file))
        return {true, {flac->xiphComment(), flac->ID3v2Tag(), flac->ID3v1Tag()}};
    if (auto *ape = dynamic_cast<TagLib::APE::File *>(&file))
        return {true, {ape->APETag(), ape->ID3v1Tag(), nullptr}};
    if (auto *wavPack = dynamic_cast<TagLib::WavPack::File *>(&file))
        return {true, {wavPack->APETag(), wavPack->ID3v1Tag(), nullptr}};
    if (auto *musepack = dynamic_cast<TagLib::MPC::File *>(&file))
        return {true, {musepack->APETag(), musepack->ID3v1Tag(), nullptr}};
    if (auto *trueAudio = dynamic_cast<TagLib::TrueAudio::File *>(&file))
        return {true, {trueAudio->ID3v2Tag(), trueAudio->ID3v1Tag(), nullptr}};
    return {false, {file.tag(), nullptr, nullptr}};
}

QString value(const FileTags &tags, const QString &key)
{
    for (const TagLib::Tag *member : tags.members) {
        const QString text = member ? value(*member, key) : QString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

} // namespace tags
