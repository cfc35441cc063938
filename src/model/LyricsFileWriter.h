// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

// Writes lyrics into the text files beside songs (model/LyricsFile.h), on the thread that writes tags: in the order in
// which all of these are queued, and waited for at the end of the program as they are (tags/WriterThread.h).
//
// Made and used in the GUI thread; it lives on the writer thread, so it has no parent and goes by deleteLater(), after
// what is queued.
class LyricsFileWriter : public QObject
{
    Q_OBJECT

public:
    LyricsFileWriter();

    void queueWrite(quint16 id, const QString &audioFile, const QString &lyrics);

signals:
    // Once for each that was queued. When it was not written, what was there is unchanged.
    void written(quint16 id, const QString &textFile, bool isWritten);
};
