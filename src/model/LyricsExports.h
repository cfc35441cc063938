// SPDX-License-Identifier: MIT
#pragma once

#include "model/LyricsFileWriter.h"

#include <QObject>
#include <QScopedPointer>

class ModelItem;

// Queues exports of songs' lyrics to the text files beside them, in line with the writes of tags. Main thread only; the
// files are written elsewhere.
class LyricsExports : public QObject
{
    Q_OBJECT

public:
    explicit LyricsExports(QObject *parent = nullptr);

    // False, with nothing touched, when the song has no lyrics or is no local file.
    bool queue(const ModelItem &item);
    // The export that comes with a write; the same, but only its failure is told.
    void queueAutomatic(const ModelItem &item);

signals:
    // Once for each call of queue() that returned true.
    void exported(quint16 id, const QString &textFile, bool isWritten);
    void automaticFailed(const QString &textFile);

private:
    // Made when they are needed first.
    using Writer = QScopedPointer<LyricsFileWriter, QScopedPointerDeleteLater>;

    Writer m_writer;
    Writer m_automaticWriter;
};
