// SPDX-License-Identifier: MIT
#include "model/LyricsFileWriter.h"

#include "model/LyricsFile.h"
#include "tags/WriterThread.h"

LyricsFileWriter::LyricsFileWriter()
{
    moveToThread(tags::WriterThread::instance().thread());
}

void LyricsFileWriter::queueWrite(quint16 id, const QString &audioFile, const QString &lyrics)
{
    const auto writeNow = [this, id, audioFile, lyrics, ticket = tags::WriterThread::instance().takeTicket()] {
        const bool isWritten = writeLyricsFile(audioFile, lyrics);
        emit written(id, lyricsFileName(audioFile), isWritten);
    };
    QMetaObject::invokeMethod(this, writeNow, Qt::QueuedConnection);
}
