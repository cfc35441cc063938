// SPDX-License-Identifier: MIT
#include "model/FolderScanProgress.h"

#include <iterator>
#include <utility>

FolderScanProgress::FolderScanProgress(Work work)
    : m_count(static_cast<int>(work.files.size()))
    , m_work(std::move(work))
{
}

bool FolderScanProgress::isStalled(std::chrono::milliseconds patience) const
{
    const QMutexLocker lock(&m_mutex);
    return m_sinceMove.isValid() && m_sinceMove.hasExpired(patience.count());
}

FolderScanProgress::Work FolderScanProgress::giveUpOthers()
{
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_work, {});
}

std::vector<FolderScanProgress::File> FolderScanProgress::giveUpFiles()
{
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_work.files, {});
}

QString FolderScanProgress::lastFile() const
{
    const QMutexLocker lock(&m_mutex);
    return m_lastFile;
}

std::optional<QByteArray> FolderScanProgress::nextFolder()
{
    const QMutexLocker lock(&m_mutex);
    m_sinceMove.start();
    std::optional<QByteArray> folder;
    if (m_cancelled)
        return folder;
    if (!m_work.folders.empty()) {
        folder = std::move(m_work.folders.back());
        m_work.folders.pop_back();
    } else if (!m_work.linkedFolders.empty()) {
        folder = std::move(m_work.linkedFolders.front());
        m_work.linkedFolders.pop_front();
    }
    return folder;
}

void FolderScanProgress::noteMove()
{
    const QMutexLocker lock(&m_mutex);
    m_sinceMove.start();
}

void FolderScanProgress::noteFile(const QString &name)
{
    ++m_count;
    const QMutexLocker lock(&m_mutex);
    m_lastFile = name;
}

void FolderScanProgress::add(Work found)
{
    const QMutexLocker lock(&m_mutex);
    const auto append = [](auto &all, auto &more) {
        all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    };
    append(m_work.files, found.files);
    append(m_work.folders, found.folders);
    append(m_work.linkedFolders, found.linkedFolders);
}

std::vector<FolderScanProgress::File> FolderScanProgress::finish()
{
    const QMutexLocker lock(&m_mutex);
    m_sinceMove.invalidate();
    return m_cancelled ? std::vector<File>() : std::move(m_work.files);
}
