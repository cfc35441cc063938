// SPDX-License-Identifier: MIT
#include "tags/DelayedMediaInfoExtractor.h"

#include <exception>

DelayedMediaInfoExtractor::DelayedMediaInfoExtractor(const QString &fileName, bool decodeCover)
    : m_fileName(fileName)
    , m_decodeCover(decodeCover)
{
    // It takes no events, and it is deleted on a thread of the pool.
    moveToThread(nullptr);
}

void DelayedMediaInfoExtractor::run()
{
    // Decoding a picture, and copying the record for the listener, may run out of memory.
    try {
        MediaFileTags tags;
        tags.read(m_fileName);
        if (m_decodeCover)
            tags.makeThumbnail();
        emit extracted(m_fileName, tags);
    } catch (const std::exception &) {
        emit extracted(m_fileName, MediaFileTags());
    }
}
