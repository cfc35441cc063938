// SPDX-License-Identifier: MIT
#include "tags/TagUpdate.h"

#include "tags/FileAccess.h"
#include "tags/FileTags.h"
#include "tags/Id3v2TagFields.h"
#include "tags/TagCopy.h"
#include "tags/TagFields.h"
#include "tags/TagKeys.h"

#include <taglib/audioproperties.h>
#include <taglib/fileref.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/wavfile.h>

#include <QLoggingCategory>

#include <algorithm>
#include <exception>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

bool holdsAudio(const TagLib::FileRef &reference)
{
    const TagLib::AudioProperties *properties = reference.audioProperties();
    return properties && (properties->lengthInMilliseconds() > 0 || properties->sampleRate() > 0);
}

const TagLib::ID3v2::Tag *id3v2Of(const FileTags &tags)
{
    for (const TagLib::Tag *member : tags.members) {
        if (kindOf(member) == TagKind::Id3v2)
            return static_cast<const TagLib::ID3v2::Tag *>(member);
    }
    return nullptr;
}

bool artistDiffers(const FileTags &tags, const TagCopy &read, const QString &wanted)
{
    if (wanted.isEmpty() || wanted == read.value(keys::artist))
        return false;
    const TagLib::ID3v2::Tag *tag = id3v2Of(tags);
    return !tag || wanted != id3v2::value(*tag, keys::artist);
}

void setArtist(TagLib::Tag &tag, const QString &artist)
{
    switch (kindOf(&tag)) {
    case TagKind::Id3v2:
        return id3v2::setValue(static_cast<TagLib::ID3v2::Tag &>(tag), keys::artist, artist);
    case TagKind::Id3v1: // holds one artist
        return setValue(tag, keys::artist, artist.section(artistSeparator, 0, 0));
    default:
        return setValue(tag, keys::artist, artist);
    }
}

bool updateNames(TagLib::File &file, const SongTexts &texts)
{
    const FileTags tags = tagsOf(file);
    const TagCopy read = TagCopy::ofFile(file);
    const bool newArtist = artistDiffers(tags, read, texts.artist);
    const bool newTitle = !texts.title.isEmpty() && texts.title != read.value(keys::title);
    for (TagLib::Tag *member : tags.members) {
        if (member && newArtist)
            setArtist(*member, texts.artist);
        if (member && newTitle)
            setValue(*member, keys::title, texts.title);
    }
    return newArtist || newTitle;
}

UpdateResult resultOf(bool saved)
{
    return saved ? UpdateResult::Saved : UpdateResult::SaveFailed;
}

// The ID3v2 version is kept, 3 for a new tag; ID3v1 and APE are written where the file has them and never made.
UpdateResult updateMpeg(TagLib::MPEG::File &file, const SongTexts &texts)
{
    using TagLib::MPEG::File;
    const bool hadId3v2 = file.hasID3v2Tag();
    const bool isVersion4 = hadId3v2 && file.ID3v2Tag()->header()->majorVersion() == 4;
    const bool newNames = updateNames(file, texts);
    const bool newLyrics = setLyrics(*file.ID3v2Tag(true), texts.lyrics);
    if (!newNames && !newLyrics)
        return UpdateResult::Unchanged;
    const int kinds = File::ID3v2 | (file.hasID3v1Tag() ? File::ID3v1 : 0) | (file.hasAPETag() ? File::APE : 0);
    // A new ID3v2 tag hides ID3v1 from players, so it takes the names over; otherwise each tag keeps its own.
    return resultOf(file.save(kinds, File::StripNone, isVersion4 ? TagLib::ID3v2::v4 : TagLib::ID3v2::v3,
                              hadId3v2 ? File::DoNotDuplicate : File::Duplicate));
}

// Readers, this program among them, ask an ID3v2 chunk first, so a new one takes over what RIFF INFO says.
void fillNewChunk(TagLib::File &file)
{
    auto *wav = dynamic_cast<TagLib::RIFF::WAV::File *>(&file);
    if (wav && !wav->hasID3v2Tag())
        TagLib::Tag::duplicate(wav->InfoTag(), wav->ID3v2Tag(), false);
}

UpdateResult updateOther(TagLib::File &file, const SongTexts &texts)
{
    const FileTags tags = tagsOf(file);
    const auto holdsLyrics = [](const TagLib::Tag *tag) {
        return tag && canHoldLyrics(*tag);
    };
    if (std::none_of(tags.members.begin(), tags.members.end(), holdsLyrics))
        return UpdateResult::NoLyricsPlace;
    bool changed = updateNames(file, texts);
    for (TagLib::Tag *member : tags.members)
        changed = (member && setLyrics(*member, texts.lyrics)) || changed;
    if (!changed)
        return UpdateResult::Unchanged;
    fillNewChunk(file);
    return resultOf(file.save());
}

UpdateResult updateWritable(const QString &path, const SongTexts &texts)
{
    const TagLib::FileRef reference(nativePath(path).constData(), true, TagLib::AudioProperties::Average);
    if (reference.isNull())
        return UpdateResult::Unreadable;
    if (reference.file()->readOnly())
        return UpdateResult::ReadOnly;
    if (!holdsAudio(reference))
        return UpdateResult::NotAudio;
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(reference.file()))
        return updateMpeg(*mpeg, texts);
    return updateOther(*reference.file(), texts);
}

} // namespace

UpdateResult updateTags(const QString &path, const SongTexts &texts)
{
    switch (fileAccess(path)) {
    case FileAccess::Missing:
        return UpdateResult::Missing;
    case FileAccess::NotRegular:
        return UpdateResult::NotRegular;
    case FileAccess::ReadOnly:
        return UpdateResult::ReadOnly;
    case FileAccess::Writable:
        break;
    }
    try {
        return updateWritable(path, texts);
    } catch (const std::exception &error) {
        qCWarning(lcTags) << "a file could not be written:" << error.what();
        return UpdateResult::Unreadable;
    }
}

} // namespace tags
