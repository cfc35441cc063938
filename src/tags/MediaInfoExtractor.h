// SPDX-License-Identifier: MIT
#pragma once

#include "tags/MediaFileTags.h"

#include <QObject>
#include <QString>

// Reads tags on the global thread pool, one file at a time, and announces only the result for the newest request: the
// result of a read that a newer request overtook is dropped. Lives on the thread of its caller; may be destroyed while
// a read is running.
class MediaInfoExtractor : public QObject
{
    Q_OBJECT

public:
    explicit MediaInfoExtractor(QObject *parent = nullptr);

    // Whether records come with their thumbnail decoded; on unless set otherwise. For the requests that follow.
    void setDecodeCover(bool decode) { m_decodeCover = decode; }

public slots:
    // Takes a local path.
    void request(const QString &fileName);

signals:
    // With the path as requested. The record is empty when the file could not be read. It goes to slots in this thread
    // without a copy, which would copy every frame of a tag.
    void infoExtracted(const QString &strFile, const MediaFileTags &tags);

private slots:
    void extracted(const QString &strFile, const MediaFileTags &tags);

private:
    void start();

    QString m_pendingFile;
    bool m_decodeCover = true;
    bool m_busy = false;
};
