// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagUpdate.h"

#include "tags/SongLayout.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <optional>

namespace TagLib {
class File;
}

namespace tags {

// What is left to store when all that a file says already is taken away.
struct TagEdits
{
    QString artist; // empty: leave it
    QString title;  // empty: leave it
    std::optional<QString> lyrics;
    bool conflict = false;  // there are lyrics in the file that the user was not shown
    bool isRenamed = false; // there is an artist or a title that the user was not shown, and that will stay
};

// What equals the texts that the user was shown was not edited, and is left; the texts of an update under way are no
// other program's change, and may have to be taken back. The rest is compared with the text as it
// is read from the file. So lyrics that were not edited keep their second language and their description. And where
// lyrics are never read, in APE tags and WAV files, empty lyrics mean that nobody saw the stored ones: deliberately
// they do not remove them.
TagEdits editsOf(TagLib::File &file, const SongTexts &texts, const std::optional<ShownTexts> &shown);

// What was changed in the tags of an open file, in memory.
struct AppliedEdits
{
    bool isPossible = true; // false: no tag of the file can hold lyrics
    bool isChanged = false;
    QSet<QByteArray> keys;        // of the items that changed, as SongLayout names them
    QSet<QByteArray> frames;      // of the ID3v2 tag
    QHash<int, QByteArray> id3v1; // the fields of that tag that changed, by their places in it
    bool hadId3v2 = false;        // these two of MPEG files only
    bool newApe = false;
};

AppliedEdits apply(const TagEdits &edits, TagLib::File &file);

// How many frames of each kind that can be edited TagLib sees in the ID3v2 tag.
QHash<QByteArray, int> editableFrames(TagLib::File &file);

// To be called before a file is saved: TagLib turns an old kind of cover in Vorbis comments, COVERART, into another
// one, which leaves programs that know the old one alone without it. `items`: what is stored in the file.
void keepOldCovers(TagLib::File &file, const QVector<TagItem> &items);

// Saves what was applied, as the format asks, but for ID3v1 beside MPEG; false when TagLib says that it failed.
bool save(const AppliedEdits &applied, TagLib::File &file);

// A whole ID3v2 tag of the version with nothing but the edited frames; empty when none was edited.
QByteArray editedFrames(const TagEdits &edits, const AppliedEdits &applied, int version);

} // namespace tags
