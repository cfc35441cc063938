// SPDX-License-Identifier: MIT
#include "tags/FileAccess.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tags {

FileAccess fileAccess(const QString &path)
{
    const QByteArray name = nativePath(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return FileAccess::Missing;
    if (!S_ISREG(status.st_mode))
        return FileAccess::NotRegular;
    return ::faccessat(AT_FDCWD, name.constData(), R_OK | W_OK, AT_EACCESS) == 0 ? FileAccess::Writable
                                                                                 : FileAccess::ReadOnly;
}

bool isRegularFile(const QString &path)
{
    const FileAccess access = fileAccess(path);
    return access == FileAccess::ReadOnly || access == FileAccess::Writable;
}

int openRegularFile(const QByteArray &path, int flags)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return -1;
    if (!S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return -1;
    }
    // It may have been replaced since: a FIFO must not be waited for.
    const int descriptor = ::open(path.constData(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0 || (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    ::close(descriptor);
    errno = EINVAL;
    return -1;
}

QByteArray nativePath(const QString &path)
{
    return path.toUtf8();
}

} // namespace tags
