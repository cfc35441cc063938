// SPDX-License-Identifier: MIT
#pragma once

#include "tags/MediaFileTags.h"

#include <QObject>
#include <QRunnable>
#include <QString>

// Reads the tags of one file on a thread of a pool, which deletes it afterwards. It knows nothing of who started it:
// when its listener is gone by the time it is done, the result is dropped.
class DelayedMediaInfoExtractor : public QObject, public QRunnable
{
    Q_OBJECT

public:
    // decodeCover: whether the record comes with its thumbnail.
    DelayedMediaInfoExtractor(const QString &fileName, bool decodeCover);

    // Never throws.
    void run() override;

signals:
    // Emitted exactly once, on the thread of the pool; the record is empty when the file could not be read. A queued
    // connection makes its copy there.
    void extracted(const QString &strFile, const MediaFileTags &tags);

private:
    const QString m_fileName;
    const bool m_decodeCover;
};
