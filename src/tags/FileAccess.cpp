// SPDX-License-Identifier: MIT
#include "tags/FileAccess.h"

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

QByteArray nativePath(const QString &path)
{
    return path.toUtf8();
}

} // namespace tags
