// SPDX-License-Identifier: MIT
#include "updates/OwnFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isOwn(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1;
}

} // namespace

int createOwnFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (::unlink(name.constData()) != 0 && errno != ENOENT)
        return -1;
    return ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

int openOwnFile(const QString &path, int flags)
{
    // It may be a FIFO, which must not be waited for.
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    struct stat status = {};
    if (descriptor < 0 || (::fstat(descriptor, &status) == 0 && isOwn(status)))
        return descriptor;
    ::close(descriptor);
    errno = EINVAL;
    return -1;
}

qint64 ownFileSize(const QString &path)
{
    struct stat status = {};
    const bool found = ::lstat(QFile::encodeName(path).constData(), &status) == 0;
    return found && isOwn(status) ? status.st_size : -1;
}

bool isOwnFolder(const QString &path)
{
    struct stat status = {};
    const bool found = ::lstat(QFile::encodeName(path).constData(), &status) == 0;
    return found && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid();
}
