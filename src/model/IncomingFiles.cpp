// SPDX-License-Identifier: MIT
#include "model/IncomingFiles.h"

#include "model/DelayedFileCheck.h"

#include <QThreadPool>

// How many files come out in one go: some ten milliseconds of work for the list.
constexpr int blockSize = 1000;

IncomingFiles::IncomingFiles(QObject *parent)
    : QObject(parent)
{
    connect(&m_nextBlock, &QTimer::timeout, this, &IncomingFiles::emitBlock);
}

IncomingFiles::~IncomingFiles()
{
    *m_cancelled = true;
}

void IncomingFiles::restore(const QList<QUrl> &urls, const std::function<void()> &waitFirst)
{
    m_unchecked = urls;
    auto *check = new DelayedFileCheck(urls, waitFirst);
    m_cancelled = check->cancelled();
    connect(check, &DelayedFileCheck::checked, this, &IncomingFiles::takeChecked, Qt::QueuedConnection);
    QThreadPool::globalInstance()->start(check);
}

void IncomingFiles::takeChecked(int count, const QList<QUrl> &files, const QList<QUrl> &away)
{
    m_unchecked.erase(m_unchecked.begin(), m_unchecked.begin() + count);
    m_away += away;
    add(files);
}

void IncomingFiles::add(const QList<QUrl> &files)
{
    m_known += files;
    if (!m_nextBlock.isActive())
        emitBlock();
}

void IncomingFiles::emitBlock()
{
    const bool isFirst = !m_nextBlock.isActive();
    const QList<QUrl> files = m_known.mid(0, blockSize);
    m_known.erase(m_known.begin(), m_known.begin() + files.size());
    const bool areMoreLeft = !m_known.isEmpty();
    if (areMoreLeft != m_nextBlock.isActive())
        areMoreLeft ? m_nextBlock.start() : m_nextBlock.stop();
    emit block(files, isFirst);
}
