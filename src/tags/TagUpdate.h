// SPDX-License-Identifier: MIT
#pragma once

#include "tags/UpdateResult.h"

#include <QString>
#include <QVector>

#include <optional>

namespace tags {

// What a file's tags are to say. An empty artist or title leaves the file's own alone; empty lyrics remove those that
// are stored, except in APE tags and WAV files, whose lyrics MediaFileTags never reads.
struct SongTexts
{
    QString artist;
    QString title;
    QString lyrics;
};

// The texts that the user was shown.
struct ShownTexts
{
    SongTexts texts;
    // Also lyrics that another program has stored since are replaced; otherwise the update ends as ChangedMeanwhile.
    bool replacesForeignLyrics = false;
    // Of earlier updates of the file whose end the user was not told yet: it may hold these as well.
    QVector<SongTexts> underWay = {};
    // The lyrics were found under the song's names: where another program has stored other ones since, the update ends
    // as RenamedMeanwhile.
    bool lyricsAreOfNames = false;
};

// Changes what differs in the tags of a file, and saves the file when something did. Names and lyrics count as
// different when they are not the text that MediaFileTags reads there (line breaks of any kind are alike), so what
// nobody edited stays as it is stored. A name that was edited goes into each tag that does not read as that name
// already. What no tag can hold or nobody reads of a name, such as control characters, is left out. Opens nothing but
// regular files that may be written.
//
// With `shown`, what equals those texts was not edited and is left as it is, whatever another program has stored since,
// unless an update under way has changed it; without, each text counts as edited.
//
// The file is never left half written (see SafeSave), and everything else in it stays: the audio byte for byte, or
// packet for packet in Ogg, and every other entry of its tags; what would lose any of that is refused. Frames of ID3v2
// tags stay as they are stored, known to anybody or not. `dataFolder` is the program's own, for saves in place; without
// one, such saves are refused. Blocks; never throws.
UpdateResult updateTags(const QString &path, const SongTexts &texts, const QString &dataFolder,
                        const std::optional<ShownTexts> &shown = std::nullopt);

} // namespace tags
