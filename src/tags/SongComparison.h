// SPDX-License-Identifier: MIT
#pragma once

#include "tags/SongLayout.h"

#include <QSet>

namespace tags {

enum class SongDifference { None, Audio, Tags };

// Compares a song with what a save made of it: the audio must be the same, byte for byte, or packet for packet where a
// container numbers its pages; every tag item must be there as it was, and those of one key in their order, except
// those of the keys that were edited. Only a tag of a kind that the song had none of may bring items of its own.
SongDifference compareSongs(const FileBytes &before, const SongLayout &layoutBefore, const FileBytes &after,
                            const SongLayout &layoutAfter, const QSet<QByteArray> &editedKeys);

// What the index of a song must say once the audio has moved: each entry points to the same byte of the same range as
// before, and one that points into no range, in a damaged file, is as it was. Nothing when the audio differs in number.
QVector<qint64> movedOffsets(const SongLayout &before, const SongLayout &after);

// Whether a part of one file is that part of another which begins at `placeAfter`.
bool areBytesEqual(const FileBytes &before, const ByteRange &part, const FileBytes &after, qint64 placeAfter);

} // namespace tags
