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

// Names end with a NUL each. 0 or an errno; none, and 0, also where the file system has no such attributes.
int readAttributeNames(int descriptor, QList<QByteArray> &list)
{
    const ssize_t size = ::flistxattr(descriptor, nullptr, 0);
    if (size <= 0)
        return size == 0 || errno == ENOTSUP ? 0 : errno;
    QByteArray names(static_cast<int>(size), '\0');
    const ssize_t filled = ::flistxattr(descriptor, names.data(), static_cast<std::size_t>(names.size()));
    if (filled < 0)
        return errno;
    names.truncate(static_cast<int>(filled));
    list = names.split('\0');
    list.removeAll({});
    return 0;
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

// A new file gets some from its directory: an access list above all, which may let more people in.
int removeOtherAttributes(const QList<QByteArray> &wanted, int from)
{
    QList<QByteArray> names;
    if (const int error = readAttributeNames(from, names))
        return error;
    for (const QByteArray &name : qAsConst(names)) {
        if (!wanted.contains(name) && ::fremovexattr(from, name.constData()) != 0 && mustBeKept(name))
            return errno;
    }
    return 0;
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
    QList<QByteArray> names;
    if (const int error = readAttributeNames(from, names))
        return error;
    if (const int error = removeOtherAttributes(names, to))
        return error;
    for (const QByteArray &name : qAsConst(names)) {
        if (const int error = carryAttribute(name, from, to))
            return error;
    }
    // After the access list, whose mask shows as the bits of the group.
    return ::fchmod(to, source.st_mode & allBits) == 0 ? 0 : errno;
}

} // namespace tags
