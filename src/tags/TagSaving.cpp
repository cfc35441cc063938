// SPDX-License-Identifier: MIT
#include "tags/TagSaving.h"

#include "tags/FileAccess.h"
#include "tags/FileTags.h"
#include "tags/TagCloning.h"
#include "tags/TagFields.h"
#include "tags/TagKind.h"
#include "tags/TagText.h"

#include <taglib/fileref.h>
#include <taglib/id3v1genres.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>
#include <taglib/wavfile.h>

#include <algorithm>

namespace tags {

namespace {

constexpr int unknownGenre = 255; // what ID3v1 stores for "none of the list"

// A genre of the ID3v1 list goes into ID3v2.3 as its number in brackets, which every player knows.
void normaliseGenre(TagLib::ID3v2::Tag &tag)
{
    const auto &frames = tag.frameListMap();
    const auto found = frames.find("TCON");
    if (found == frames.end() || found->second.isEmpty())
        return;
    const int number = TagLib::ID3v1::genreIndex(tag.genre());
    if (number != unknownGenre)
        found->second.front()->setText(toTagText(QStringLiteral("(%1)").arg(number)));
}

void writeInto(TagLib::Tag *target, const FileTags &tags, const KeyedValues &values)
{
    if (!target)
        return;
    if (std::any_of(tags.members.begin(), tags.members.end(), [](const TagLib::Tag *tag) { return tag != nullptr; }))
        mergeTags(tags, *target);
    for (const auto &[key, value] : values) {
        if (!value.isEmpty())
            setValue(*target, key, value);
    }
    if (kindOf(target) == TagKind::Id3v2)
        normaliseGenre(static_cast<TagLib::ID3v2::Tag &>(*target));
}

bool saveFile(TagLib::File &file)
{
    constexpr auto strip = TagLib::File::StripOthers;
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file))
        return mpeg->save(TagLib::MPEG::File::AllTags, strip, TagLib::ID3v2::v3);
    if (auto *wav = dynamic_cast<TagLib::RIFF::WAV::File *>(&file))
        return wav->save(TagLib::RIFF::WAV::File::AllTags, strip, TagLib::ID3v2::v3);
    return file.save();
}

} // namespace

bool saveTags(const QString &fileName, const FileTags &tags, const KeyedValues &values,
              const QVector<TagPicture> &pictures)
{
    if (fileAccess(fileName) != FileAccess::Writable)
        return false;
    acceptLatin1InRiffInfo();
    const TagLib::FileRef reference(nativePath(fileName).constData());
    if (reference.isNull())
        return false;
    TagLib::File &file = *reference.file();
    for (TagLib::Tag *target : tagsOf(file).members)
        writeInto(target, tags, values);
    if (auto *wav = dynamic_cast<TagLib::RIFF::WAV::File *>(&file))
        writeInto(wav->InfoTag(), tags, values);
    if (!pictures.isEmpty())
        writePictures(file, pictures);
    return saveFile(file);
}

} // namespace tags
