// SPDX-License-Identifier: MIT
#include "app/SingleInstance.h"

#include <QDir>
#include <QFileInfo>

SingleInstance::SingleInstance(const QString &lockFile)
    : m_lock(lockFile)
{
    QDir().mkpath(QFileInfo(lockFile).absolutePath());
    // A lock never grows stale by age alone, only by the end of its process.
    m_lock.setStaleLockTime(0);
    m_otherRunning = !m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError;
}
