// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class MainModel;

// What became of names and lyrics that are in no song when the program ends.
struct KeptTexts
{
    int songs = 0;    // so many have theirs in a text file now
    QStringList lost; // the full content of the text files that could not be written
};

// Puts the words that the songs of MainModel::unsavedIds() have in the list only into text files of a folder, which is
// made when it is missing: UTF-8, named after the song, with the song's path in the first line. The edited names
// follow, a labelled line each, and then the lyrics as they are, both after an empty line. No file that is there is
// touched; one that says the same already is not written again. Blocks until all is on the disk.
[[nodiscard]] KeptTexts keepUnsavedTexts(const MainModel &model, const QString &folder);
