// SPDX-License-Identifier: MIT
#pragma once

#include "tags/MediaFileTags.h"
#include "tags/ReadPatience.h"

#include <QObject>
#include <QString>

#include <memory>

namespace tags {
class TagReader;
}

// Reads tags, one file at a time, and announces only the result for the newest request: the result of a read that a
// newer request overtook is dropped. The files are read by a process of its own, which is waited for on the global
// thread pool; this process never reads one. Lives on the thread of its caller; may be destroyed while a read is
// running.
class MediaInfoExtractor : public QObject
{
    Q_OBJECT

public:
    explicit MediaInfoExtractor(QObject *parent = nullptr);
    ~MediaInfoExtractor() override;

    // The program that reads: it answers to the argument of tags/TagReaderProcess.h. Until it is set, every record says
    // that there is no reader. For the requests that follow.
    void setReaderProgram(const QString &path);
    // Whether records come with their thumbnail decoded; on unless set otherwise. For the requests that follow.
    void setDecodeCover(bool decode) { m_decodeCover = decode; }

    // Gives up the read under way, which is answered as if there was no reader; for the end of the program.
    void stop();
    // Whether a request is unanswered.
    [[nodiscard]] bool isReading() const { return m_busy; }

public slots:
    // Takes a local path. A read with long patience is given up for it; any other one that is under way is not.
    void request(const QString &fileName, tags::ReadPatience patience = tags::ReadPatience::Usual);

signals:
    // With the path as requested. The record is empty, but perhaps for its failure, when the file could not be read.
    void infoExtracted(const QString &strFile, const MediaFileTags &tags);

private slots:
    void extracted(const QString &strFile, const MediaFileTags &tags);

private:
    void start();

    std::shared_ptr<tags::TagReader> m_reader;
    QString m_pendingFile;
    tags::ReadPatience m_pendingPatience = tags::ReadPatience::Usual;
    tags::ReadPatience m_runningPatience = tags::ReadPatience::Usual;
    bool m_decodeCover = true;
    bool m_busy = false;
};
