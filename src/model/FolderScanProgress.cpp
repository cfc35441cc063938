// SPDX-License-Identifier: MIT
#include "model/FolderScanProgress.h"

QString FolderScanProgress::lastFile() const
{
    const QMutexLocker lock(&m_lastFileMutex);
    return m_lastFile;
}

void FolderScanProgress::noteFile(const QString &name)
{
    ++m_count;
    const QMutexLocker lock(&m_lastFileMutex);
    m_lastFile = name;
}
