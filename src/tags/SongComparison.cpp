// SPDX-License-Identifier: MIT
#include "tags/SongComparison.h"

#include "tags/OggPackets.h"
#include "tags/WriterThread.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <memory>

namespace tags {

namespace {

constexpr qint64 blockBytes = qint64{256} * 1024;

using ValuesByKey = QHash<QByteArray, QVector<QByteArray>>;

// In the order of the file, since the first of several covers is the one that is shown. The entries of an MP4 list
// TagLib sorts; there it means nothing.
ValuesByKey valuesByKey(const QVector<TagItem> &items)
{
    ValuesByKey values;
    for (const TagItem &item : items)
        values[item.key].append(item.value);
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (it.key().startsWith("MP4/"))
            std::sort(it->begin(), it->end());
    }
    return values;
}

QByteArray kindOf(const QByteArray &key)
{
    return key.split('/').first();
}

bool hasKind(const ValuesByKey &values, const QByteArray &kind)
{
    return std::any_of(values.keyBegin(), values.keyEnd(),
                       [&kind](const QByteArray &key) { return kindOf(key) == kind; });
}

bool areTagsKept(const ValuesByKey &before, const ValuesByKey &after, const QSet<QByteArray> &editedKeys)
{
    // MP4 without tags has items, those of the film; what a new list of tags needs lies beside it.
    const auto isNew = [&before](const QByteArray &key) {
        return !before.contains(key) && (!hasKind(before, kindOf(key)) || key.startsWith("MP4/moov/udta/meta/"));
    };
    // With its last frame an ID3v2 tag goes.
    const auto isGone = [&after](const QByteArray &key) {
        return key == "ID3v2" && !hasKind(after, key);
    };
    const auto isKept = [&](const QByteArray &key) {
        return editedKeys.contains(key) || before.value(key) == after.value(key) || isNew(key) || isGone(key);
    };
    return std::all_of(before.keyBegin(), before.keyEnd(), isKept) &&
           std::all_of(after.keyBegin(), after.keyEnd(), isKept);
}

bool areRangesEqual(const FileBytes &before, const SongLayout &layoutBefore, const FileBytes &after,
                    const SongLayout &layoutAfter)
{
    if (layoutBefore.audio.size() != layoutAfter.audio.size())
        return false;
    for (int i = 0; i < layoutBefore.audio.size(); ++i) {
        const ByteRange &one = layoutBefore.audio.at(i);
        const ByteRange &other = layoutAfter.audio.at(i);
        if (one.length != other.length || !areBytesEqual(before, one, after, other.offset))
            return false;
    }
    return true;
}

bool isIndexKept(const SongLayout &before, const SongLayout &after)
{
    const QVector<qint64> moved = movedOffsets(before, after);
    return moved.size() == after.audioOffsets.size() &&
           std::equal(moved.begin(), moved.end(), after.audioOffsets.begin(),
                      [](qint64 offset, const AudioOffset &entry) { return offset == entry.offset; });
}

bool arePacketsEqual(const FileBytes &before, const FileBytes &after)
{
    OggPackets packetsBefore(before);
    OggPackets packetsAfter(after);
    OggPacket one;
    OggPacket other;
    quint32 firstStream = 0;
    int number = 0; // of the packet in the first stream
    for (bool first = true; packetsBefore.next(one); first = false) {
        if (!packetsAfter.next(other) || one.stream != other.stream)
            return false;
        firstStream = first ? one.stream : firstStream;
        number += one.stream == firstStream ? 1 : 0;
        const bool isComment = number == 2 && one.stream == firstStream;
        // The pages of the headers, which say 0, may be cut in another way.
        if (!isComment && (one.data != other.data || (one.granule > 0 && one.granule != other.granule)))
            return false;
    }
    return !packetsAfter.next(other) && packetsBefore.isWhole() && packetsAfter.isWhole() &&
           packetsAfter.faults() <= packetsBefore.faults();
}

} // namespace

QVector<qint64> movedOffsets(const SongLayout &before, const SongLayout &after)
{
    QVector<qint64> moved;
    if (before.audio.size() != after.audio.size())
        return moved;
    moved.reserve(before.audioOffsets.size());
    int range = 0;
    for (const AudioOffset &entry : before.audioOffsets) {
        const auto holds = [&before, &entry](int index) {
            const ByteRange &audio = before.audio.at(index);
            return entry.offset >= audio.offset && entry.offset < audio.end();
        };
        for (int tried = 0; tried < before.audio.size() && !holds(range); ++tried)
            range = (range + 1) % before.audio.size();
        const qint64 shift = after.audio.at(range).offset - before.audio.at(range).offset;
        moved.append(entry.offset + (holds(range) ? shift : 0));
    }
    return moved;
}

bool areBytesEqual(const FileBytes &before, const ByteRange &part, const FileBytes &after, qint64 placeAfter)
{
    const auto one = std::make_unique<char[]>(blockBytes);
    const auto other = std::make_unique<char[]>(blockBytes);
    for (qint64 done = 0; done < part.length; done += blockBytes) {
        const qint64 block = std::min(blockBytes, part.length - done);
        if (before.readInto(one.get(), part.offset + done, block) != block ||
            after.readInto(other.get(), placeAfter + done, block) != block ||
            std::memcmp(one.get(), other.get(), static_cast<std::size_t>(block)) != 0)
            return false;
        WriterThread::instance().noteProgress();
    }
    return true;
}

SongDifference compareSongs(const FileBytes &before, const SongLayout &layoutBefore, const FileBytes &after,
                            const SongLayout &layoutAfter, const QSet<QByteArray> &editedKeys)
{
    const bool isAudioKept =
        layoutBefore.format == SongFormat::Ogg
            ? arePacketsEqual(before, after)
            : areRangesEqual(before, layoutBefore, after, layoutAfter) && isIndexKept(layoutBefore, layoutAfter);
    if (!isAudioKept)
        return SongDifference::Audio;
    return areTagsKept(valuesByKey(layoutBefore.items), valuesByKey(layoutAfter.items), editedKeys)
               ? SongDifference::None
               : SongDifference::Tags;
}

} // namespace tags
