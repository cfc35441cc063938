// SPDX-License-Identifier: MIT
#pragma once

#include "support/AsOrdinaryUser.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

// Copies of the generated songs in a directory of their own, and what readers that are not ours find in them.
// All paths are absolute; a step that fails ends the test.
class SongFiles
{
public:
    SongFiles();

    // Copies a sample, under its own name unless another is given.
    [[nodiscard]] QString copy(const QString &sample, const QString &name = {}) const;
    [[nodiscard]] QString write(const QString &name, const QByteArray &content) const;
    [[nodiscard]] QString path(const QString &name) const { return m_directory.filePath(name); }

    // The output of tests/support/read-tags.py without what differs between copies of one song.
    static QJsonObject tagsOf(const QString &path);
    // What stays equal whatever is done to tags: MD5 of the packets, or of the frames of a file that ffmpeg
    // does not know how to play.
    static QByteArray audioDigest(const QString &path);
    static QByteArray bytes(const QString &path);

private:
    QTemporaryDir m_directory;
};
