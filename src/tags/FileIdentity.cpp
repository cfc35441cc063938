// SPDX-License-Identifier: MIT
#include "tags/FileIdentity.h"

#include <tuple>

#include <sys/stat.h>

namespace tags {

namespace {

FileIdentity identityOf(const struct stat &status)
{
    return {status.st_dev,         status.st_ino,          status.st_nlink,       status.st_size,
            status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_ctim.tv_sec, status.st_ctim.tv_nsec};
}

auto everything(const FileIdentity &identity)
{
    return std::tie(identity.device, identity.inode, identity.links, identity.size, identity.modifiedSeconds,
                    identity.modifiedNanoseconds, identity.changedSeconds, identity.changedNanoseconds);
}

} // namespace

FileIdentity FileIdentity::of(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 ? identityOf(status) : FileIdentity();
}

FileIdentity FileIdentity::of(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 ? identityOf(status) : FileIdentity();
}

bool FileIdentity::isSameFile(const FileIdentity &other) const
{
    return device == other.device && inode == other.inode;
}

bool FileIdentity::operator==(const FileIdentity &other) const
{
    return everything(*this) == everything(other);
}

} // namespace tags
