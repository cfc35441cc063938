// SPDX-License-Identifier: MIT
#pragma once

#include "tags/MediaFileTags.h"
#include "tags/ReadPatience.h"

#include <QObject>
#include <QRunnable>
#include <QString>

#include <memory>

namespace tags {
class TagReader;
}

// Reads the tags of one file, through a process of its own, on a thread of a pool, which deletes it afterwards. It
// knows nothing of who started it: when its listener is gone by the time it is done, the result is dropped.
class DelayedMediaInfoExtractor : public QObject, public QRunnable
{
    Q_OBJECT

public:
    // decodeCover: whether the record comes with its thumbnail. Without a reader nothing is read, and the record says
    // so.
    DelayedMediaInfoExtractor(std::shared_ptr<tags::TagReader> reader, const QString &fileName, bool decodeCover,
                              tags::ReadPatience patience = tags::ReadPatience::Usual);

    // Never throws.
    void run() override;

signals:
    // Emitted exactly once, on the thread of the pool; the record is empty, but perhaps for its failure, when the file
    // could not be read.
    void extracted(const QString &strFile, const MediaFileTags &tags);

private:
    const std::shared_ptr<tags::TagReader> m_reader;
    const QString m_fileName;
    const bool m_decodeCover;
    const tags::ReadPatience m_patience;
};
