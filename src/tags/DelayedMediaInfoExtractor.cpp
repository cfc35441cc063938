// SPDX-License-Identifier: MIT
#include "tags/DelayedMediaInfoExtractor.h"

#include "tags/TagReader.h"

#include <new>
#include <utility>

DelayedMediaInfoExtractor::DelayedMediaInfoExtractor(std::shared_ptr<tags::TagReader> reader, const QString &fileName,
                                                     bool decodeCover)
    : m_reader(std::move(reader))
    , m_fileName(fileName)
    , m_decodeCover(decodeCover)
{
    // It takes no events, and it is deleted on a thread of the pool.
    moveToThread(nullptr);
}

void DelayedMediaInfoExtractor::run()
{
    tags::TagSummary summary;
    try {
        if (m_reader)
            summary = m_reader->read(m_fileName, m_decodeCover);
        else
            summary.failure = tags::ReadFailure::NoReader;
    } catch (const std::bad_alloc &) {
        summary = {};
        summary.failure = tags::ReadFailure::OutOfMemory;
    }
    emit extracted(m_fileName, MediaFileTags(std::move(summary)));
}
