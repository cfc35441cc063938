// SPDX-License-Identifier: MIT
#include "model/FolderScanner.h"

#include "model/DelayedFolderScanner.h"

#include <QThreadPool>
#include <QTimer>

#include <chrono>

// A walk that was cancelled and has not reported by then waits for a disk that may never answer.
constexpr std::chrono::milliseconds cancelPatience(100);

FolderScanner::FolderScanner(QObject *parent)
    : QObject(parent)
{
}

FolderScanner::~FolderScanner()
{
    if (m_current)
        m_current->cancel();
}

QString FolderScanner::lastFile() const
{
    return m_current ? m_current->lastFile() : QString();
}

int FolderScanner::lastCount() const
{
    return m_current ? m_current->count() : 0;
}

void FolderScanner::addFolder(const QUrl &folder)
{
    addFolders({folder});
}

void FolderScanner::addFolders(const QList<QUrl> &folders)
{
    for (const QUrl &folder : folders) {
        const QString path = folder.toLocalFile();
        if (!m_folders.contains(path))
            m_folders.append(path);
    }
    emit foldersChanged();
    scanNext();
}

void FolderScanner::scanNext()
{
    if (m_current || m_folders.isEmpty())
        return;
    if (!m_walked)
        m_walked = std::make_shared<WalkedEntries>();
    auto *walk = new DelayedFolderScanner(m_folders.first(), m_walked);
    walk->setNameFilters(nameFilters());
    m_current = walk->progress();
    const auto report = [this, walked = m_current](const QString &folder, const QList<QUrl> &files) {
        if (walked == m_current)
            scanned(folder, files);
    };
    connect(walk, &DelayedFolderScanner::scanned, this, report, Qt::QueuedConnection);
    QThreadPool::globalInstance()->start(walk);
    emit processingChanged(true);
}

QString FolderScanner::nameFilters() const
{
    return QLatin1String("*.") + m_types.join(QLatin1String(",*."));
}

void FolderScanner::scanned(const QString &folder, const QList<QUrl> &files)
{
    // A walk may have ended just before it was cancelled.
    const bool wasCancelled = m_current && m_current->isCancelled();
    if (!files.isEmpty() && !wasCancelled)
        emit found(files);
    if (const int leftOut = m_current ? m_current->leftOut() : 0; leftOut > 0 && !wasCancelled)
        emit filesLeftOut(leftOut);
    // Cancelling has emptied the queue: what stands there now was added later and is still to be walked.
    if (!wasCancelled && m_folders.removeOne(folder))
        emit foldersChanged();
    m_current.reset();
    // What a cancelled walk came past was not reported.
    if (wasCancelled || m_folders.isEmpty())
        m_walked.reset();
    if (m_folders.isEmpty())
        emit processingChanged(false);
    else
        scanNext();
}

void FolderScanner::cancel()
{
    if (!m_current)
        return;
    m_current->cancel();
    m_folders.clear();
    emit foldersChanged();
    QTimer::singleShot(cancelPatience, this, [this, cancelled = m_current] {
        if (cancelled == m_current)
            scanned({}, {}); // in its stead
    });
}
