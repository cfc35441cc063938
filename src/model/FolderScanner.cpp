// SPDX-License-Identifier: MIT
#include "model/FolderScanner.h"

#include "model/DelayedFolderScanner.h"

#include <QLoggingCategory>
#include <QThreadPool>

#include <chrono>

// A walk that was cancelled and has not reported by then waits for a disk that may never answer.
constexpr std::chrono::milliseconds cancelPatience(100);
// So many parts of one folder may fail to answer before the next folder has its turn.
constexpr int mostStalls = 8;

Q_LOGGING_CATEGORY(lcModel, "versewell.model")

FolderScanner::FolderScanner(QObject *parent)
    : QObject(parent)
{
    connect(&m_stallCheck, &QTimer::timeout, this, &FolderScanner::passStalled);
}

FolderScanner::~FolderScanner()
{
    if (m_current)
        m_current->cancel();
    cancelStalled();
}

void FolderScanner::cancelStalled()
{
    for (const Progress &walked : qAsConst(m_stalled))
        walked->cancel();
    m_stalled.clear();
}

const FolderScanProgress *FolderScanner::shown() const
{
    return m_current || m_stalled.isEmpty() ? m_current.get() : m_stalled.last().get();
}

QString FolderScanner::lastFile() const
{
    return shown() ? shown()->lastFile() : QString();
}

int FolderScanner::lastCount() const
{
    return shown() ? shown()->count() : 0;
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
    m_stalls = 0;
    walk(new DelayedFolderScanner(m_folders.first(), m_walked));
    m_stallCheck.start(m_patience / 4);
    emit processingChanged(true);
}

void FolderScanner::walk(DelayedFolderScanner *walk)
{
    walk->setNameFilters(nameFilters());
    m_current = walk->progress();
    const auto take = [this, walked = m_current](const QString &folder, const QList<QUrl> &files) {
        if (walked == m_current)
            scanned(folder, files);
        else
            reportLate(walked, files);
    };
    connect(walk, &DelayedFolderScanner::scanned, this, take, Qt::QueuedConnection);
    QThreadPool::globalInstance()->start(walk);
}

// Leaves a folder that does not answer to the walk that waits for it. Another walk goes on with the others beside it,
// and reports what has been found until now along with them; when too many of them stall, the next in the queue does.
void FolderScanner::passStalled()
{
    if (!m_current || m_current->isCancelled() || !m_current->isStalled(m_patience))
        return;
    qCWarning(lcModel, "A folder does not answer; others are looked at meanwhile.");
    m_stalled.append(m_current);
    const QString folder = m_folders.first();
    if (++m_stalls < mostStalls)
        walk(new DelayedFolderScanner(folder, m_walked, m_current->giveUpOthers()));
    else
        scanned(folder, DelayedFolderScanner::report(m_current->giveUpFiles(), m_walked.get()));
}

void FolderScanner::reportLate(const Progress &walked, const QList<QUrl> &files)
{
    if (!m_stalled.removeOne(walked))
        return;
    report(walked, files);
    if (!processing())
        emit processingChanged(false);
}

void FolderScanner::report(const Progress &walked, const QList<QUrl> &files)
{
    if (!files.isEmpty())
        emit found(files);
    if (const int leftOut = walked ? walked->takeLeftOut() : 0; leftOut > 0)
        emit filesLeftOut(leftOut);
}

QString FolderScanner::nameFilters() const
{
    return QLatin1String("*.") + m_types.join(QLatin1String(",*."));
}

void FolderScanner::scanned(const QString &folder, const QList<QUrl> &files)
{
    // A walk may have ended just before it was cancelled.
    const bool wasCancelled = m_current && m_current->isCancelled();
    if (!wasCancelled)
        report(m_current, files);
    // Cancelling has emptied the queue: what stands there now was added later and is still to be walked.
    if (!wasCancelled && m_folders.removeOne(folder))
        emit foldersChanged();
    m_current.reset();
    // What a cancelled walk came past was not reported.
    if (wasCancelled || m_folders.isEmpty())
        m_walked.reset();
    if (!m_folders.isEmpty()) {
        scanNext();
        return;
    }
    m_stallCheck.stop();
    if (!processing())
        emit processingChanged(false);
}

void FolderScanner::cancel()
{
    const bool wasProcessing = processing();
    cancelStalled();
    if (!m_current) {
        if (wasProcessing)
            emit processingChanged(false);
        return;
    }
    m_current->cancel();
    m_folders.clear();
    emit foldersChanged();
    QTimer::singleShot(cancelPatience, this, [this, cancelled = m_current] {
        if (cancelled == m_current)
            scanned({}, {}); // in its stead
    });
}
