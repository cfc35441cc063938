// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class MainModel;

// What became of lyrics that are in no song when the program ends.
struct KeptLyrics
{
    int songs = 0;    // so many have theirs in a text file now
    QStringList lost; // the full content of the text files that could not be written
};

// Puts the lyrics of all songs that MainModel::idsWithUnsavedLyrics() names into text files of a folder, which is made
// when it is missing: UTF-8, named after the song, with the song's path in the first line, then an empty line and the
// lyrics as they are. No file that is there is touched; one that says the same already is not written again. Blocks
// until all is on the disk.
[[nodiscard]] KeptLyrics keepUnsavedLyrics(const MainModel &model, const QString &folder);
