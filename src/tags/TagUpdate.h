// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tags {

// What a file's tags are to say. An empty artist or title leaves the file's own alone; empty lyrics remove those that
// are stored, except in APE tags and WAV files, whose lyrics MediaFileTags never reads.
struct SongTexts
{
    QString artist;
    QString title;
    QString lyrics;
};

enum class UpdateResult {
    Unchanged, // the file says all that already; it was not written
    Saved,
    Missing,
    NotRegular,
    ReadOnly,
    Unreadable, // no format that is known, or damaged
    NotAudio,   // nothing in it plays: tags in front of it would only harm it
    NoLyricsPlace,
    SaveFailed,
};

// Changes what differs in the tags of a file, and saves the file when something did. Names and lyrics count as
// different when they are not the text that MediaFileTags reads there (line breaks of any kind are alike), so what
// nobody edited stays as it is stored. A name that was edited goes into each tag that does not read as that name
// already. Opens nothing but regular files that may be written. Blocks; never throws.
UpdateResult updateTags(const QString &path, const SongTexts &texts);

} // namespace tags
