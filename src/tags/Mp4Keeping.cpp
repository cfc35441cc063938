// SPDX-License-Identifier: MIT
#include "tags/Mp4Keeping.h"

#include "tags/CheckedFileStream.h"
#include "tags/SafeSave.h"
#include "tags/SongComparison.h"

#include <taglib/mp4file.h>
#include <taglib/mp4item.h>
#include <taglib/mp4tag.h>

#include <QtEndian>

#include <algorithm>
#include <string>

#include <fcntl.h>

namespace tags {

namespace {

constexpr qint64 dataHeaderBytes = 16; // size, "data", type, locale

CheckedFileStream streamOf(int copy, const QByteArray &path)
{
    return {::fcntl(copy, F_DUPFD_CLOEXEC, 0), path, CheckedFileStream::Access::ReadWrite};
}

TagLib::ByteVector toVector(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<unsigned int>(bytes.size())};
}

QVector<ListItem> lostItems(const SongLayout &before, const SongLayout &after, const QSet<QByteArray> &editedKeys)
{
    QVector<ListItem> lost;
    for (const ListItem &item : before.listItems) {
        const bool isThere =
            std::any_of(after.listItems.begin(), after.listItems.end(), [&item](const ListItem &written) {
                return written.meaning.key == item.meaning.key && written.meaning.value == item.meaning.value;
            });
        if (!isThere && !editedKeys.contains(item.meaning.key))
            lost.append(item);
    }
    return lost;
}

// What TagLib stores as an item of so many bytes.
TagLib::MP4::Item stuffing(const QByteArray &name, qint64 bytes)
{
    const std::string text(static_cast<std::size_t>(bytes - dataHeaderBytes), 'x');
    if (name != "covr")
        return TagLib::StringList(TagLib::String(text));
    TagLib::MP4::CoverArtList covers;
    covers.append({TagLib::MP4::CoverArt::Unknown, {text.data(), static_cast<unsigned int>(text.size())}});
    return covers;
}

// TagLib makes the room: an item of the same length under the same name.
bool makeRoom(CheckedFileStream &stream, const QVector<ListItem> &items)
{
    TagLib::MP4::File file(stream.stream());
    if (!file.isValid() || !file.tag())
        return false;
    for (const ListItem &item : items) {
        if (item.content.length < dataHeaderBytes)
            return false;
        file.tag()->setItem(TagLib::String(item.name.toStdString(), TagLib::String::Latin1),
                            stuffing(item.name, item.content.length));
    }
    return file.save();
}

bool putBack(CheckedFileStream &stream, const QVector<ListItem> &items, const FileBytes &original,
             const SongLayout &written)
{
    for (const ListItem &item : items) {
        const auto room = std::find_if(written.listItems.begin(), written.listItems.end(),
                                       [&item](const ListItem &other) { return other.name == item.name; });
        if (room == written.listItems.end() || room->content.length != item.content.length)
            return false;
        stream.stream()->seek(room->content.offset, TagLib::IOStream::Beginning);
        stream.stream()->writeBlock(toVector(original.read(item.content.offset, item.content.length)));
    }
    return true;
}

void writeIndex(CheckedFileStream &stream, const SongLayout &before, const SongLayout &written)
{
    const QVector<qint64> moved = movedOffsets(before, written);
    for (int i = 0; i < std::min(moved.size(), written.audioOffsets.size()); ++i) {
        const AudioOffset &entry = written.audioOffsets.at(i);
        if (entry.offset == moved.at(i))
            continue;
        QByteArray bytes(static_cast<int>(sizeof(qint64)), '\0');
        qToBigEndian(moved.at(i), bytes.data());
        stream.stream()->seek(entry.field.offset, TagLib::IOStream::Beginning);
        stream.stream()->writeBlock(toVector(bytes.right(static_cast<int>(entry.field.length))));
    }
}

} // namespace

UpdateResult keepMp4Parts(int copy, const QByteArray &path, const FileBytes &original, const SongLayout &before,
                          const QSet<QByteArray> &editedKeys)
{
    auto written = SongLayout::of(FileBytes(copy), before.format);
    if (!written)
        return UpdateResult::AudioNotKept;
    const QVector<ListItem> lost = lostItems(before, *written, editedKeys);
    if (lost.isEmpty() && !before.hasFragmentIndex)
        return UpdateResult::Saved;
    CheckedFileStream stream = streamOf(copy, path);
    if (!lost.isEmpty()) {
        const bool hasRoom = makeRoom(stream, lost);
        written = hasRoom ? SongLayout::of(FileBytes(copy), before.format) : std::nullopt;
        if (!written || !putBack(stream, lost, original, *written))
            return UpdateResult::TagsNotKept;
    }
    if (before.hasFragmentIndex)
        writeIndex(stream, before, *written);
    return stream.error() == 0 ? UpdateResult::Saved : resultOfError(stream.error());
}

} // namespace tags
