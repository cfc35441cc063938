// SPDX-License-Identifier: MIT
#include "tags/FileAttributes.h"

#include <QByteArray>
#include <QList>

#include <cerrno>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tags {

namespace {

constexpr mode_t allBits = 07777;

// Names end with a NUL each. Empty also where the file system has no such attributes.
QList<QByteArray> attributeNames(int descriptor)
{
    const ssize_t size = ::flistxattr(descriptor, nullptr, 0);
    if (size <= 0)
        return {};
    QByteArray names(static_cast<int>(size), '\0');
    const ssize_t filled = ::flistxattr(descriptor, names.data(), static_cast<std::size_t>(names.size()));
    names.truncate(static_cast<int>(filled < 0 ? 0 : filled));
    QList<QByteArray> list = names.split('\0');
    list.removeAll({});
    return list;
}

bool mustBeKept(const QByteArray &name)
{
    return name.startsWith("user.") || name.startsWith("system.posix_acl");
}

int carryAttribute(const QByteArray &name, int from, int to)
{
    const ssize_t size = ::fgetxattr(from, name.constData(), nullptr, 0);
    if (size < 0)
        return mustBeKept(name) ? errno : 0;
    QByteArray value(static_cast<int>(size), '\0');
    const auto length = static_cast<std::size_t>(size);
    const bool carried = ::fgetxattr(from, name.constData(), value.data(), length) == size &&
                         ::fsetxattr(to, name.constData(), value.constData(), length, 0) == 0;
    return carried || !mustBeKept(name) ? 0 : errno;
}

} // namespace

int carryAttributes(int from, int to)
{
    struct stat source = {};
    struct stat target = {};
    if (::fstat(from, &source) != 0 || ::fstat(to, &target) != 0)
        return errno;
    // The owner first: changing it takes the set-id bits away.
    const bool otherOwner = source.st_uid != target.st_uid || source.st_gid != target.st_gid;
    if (otherOwner && ::fchown(to, source.st_uid, source.st_gid) != 0)
        return errno;
    const QList<QByteArray> names = attributeNames(from);
    for (const QByteArray &name : names) {
        if (const int error = carryAttribute(name, from, to))
            return error;
    }
    // After the access list, whose mask shows as the bits of the group.
    return ::fchmod(to, source.st_mode & allBits) == 0 ? 0 : errno;
}

} // namespace tags
