// SPDX-License-Identifier: MIT
#include "tags/TagUpdate.h"

#include "tags/FileAccess.h"
#include "tags/FileTags.h"
#include "tags/TagCopy.h"
#include "tags/TagFields.h"
#include "tags/TagKeys.h"
#include "tags/TagText.h"

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/apetag.h>
#include <taglib/audioproperties.h>
#include <taglib/fileref.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/trueaudiofile.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>

#include <QLoggingCategory>

#include <algorithm>
#include <exception>
#include <optional>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

bool holdsAudio(const TagLib::FileRef &reference)
{
    const TagLib::AudioProperties *properties = reference.audioProperties();
    return properties && (properties->lengthInMilliseconds() > 0 || properties->sampleRate() > 0);
}

// What is left to store when all that the file says already is taken away.
struct Edits
{
    QString artist; // empty: leave it
    QString title;  // empty: leave it
    std::optional<QString> lyrics;
};

QString withPlainBreaks(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

// Everything is compared with the text that was read from the file, since that is what the user saw. So lyrics that
// were not edited keep their second language and their description. And where lyrics are never read, in APE tags and
// WAV files, empty lyrics mean that nobody saw the stored ones: deliberately they do not remove them.
Edits editsOf(TagLib::File &file, const SongTexts &texts)
{
    const TagCopy read = TagCopy::ofFile(file);
    Edits edits;
    if (texts.artist != read.value(keys::artist))
        edits.artist = texts.artist;
    if (texts.title != read.value(keys::title))
        edits.title = texts.title;
    if (withPlainBreaks(texts.lyrics) != withPlainBreaks(read.value(keys::lyrics)))
        edits.lyrics = texts.lyrics;
    return edits;
}

bool setNames(TagLib::Tag &tag, const Edits &edits)
{
    const bool newArtist = !edits.artist.isEmpty() && setName(tag, keys::artist, edits.artist);
    const bool newTitle = !edits.title.isEmpty() && setName(tag, keys::title, edits.title);
    return newArtist || newTitle;
}

bool storeLyrics(TagLib::Tag &tag, const Edits &edits)
{
    return edits.lyrics && setLyrics(tag, *edits.lyrics);
}

// Only what is missing in it.
void fill(TagLib::Tag &tag, const TagLib::Tag *source)
{
    if (source)
        TagLib::Tag::duplicate(source, &tag, false);
}

TagLib::ID3v2::Version versionToSave(bool hadTag, const TagLib::ID3v2::Tag &tag)
{
    return hadTag && tag.header()->majorVersion() == 4 ? TagLib::ID3v2::v4 : TagLib::ID3v2::v3;
}

UpdateResult resultOf(bool saved)
{
    return saved ? UpdateResult::Saved : UpdateResult::SaveFailed;
}

// The ID3v2 version is kept, 3 for a new tag. ID3v1 and APE are never made, and not a byte of them is touched unless a
// name changed in them.
UpdateResult updateMpeg(TagLib::MPEG::File &file, const Edits &edits)
{
    using TagLib::MPEG::File;
    const bool hadId3v2 = file.hasID3v2Tag();
    TagLib::ID3v2::Tag &tag = *file.ID3v2Tag(true);
    const bool newNames = setNames(tag, edits);
    const bool newLyrics = storeLyrics(tag, edits);
    const bool newApe = file.hasAPETag() && setNames(*file.APETag(), edits);
    const bool newId3v1 = file.hasID3v1Tag() && setNames(*file.ID3v1Tag(), edits);
    if (!newNames && !newLyrics && !newApe && !newId3v1)
        return UpdateResult::Unchanged;
    // A new ID3v2 tag hides the other two from players; APE is asked first, since ID3v1 cuts its texts.
    if (!hadId3v2) {
        fill(tag, file.APETag());
        fill(tag, file.ID3v1Tag());
    }
    const int kinds = File::ID3v2 | (newApe ? File::APE : 0) | (newId3v1 ? File::ID3v1 : 0);
    return resultOf(file.save(kinds, File::StripNone, versionToSave(hadId3v2, tag), File::DoNotDuplicate));
}

// A tag that the file does not have yet, and the one that it hides from readers, this program among them.
struct NewTag
{
    TagLib::Tag *tag = nullptr;
    const TagLib::Tag *hidden = nullptr;
};

template<typename File>
NewTag newApeTag(File &file)
{
    return file.hasAPETag() || !file.ID3v1Tag() ? NewTag() : NewTag{file.APETag(true), file.ID3v1Tag()};
}

// Without a tag TagLib makes the right one by itself; beside ID3v1, which holds no lyrics, it has to be asked.
NewTag newTagOf(TagLib::File &file)
{
    if (auto *wav = dynamic_cast<TagLib::RIFF::WAV::File *>(&file))
        return wav->hasID3v2Tag() ? NewTag() : NewTag{wav->ID3v2Tag(), wav->InfoTag()};
    if (auto *ape = dynamic_cast<TagLib::APE::File *>(&file))
        return newApeTag(*ape);
    if (auto *wavPack = dynamic_cast<TagLib::WavPack::File *>(&file))
        return newApeTag(*wavPack);
    if (auto *musepack = dynamic_cast<TagLib::MPC::File *>(&file))
        return newApeTag(*musepack);
    auto *trueAudio = dynamic_cast<TagLib::TrueAudio::File *>(&file);
    if (trueAudio && !trueAudio->hasID3v2Tag() && trueAudio->ID3v1Tag())
        return {trueAudio->ID3v2Tag(true), trueAudio->ID3v1Tag()};
    return {};
}

// Of a WAV file the ID3v2 chunk alone is written: RIFF INFO knows no encoding, and what another program put there
// may not survive a rewrite.
bool save(TagLib::File &file)
{
    using TagLib::RIFF::WAV::File;
    if (auto *wav = dynamic_cast<File *>(&file))
        return wav->save(File::ID3v2, File::StripNone, versionToSave(wav->hasID3v2Tag(), *wav->ID3v2Tag()));
    if (auto *aiff = dynamic_cast<TagLib::RIFF::AIFF::File *>(&file))
        return aiff->save(versionToSave(aiff->hasID3v2Tag(), *aiff->tag()));
    return file.save();
}

UpdateResult updateOther(TagLib::File &file, const Edits &edits)
{
    const NewTag made = newTagOf(file);
    const FileTags tags = tagsOf(file);
    const auto holdsLyrics = [](const TagLib::Tag *tag) {
        return tag && canHoldLyrics(*tag);
    };
    if (std::none_of(tags.members.begin(), tags.members.end(), holdsLyrics))
        return UpdateResult::NoLyricsPlace;
    bool changed = false;
    for (TagLib::Tag *member : tags.members) {
        changed = (member && setNames(*member, edits)) || changed;
        changed = (member && storeLyrics(*member, edits)) || changed;
    }
    if (!changed)
        return UpdateResult::Unchanged;
    if (made.tag)
        fill(*made.tag, made.hidden);
    return resultOf(save(file));
}

UpdateResult updateWritable(const QString &path, const SongTexts &texts)
{
    acceptLatin1InRiffInfo();
    const TagLib::FileRef reference(nativePath(path).constData(), true, TagLib::AudioProperties::Average);
    if (reference.isNull())
        return UpdateResult::Unreadable;
    if (reference.file()->readOnly())
        return UpdateResult::ReadOnly;
    if (!holdsAudio(reference))
        return UpdateResult::NotAudio;
    const Edits edits = editsOf(*reference.file(), texts);
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(reference.file()))
        return updateMpeg(*mpeg, edits);
    return updateOther(*reference.file(), edits);
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
