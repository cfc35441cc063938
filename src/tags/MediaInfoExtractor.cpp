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

void MediaInfoExtractor::request(const QString &fileName, tags::ReadPatience patience)
{
    m_pendingFile = fileName;
    m_pendingPatience = patience;
    if (!m_busy)
        start();
    else if (m_reader && m_runningPatience == tags::ReadPatience::Long)
        m_reader->skip();
}

void MediaInfoExtractor::start()
{
    auto job = std::make_unique<DelayedMediaInfoExtractor>(m_reader, m_pendingFile, m_decodeCover, m_pendingPatience);
    connect(job.get(), &DelayedMediaInfoExtractor::extracted, this, &MediaInfoExtractor::extracted,
            Qt::QueuedConnection);
    m_busy = true;
    m_runningPatience = m_pendingPatience;
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
