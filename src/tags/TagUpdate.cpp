// SPDX-License-Identifier: MIT
#include "tags/TagUpdate.h"

#include "tags/AsfKeeping.h"
#include "tags/CheckedFileStream.h"
#include "tags/FileAccess.h"
#include "tags/FileCopying.h"
#include "tags/Id3v2Frames.h"
#include "tags/Mp4Keeping.h"
#include "tags/SafeSave.h"
#include "tags/SaveJournal.h"
#include "tags/SongComparison.h"
#include "tags/SongLayout.h"
#include "tags/TagEdits.h"
#include "tags/TagText.h"

#include <taglib/audioproperties.h>
#include <taglib/fileref.h>
#include <taglib/tiostream.h>

#include <QLoggingCategory>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <memory>

#include <fcntl.h>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

// TagLib leaves up to 1 MB of padding behind a tag.
constexpr qint64 paddingBytes = qint64{2} * 1024 * 1024;
// Left behind a tag that had to grow once more, for the next save.
constexpr int framePaddingBytes = 1024;
// A character of a text takes at most so much in any encoding.
constexpr qint64 characterBytes = 4;

// A song that TagLib has opened, on a descriptor of its own.
class OpenSong
{
public:
    // Takes the descriptor over. `path` tells the format.
    OpenSong(int descriptor, const QByteArray &path, CheckedFileStream::Access access)
        : m_stream(descriptor, path, access)
    {
        m_stream.setReadBudget(ReadBudget::forSize(FileBytes(descriptor).size()));
        m_reference = TagLib::FileRef(m_stream.stream(), true, TagLib::AudioProperties::Average);
        m_stream.liftReadBudget();
    }

    [[nodiscard]] bool isNull() const { return m_reference.isNull(); }
    [[nodiscard]] TagLib::File &file() const { return *m_reference.file(); }
    [[nodiscard]] CheckedFileStream &stream() { return m_stream; }
    [[nodiscard]] bool holdsAudio() const
    {
        const TagLib::AudioProperties *properties = m_reference.audioProperties();
        return properties && (properties->lengthInMilliseconds() > 0 || properties->sampleRate() > 0);
    }

private:
    CheckedFileStream m_stream;
    TagLib::FileRef m_reference;
};

QByteArray resolvedPath(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.constData(), nullptr), &std::free);
    return resolved ? QByteArray(resolved.get()) : QByteArray();
}

// As it would be read from a tag that holds it.
QString readable(const QString &name)
{
    return cleanedText(fromTagText(toTagText(name)), maximumFieldLength);
}

// One update of one file: what is there, what is to change, and the change on a copy.
class Update
{
public:
    Update(const QByteArray &path, const SongTexts &texts, const std::optional<ShownTexts> &shown)
        : m_path(path)
        , m_texts(texts)
        , m_shown(shown)
    {
    }
    UpdateResult run(const QString &dataFolder);

private:
    UpdateResult change(int copy);
    UpdateResult writeTags(int copy);
    UpdateResult keepFrames(CheckedFileStream &stream);
    void keepId3v1(CheckedFileStream &stream) const;
    [[nodiscard]] bool growChunk(TagLib::IOStream &stream, const ByteRange &room, int newLength) const;
    UpdateResult check(int copy);
    [[nodiscard]] bool areEditedFramesSeen(const QHash<QByteArray, int> &seen) const;
    [[nodiscard]] OpenSong opened(int descriptor, CheckedFileStream::Access access) const;

    QByteArray m_path;
    const SongTexts &m_texts;
    const std::optional<ShownTexts> &m_shown;
    int m_original = -1;
    SongLayout m_layout;
    TagEdits m_edits;
    AppliedEdits m_applied;
};

UpdateResult Update::run(const QString &dataFolder)
{
    m_original = openRegularFile(m_path, O_RDONLY);
    if (m_original < 0)
        return UpdateResult::Unreadable;
    const FileIdentity identity = FileIdentity::of(m_original);
    OpenSong song(m_original, m_path, CheckedFileStream::Access::Read);
    if (song.isNull())
        return UpdateResult::Unreadable;
    if (!song.holdsAudio())
        return UpdateResult::NotAudio;
    const QHash<QByteArray, int> framesSeen = editableFrames(song.file());
    m_edits = editsOf(song.file(), m_texts, m_shown);
    if (m_edits.conflict)
        return UpdateResult::ChangedMeanwhile;
    if (m_shown && m_shown->lyricsAreOfNames && m_edits.isRenamed)
        return UpdateResult::RenamedMeanwhile;
    m_applied = apply(m_edits, song.file());
    if (!m_applied.isPossible)
        return UpdateResult::NoLyricsPlace;
    if (!m_applied.isChanged)
        return UpdateResult::Unchanged;
    const auto layout = SongLayout::of(FileBytes(m_original), formatOf(song.file()));
    if (!layout)
        return UpdateResult::Unusual;
    m_layout = *layout;
    if (!areEditedFramesSeen(framesSeen))
        return UpdateResult::TagsNotKept;
    const qint64 characters = m_texts.artist.size() + m_texts.title.size() + m_texts.lyrics.size();
    return SafeSave(m_path, m_original, identity, dataFolder)
        .run([this](int copy) { return change(copy); }, paddingBytes + 2 * characters * characterBytes);
}

// Behind a frame that it does not understand TagLib sees no more. Such a frame must not be replaced, since nobody was
// shown what it says.
bool Update::areEditedFramesSeen(const QHash<QByteArray, int> &seen) const
{
    if (m_layout.id3v2.length == 0 || m_layout.id3v2View != Id3v2View::Stored)
        return true;
    return std::all_of(m_applied.frames.begin(), m_applied.frames.end(), [this, &seen](const QByteArray &frame) {
        constexpr int flagBytes = 2;
        const auto isStored = [&frame](const TagItem &item) {
            return item.key == "ID3v2/" + frame && item.value.size() > flagBytes; // empty ones are passed over
        };
        return std::count_if(m_layout.items.begin(), m_layout.items.end(), isStored) <= seen.value(frame);
    });
}

OpenSong Update::opened(int descriptor, CheckedFileStream::Access access) const
{
    return {::fcntl(descriptor, F_DUPFD_CLOEXEC, 0), m_path, access};
}

UpdateResult Update::change(int copy)
{
    UpdateResult written = writeTags(copy);
    if (written == UpdateResult::Saved && m_layout.format == SongFormat::Mp4)
        written = keepMp4Parts(copy, m_path, FileBytes(m_original), m_layout, m_applied.keys);
    if (written != UpdateResult::Saved)
        return written;
    startSync(copy); // while it is checked
    return check(copy);
}

UpdateResult Update::writeTags(int copy)
{
    OpenSong song = opened(copy, CheckedFileStream::Access::ReadWrite);
    if (song.isNull())
        return UpdateResult::DiskError; // it was readable where it came from
    const AppliedEdits applied = apply(m_edits, song.file());
    keepOldCovers(song.file(), m_layout.items);
    const bool saved = save(applied, song.file());
    const UpdateResult kept = song.stream().error() == 0 ? keepFrames(song.stream()) : UpdateResult::Saved;
    keepId3v1(song.stream());
    if (m_layout.format == SongFormat::Asf && song.stream().error() == 0)
        keepAsfAttributes(*song.stream().stream(), FileBytes(copy), FileBytes(m_original), m_applied.keys);
    if (song.stream().error() != 0)
        return resultOfError(song.stream().error());
    return saved ? kept : UpdateResult::SaveFailed;
}

// TagLib converts the frames of an ID3v2 tag and drops those that it does not know, or that it thinks of another
// version. So all but the edited ones are put back as they were stored, into the room that TagLib made.
UpdateResult Update::keepFrames(CheckedFileStream &stream)
{
    if (m_layout.id3v2.length == 0 || m_layout.id3v2View != Id3v2View::Stored)
        return UpdateResult::Saved;
    const auto written = SongLayout::of(FileBytes(stream.descriptor()), m_layout.format);
    auto tag = Id3v2Frames::parse(FileBytes(m_original).read(m_layout.id3v2.offset, m_layout.id3v2.length));
    if (!written || !tag)
        return UpdateResult::TagsNotKept;
    const auto isEdited = [this](const Id3v2Frame &frame) {
        return m_applied.frames.contains(frame.id);
    };
    tag->frames.erase(std::remove_if(tag->frames.begin(), tag->frames.end(), isEdited), tag->frames.end());
    if (const auto edited = Id3v2Frames::parse(editedFrames(m_edits, m_applied, tag->version)))
        tag->frames = edited->frames + tag->frames; // before any that TagLib does not understand
    if (written->id3v2.length == 0)
        return tag->frames.isEmpty() ? UpdateResult::Saved : UpdateResult::TagsNotKept;
    const ByteRange room = written->id3v2;
    QByteArray bytes = tag->toTag(static_cast<int>(room.length));
    if (bytes.size() > room.length)
        bytes = tag->toTag(bytes.size() + framePaddingBytes + bytes.size() % 2);
    const TagLib::ByteVector data(bytes.constData(), static_cast<unsigned int>(bytes.size()));
    stream.stream()->insert(data, static_cast<unsigned long>(room.offset), static_cast<unsigned long>(room.length));
    return bytes.size() == room.length || growChunk(*stream.stream(), room, bytes.size()) ? UpdateResult::Saved
                                                                                          : UpdateResult::TagsNotKept;
}

// TagLib writes ID3v1 in version 1.1, which cuts a longer comment of version 1.0, and drops what lies behind the end of
// a text. So all but the edited fields are put back.
void Update::keepId3v1(CheckedFileStream &stream) const
{
    const qint64 place = stream.stream()->length() - id3v1Bytes;
    if (m_layout.id3v1.length == 0 || FileBytes(stream.descriptor()).read(place, 3) != "TAG")
        return;
    QByteArray tag = FileBytes(m_original).read(m_layout.id3v1.offset, id3v1Bytes);
    for (auto field = m_applied.id3v1.begin(); field != m_applied.id3v1.end(); ++field)
        tag.replace(field.key(), field->size(), *field);
    stream.stream()->seek(place, TagLib::IOStream::Beginning);
    stream.stream()->writeBlock({tag.constData(), static_cast<unsigned int>(tag.size())});
}

// Where the tag is a chunk, the chunk and the file say how long they are.
bool Update::growChunk(TagLib::IOStream &stream, const ByteRange &room, int newLength) const
{
    if (m_layout.format != SongFormat::Riff && m_layout.format != SongFormat::Iff)
        return true;
    const auto writeSize = [this, &stream](qint64 place, qint64 size) {
        const bool isBigEndian = m_layout.format == SongFormat::Iff;
        stream.seek(place, TagLib::IOStream::Beginning);
        stream.writeBlock(TagLib::ByteVector::fromUInt(static_cast<unsigned int>(size), isBigEndian));
    };
    writeSize(room.offset - 4, newLength);
    writeSize(4, stream.length() - 8);
    return room.length % 2 == 0; // else a byte that filled the chunk up is left behind it
}

// The texts are stored when storing them again would change nothing.
UpdateResult Update::check(int copy)
{
    const FileBytes written(copy);
    const auto layout = SongLayout::of(written, m_layout.format, m_layout.id3v2View);
    if (!layout)
        return UpdateResult::AudioNotKept;
    switch (compareSongs(FileBytes(m_original), m_layout, written, *layout, m_applied.keys)) {
    case SongDifference::Audio:
        return UpdateResult::AudioNotKept;
    case SongDifference::Tags:
        return UpdateResult::TagsNotKept;
    case SongDifference::None:
        break;
    }
    const OpenSong song = opened(copy, CheckedFileStream::Access::Read);
    const bool isStored = !song.isNull() && song.holdsAudio() && !apply(m_edits, song.file()).isChanged;
    return isStored ? UpdateResult::Saved : UpdateResult::SaveFailed;
}

} // namespace

UpdateResult updateTags(const QString &path, const SongTexts &texts, const QString &dataFolder,
                        const std::optional<ShownTexts> &shown)
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
    const QByteArray resolved = resolvedPath(nativePath(path));
    if (resolved.isEmpty())
        return UpdateResult::Missing;
    // Asked first: what the file says now may be torn, and will not stay.
    if (SaveJournal(dataFolder).awaitsRestoring(resolved))
        return UpdateResult::AwaitsRestoring;
    acceptLatin1InRiffInfo();
    try {
        const SongTexts stored{readable(texts.artist), readable(texts.title), texts.lyrics};
        return Update(resolved, stored, shown).run(dataFolder);
    } catch (const std::exception &error) {
        qCWarning(lcTags) << "a file could not be written:" << error.what();
        return UpdateResult::Unreadable;
    }
}

} // namespace tags
