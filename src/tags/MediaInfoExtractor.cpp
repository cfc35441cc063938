// SPDX-License-Identifier: MIT
#include "tags/MediaInfoExtractor.h"

#include "tags/DelayedMediaInfoExtractor.h"
#include "tags/TagReader.h"

#include <QThreadPool>

#include <memory>

MediaInfoExtractor::MediaInfoExtractor(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<MediaFileTags>("MediaFileTags");
}

MediaInfoExtractor::~MediaInfoExtractor()
{
    stop();
}

void MediaInfoExtractor::stop()
{
    if (m_reader)
        m_reader->stop();
}

void MediaInfoExtractor::setReaderProgram(const QString &path)
{
    m_reader = std::make_shared<tags::TagReader>(path);
}

void MediaInfoExtractor::request(const QString &fileName)
{
    m_pendingFile = fileName;
    if (!m_busy)
        start();
}

void MediaInfoExtractor::start()
{
    auto job = std::make_unique<DelayedMediaInfoExtractor>(m_reader, m_pendingFile, m_decodeCover);
    connect(job.get(), &DelayedMediaInfoExtractor::extracted, this, &MediaInfoExtractor::extracted,
            Qt::QueuedConnection);
    m_busy = true;
    QThreadPool::globalInstance()->start(job.release(), 0); // the pool deletes it
}

void MediaInfoExtractor::extracted(const QString &strFile, const MediaFileTags &tags)
{
    m_busy = false;
    if (strFile == m_pendingFile)
        emit infoExtracted(strFile, tags);
    else if (!m_pendingFile.isEmpty())
        start();
}
