// SPDX-License-Identifier: MIT
#pragma once

#include "support/AsOrdinaryUser.h"
#include "support/TestFolder.h"
#include "tags/TagUpdate.h"

#include <QJsonObject>

// Copies of the generated songs in a folder that ordinary users may write to, and what readers that are not ours find
// in them. A step that fails ends the test.
class SongFiles : public TestFolder
{
public:
    SongFiles();

    // Copies a sample, under its own name unless another is given.
    [[nodiscard]] QString copy(const QString &sample, const QString &name = {}) const;
    // Of a copy, which is made.
    [[nodiscard]] QByteArray bytesOf(const QString &sample) const { return read(copy(sample)); }
    [[nodiscard]] QString dataFolder() const { return path(QStringLiteral("data")); }
    // As the program does it, with its own folder beside the songs.
    [[nodiscard]] tags::UpdateResult update(const QString &path, const tags::SongTexts &texts) const;

    // The output of tests/support/read-tags.py without what differs between copies of one song.
    static QJsonObject tagsOf(const QString &path);
    // What stays equal whatever is done to tags: MD5 of the packets, or of the frames of a file that ffmpeg
    // does not know how to play.
    [[nodiscard]] QByteArray audioDigest(const QString &path) const;
};
