// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

// A picture as covers are: a JPEG of so many pixels a side, the same in every run, that is neither smooth nor noise.
[[nodiscard]] QByteArray coverPicture(int side);

// A temporary folder of songs: some originals, and as many further names of them as a row needs, each a hard link. So
// the folder is made at once, and all songs are read from the cache. A step that fails ends the program.
class SongFolder
{
public:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    // Copies one of the generated samples; with a cover, that is put into its tag. Formats: mp3, flac, m4a, ogg.
    void addOriginal(const QString &sample, const QByteArray &cover = {});
    // Of the originals in turn. The names are new ones with each call.
    [[nodiscard]] QList<QUrl> links(int count);

private:
    QTemporaryDir m_folder;
    QStringList m_originals; // names
    int m_links = 0;
};
