// SPDX-License-Identifier: MIT
#include "tags/DelayedMediaInfoExtractor.h"

#include "tags/TagReader.h"
#include "tags/UncountedThread.h"

#include <new>
#include <utility>

DelayedMediaInfoExtractor::DelayedMediaInfoExtractor(std::shared_ptr<tags::TagReader> reader, const QString &fileName,
                                                     bool decodeCover, tags::ReadPatience patience)
    : m_reader(std::move(reader))
    , m_fileName(fileName)
    , m_decodeCover(decodeCover)
    , m_patience(patience)
{
    // It takes no events, and it is deleted on a thread of the pool.
    moveToThread(nullptr);
}

void DelayedMediaInfoExtractor::run()
{
    const UncountedThread uncounted;
    tags::TagSummary summary;
    try {
        if (m_reader)
            summary = m_reader->read(m_fileName, m_decodeCover, m_patience);
        else
            summary.failure = tags::ReadFailure::NoReader;
    } catch (const std::bad_alloc &) {
        summary = {};
        summary.failure = tags::ReadFailure::OutOfMemory;
    }
    emit extracted(m_fileName, MediaFileTags(std::move(summary)));
}
