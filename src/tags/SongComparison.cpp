// SPDX-License-Identifier: MIT
#include "tags/SongComparison.h"

#include "tags/OggPackets.h"

#include <QList>

#include <algorithm>
#include <cstring>
#include <memory>
#include <tuple>

namespace tags {

namespace {

constexpr qint64 blockBytes = qint64{256} * 1024;

bool isEarlier(const TagItem &one, const TagItem &other)
{
    return std::tie(one.key, one.value) < std::tie(other.key, other.value);
}

// Of items in order: those of the first that the second does not have.
QVector<TagItem> missing(const QVector<TagItem> &in, const QVector<TagItem> &of)
{
    QVector<TagItem> left;
    std::set_difference(of.begin(), of.end(), in.begin(), in.end(), std::back_inserter(left), isEarlier);
    return left;
}

QByteArray kindOf(const QByteArray &key)
{
    return key.split('/').first();
}

bool areTagsKept(QVector<TagItem> before, QVector<TagItem> after, const QSet<QByteArray> &editedKeys)
{
    std::sort(before.begin(), before.end(), isEarlier);
    std::sort(after.begin(), after.end(), isEarlier);
    const QVector<TagItem> lost = missing(after, before);
    const QVector<TagItem> added = missing(before, after);
    QSet<QByteArray> kinds;
    for (const TagItem &item : qAsConst(before))
        kinds.insert(kindOf(item.key));
    const auto isEdited = [&editedKeys](const TagItem &item) {
        return editedKeys.contains(item.key);
    };
    // MP4 without tags has items, those of the film; what a new list of tags needs lies beside it.
    const auto isNew = [&kinds](const TagItem &item) {
        return !kinds.contains(kindOf(item.key)) || item.key.startsWith("MP4/moov/udta/meta/");
    };
    // With its last frame an ID3v2 tag goes.
    const auto isGone = [&after](const TagItem &item) {
        return item.key == "ID3v2" && std::none_of(after.begin(), after.end(),
                                                   [](const TagItem &left) { return kindOf(left.key) == "ID3v2"; });
    };
    return std::all_of(lost.begin(), lost.end(), [&](const TagItem &item) { return isEdited(item) || isGone(item); }) &&
           std::all_of(added.begin(), added.end(), [&](const TagItem &item) { return isEdited(item) || isNew(item); });
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
    return areTagsKept(layoutBefore.items, layoutAfter.items, editedKeys) ? SongDifference::None : SongDifference::Tags;
}

} // namespace tags
