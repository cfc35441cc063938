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
    MediaFileTags tags;
    try {
        tags.read(m_fileName);
        if (m_decodeCover)
            tags.makeThumbnail();
    } catch (const std::exception &) {
        // Decoding a picture may run out of memory; what was read before stays good.
    }
    emit extracted(m_fileName, tags);
}
