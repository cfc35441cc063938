// SPDX-License-Identifier: MIT
#include "tags/TagEdits.h"

#include "tags/FileTags.h"
#include "tags/TagCopy.h"
#include "tags/TagFields.h"
#include "tags/TagKeys.h"
#include "tags/TagKind.h"
#include "tags/TagText.h"

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/apetag.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/trueaudiofile.h>
#include <taglib/unknownframe.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>
#include <taglib/xiphcomment.h>

#include <algorithm>

namespace tags {

namespace {

// As it would be read from a tag, with line breaks of one kind.
QString comparable(const QString &lyrics)
{
    QString text = cleanedText(lyrics, maximumLyricsLength);
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

// The items in which the formats keep what can be edited, as SongLayout names them; MP4 in Latin-1.
const QByteArray mp4Artist = QByteArray::fromHex("a9") + "ART";
const QByteArray mp4Title = QByteArray::fromHex("a9") + "nam";
const QByteArray mp4Lyrics = QByteArray::fromHex("a9") + "lyr";
const QSet<QByteArray> artistItems{"ID3v2/TPE1",  id3v1Artist.key,    "APE/ARTIST",
                                   "Xiph/ARTIST", "MP4/" + mp4Artist, "ASF/description/Author"};
const QSet<QByteArray> titleItems{"ID3v2/TIT2", id3v1Title.key,    "APE/TITLE",
                                  "Xiph/TITLE", "MP4/" + mp4Title, "ASF/description/Title"};
const QSet<QByteArray> lyricsItems{"ID3v2/USLT", "APE/LYRICS", "Xiph/LYRICS", "MP4/" + mp4Lyrics, "ASF/WM/Lyrics"};

void noteChange(AppliedEdits &applied, const TagLib::Tag &tag, const QSet<QByteArray> &items, const char *frame)
{
    applied.isChanged = true;
    applied.keys += items;
    if (kindOf(&tag) == TagKind::Id3v2)
        applied.frames.insert(frame);
}

void noteId3v1Field(AppliedEdits &applied, const TagLib::Tag &tag, const Id3v1Field &field)
{
    if (kindOf(&tag) != TagKind::Id3v1)
        return;
    const TagLib::ByteVector stored = static_cast<const TagLib::ID3v1::Tag &>(tag).render();
    applied.id3v1[field.offset] = QByteArray(stored.data() + field.offset, id3v1FieldBytes);
}

bool applyNames(const TagEdits &edits, TagLib::Tag &tag, AppliedEdits &applied)
{
    const bool newArtist = !edits.artist.isEmpty() && setName(tag, keys::artist, edits.artist);
    const bool newTitle = !edits.title.isEmpty() && setName(tag, keys::title, edits.title);
    if (newArtist) {
        noteChange(applied, tag, artistItems, "TPE1");
        noteId3v1Field(applied, tag, id3v1Artist);
    }
    if (newTitle) {
        noteChange(applied, tag, titleItems, "TIT2");
        noteId3v1Field(applied, tag, id3v1Title);
    }
    return newArtist || newTitle;
}

void applyLyrics(const TagEdits &edits, TagLib::Tag &tag, AppliedEdits &applied)
{
    if (edits.lyrics && setLyrics(tag, *edits.lyrics))
        noteChange(applied, tag, lyricsItems, "USLT");
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

// Whether ID3v1 holds no more than this of the whole text: so many bytes of Latin-1, with "?" for other characters.
bool isRestOf(const QString &whole, const QString &cut, int bytes)
{
    return QString::fromLatin1(whole.toLatin1().left(bytes)).trimmed() == cut;
}

// What ID3v1 had to cut, or could not spell.
void fillCutTexts(TagLib::Tag &tag, const TagLib::Tag *source)
{
    for (const QLatin1String key : {keys::title, keys::artist, keys::album, keys::comment}) {
        const QString whole = source ? value(*source, key) : QString();
        const QString cut = value(tag, key);
        const bool isComment = key == keys::comment; // two bytes shorter in version 1.1
        if (isRestOf(whole, cut, id3v1FieldBytes) || (isComment && isRestOf(whole, cut, id3v1FieldBytes - 2)))
            setValue(tag, key, whole);
    }
}

// The ID3v2 version is kept, 3 for a new tag. ID3v1 and APE are never made, and not a byte of them is touched unless a
// name changed in them.
AppliedEdits applyToMpeg(const TagEdits &edits, TagLib::MPEG::File &file)
{
    AppliedEdits applied;
    applied.hadId3v2 = file.hasID3v2Tag();
    TagLib::ID3v2::Tag &tag = *file.ID3v2Tag(true);
    applyNames(edits, tag, applied);
    applyLyrics(edits, tag, applied);
    applied.newApe = file.hasAPETag() && applyNames(edits, *file.APETag(), applied);
    if (file.hasID3v1Tag())
        applyNames(edits, *file.ID3v1Tag(), applied);
    // A new ID3v2 tag hides the other two from players, and is to say what is read from them now.
    if (applied.isChanged && !applied.hadId3v2) {
        fill(tag, file.ID3v1Tag());
        fillCutTexts(tag, file.APETag());
        fill(tag, file.APETag());
    }
    return applied;
}

AppliedEdits applyToOther(const TagEdits &edits, TagLib::File &file)
{
    AppliedEdits applied;
    const NewTag made = newTagOf(file);
    const FileTags tags = tagsOf(file);
    applied.isPossible = std::any_of(tags.members.begin(), tags.members.end(),
                                     [](const TagLib::Tag *tag) { return tag && canHoldLyrics(*tag); });
    if (!applied.isPossible)
        return applied;
    for (TagLib::Tag *member : tags.members) {
        if (!member)
            continue;
        applyNames(edits, *member, applied);
        applyLyrics(edits, *member, applied);
    }
    if (applied.isChanged && made.tag)
        fill(*made.tag, made.hidden);
    return applied;
}

void keepOldCover(TagLib::Ogg::XiphComment &comment, const QByteArray &text)
{
    const TagLib::ByteVector stored(text.constData(), static_cast<unsigned int>(text.size()));
    const TagLib::ByteVector data = TagLib::ByteVector::fromBase64(stored);
    for (TagLib::FLAC::Picture *picture : comment.pictureList()) {
        if (picture->mimeType() != "image/" || picture->data() != data)
            continue;
        comment.removePicture(picture, true);
        comment.addField("COVERART", TagLib::String(stored, TagLib::String::Latin1), false);
        return;
    }
}

} // namespace

namespace {

using TextOf = QString SongTexts::*;

bool isUnderWay(const ShownTexts &shown, TextOf text, const QString &stored)
{
    return std::any_of(shown.underWay.begin(), shown.underWay.end(),
                       [&](const SongTexts &texts) { return comparable(texts.*text) == comparable(stored); });
}

bool isEdited(const SongTexts &texts, TextOf text, const QString &stored, const std::optional<ShownTexts> &shown)
{
    return !shown || comparable(texts.*text) != comparable(shown->texts.*text) || isUnderWay(*shown, text, stored);
}

// Whether another program has stored it since the user was shown the text.
bool isForeign(TextOf text, const QString &stored, const std::optional<ShownTexts> &shown)
{
    return shown && comparable(stored) != comparable(shown->texts.*text) && !isUnderWay(*shown, text, stored);
}

// What the name is to become; empty when it stays.
QString editOf(const SongTexts &texts, TextOf name, const QString &stored, const std::optional<ShownTexts> &shown)
{
    return texts.*name != stored && isEdited(texts, name, stored, shown) ? texts.*name : QString();
}

} // namespace

TagEdits editsOf(TagLib::File &file, const SongTexts &texts, const std::optional<ShownTexts> &shown)
{
    const TagCopy read = TagCopy::ofFile(file);
    TagEdits edits;
    const QString artist = read.value(keys::artist);
    const QString title = read.value(keys::title);
    edits.artist = editOf(texts, &SongTexts::artist, artist, shown);
    edits.title = editOf(texts, &SongTexts::title, title, shown);
    const auto staysForeign = [&](TextOf name, const QString &edit, const QString &storedName) {
        return edit.isEmpty() && storedName != texts.*name && isForeign(name, storedName, shown);
    };
    edits.isRenamed =
        staysForeign(&SongTexts::artist, edits.artist, artist) || staysForeign(&SongTexts::title, edits.title, title);
    const QString stored = comparable(read.value(keys::lyrics));
    if (comparable(texts.lyrics) == stored || !isEdited(texts, &SongTexts::lyrics, stored, shown))
        return edits;
    edits.lyrics = texts.lyrics;
    edits.conflict = isForeign(&SongTexts::lyrics, stored, shown) && !shown->replacesForeignLyrics && !stored.isEmpty();
    return edits;
}

QHash<QByteArray, int> editableFrames(TagLib::File &file)
{
    QHash<QByteArray, int> frames;
    for (const TagLib::Tag *member : tagsOf(file).members) {
        const auto *tag = dynamic_cast<const TagLib::ID3v2::Tag *>(member);
        for (const char *id : {"TPE1", "TIT2", "USLT"}) {
            for (const TagLib::ID3v2::Frame *frame : tag ? tag->frameList(id) : TagLib::ID3v2::FrameList())
                frames[id] += dynamic_cast<const TagLib::ID3v2::UnknownFrame *>(frame) ? 0 : 1; // encrypted, mostly
        }
    }
    return frames;
}

void keepOldCovers(TagLib::File &file, const QVector<TagItem> &items)
{
    for (TagLib::Tag *member : tagsOf(file).members) {
        auto *comment = dynamic_cast<TagLib::Ogg::XiphComment *>(member);
        for (const TagItem &item : items) {
            if (comment && item.key == "Xiph/COVERART")
                keepOldCover(*comment, item.value);
        }
    }
}

AppliedEdits apply(const TagEdits &edits, TagLib::File &file)
{
    auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file);
    return mpeg ? applyToMpeg(edits, *mpeg) : applyToOther(edits, file);
}

// Of a WAV file the ID3v2 chunk alone is written: RIFF INFO knows no encoding, and what another program put there
// may not survive a rewrite.
bool save(const AppliedEdits &applied, TagLib::File &file)
{
    constexpr auto stripNone = TagLib::File::StripNone;
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(&file)) {
        using TagLib::MPEG::File;
        const int kinds = File::ID3v2 | (applied.newApe ? File::APE : 0);
        return mpeg->save(kinds, stripNone, versionToSave(applied.hadId3v2, *mpeg->ID3v2Tag()), File::DoNotDuplicate);
    }
    if (auto *wav = dynamic_cast<TagLib::RIFF::WAV::File *>(&file))
        return wav->save(TagLib::RIFF::WAV::File::ID3v2, stripNone,
                         versionToSave(wav->hasID3v2Tag(), *wav->ID3v2Tag()));
    if (auto *aiff = dynamic_cast<TagLib::RIFF::AIFF::File *>(&file))
        return aiff->save(versionToSave(aiff->hasID3v2Tag(), *aiff->tag()));
    return file.save();
}

QByteArray editedFrames(const TagEdits &edits, const AppliedEdits &applied, int version)
{
    TagLib::ID3v2::Tag tag;
    if (applied.frames.contains("TPE1"))
        setName(tag, keys::artist, edits.artist);
    if (applied.frames.contains("TIT2"))
        setName(tag, keys::title, edits.title);
    if (applied.frames.contains("USLT"))
        setLyrics(tag, *edits.lyrics);
    if (tag.isEmpty() && tag.frameList().isEmpty())
        return {};
    const TagLib::ByteVector bytes = tag.render(version == 4 ? TagLib::ID3v2::v4 : TagLib::ID3v2::v3);
    return {bytes.data(), static_cast<int>(bytes.size())};
}

} // namespace tags
