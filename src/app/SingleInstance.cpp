// SPDX-License-Identifier: MIT
#include "app/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isSameFile(int handle, const QByteArray &path)
{
    struct stat open = {};
    struct stat present = {};
    return fstat(handle, &open) == 0 && lstat(path.constData(), &present) == 0 && open.st_dev == present.st_dev &&
           open.st_ino == present.st_ino;
}

// A lock file that nobody holds, opened and held for as long as it takes to put another into its place; -1 when
// somebody holds it. Whoever has the lock of a QLockFile holds its file by flock(), which ends with the process and is
// seen by the other machines of a network share.
int holdLeftFile(const QByteArray &path)
{
    const int handle = open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (handle >= 0 && flock(handle, LOCK_EX | LOCK_NB) == 0 && isSameFile(handle, path))
        return handle;
    if (handle >= 0)
        close(handle);
    return -1;
}

} // namespace

SingleInstance::SingleInstance(const QString &lockFile)
    : m_lock(lockFile)
{
    QDir().mkpath(QFileInfo(lockFile).absolutePath());
    // A lock never grows stale by age alone, only by the end of its process.
    m_lock.setStaleLockTime(0);
    m_otherRunning = !m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError && !takeLeftLock(lockFile);
}

// QLockFile goes by what stands in the file, which tells nothing of a process on another machine, or of any when the
// file is empty. So a lock that was left there would count for ever.
bool SingleInstance::takeLeftLock(const QString &lockFile)
{
    const QByteArray path = QFile::encodeName(lockFile);
    const int left = holdLeftFile(path);
    if (left < 0)
        return false;
    const bool isTaken = unlink(path.constData()) == 0 && m_lock.tryLock();
    close(left);
    return isTaken;
}
