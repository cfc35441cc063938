// SPDX-License-Identifier: MIT
#include "tags/FileCopying.h"

#include "tags/FileBytes.h"
#include "tags/WriterThread.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace tags {

namespace {

// A slow stick takes a second or so for it.
constexpr qint64 pieceBytes = qint64{4} * 1024 * 1024;

int writeAll(int descriptor, const QByteArray &bytes, qint64 offset)
{
    for (qint64 done = 0; done < bytes.size();) {
        const ssize_t put = ::pwrite(descriptor, bytes.constData() + done,
                                     static_cast<std::size_t>(bytes.size() - done), offset + done);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return put < 0 ? errno : ENOSPC;
        done += put;
    }
    return 0;
}

// Through the memory of the program, from an offset on, over what is there.
int copyBytes(const FileBytes &source, int to, qint64 offset)
{
    const FileBytes target(to);
    while (offset < source.size()) {
        const QByteArray piece = source.read(offset, std::min(pieceBytes, source.size() - offset));
        if (piece.isEmpty())
            return EIO;
        const int error = target.read(offset, piece.size()) == piece ? 0 : writeAll(to, piece, offset);
        if (error != 0)
            return error;
        offset += piece.size();
        WriterThread::instance().noteProgress();
    }
    return 0;
}

} // namespace

int copyContent(int from, int to)
{
    if (::ioctl(to, FICLONE, from) == 0)
        return 0;
    const FileBytes source(from);
    off64_t offset = 0;
    while (offset < source.size()) {
        off64_t target = offset;
        const ssize_t copied = ::copy_file_range(
            from, &offset, to, &target, static_cast<std::size_t>(std::min(pieceBytes, source.size() - offset)), 0);
        if (copied <= 0 && (copied == 0 || errno != EINTR))
            return copyBytes(source, to, offset); // no room shows there as well
        WriterThread::instance().noteProgress();
    }
    return 0;
}

int overwriteContent(int from, int to)
{
    const FileBytes source(from);
    const qint64 oldSize = FileBytes(to).size();
    if (source.size() > oldSize) {
        if (const int error = ::posix_fallocate(to, oldSize, source.size() - oldSize)) {
            (void)(::ftruncate(to, oldSize) == 0); // nothing was overwritten
            return error;
        }
    }
    if (const int error = copyBytes(source, to, 0))
        return error;
    if (::ftruncate(to, source.size()) != 0)
        return errno;
    return syncContent(to);
}

int syncContent(int descriptor)
{
    constexpr unsigned int writeAndWait =
        SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    const qint64 size = FileBytes(descriptor).size();
    for (qint64 offset = 0; offset < size; offset += pieceBytes) {
        // Where it is not known, the sync at the end does all.
        if (::sync_file_range(descriptor, offset, pieceBytes, writeAndWait) != 0 && errno == EIO)
            return EIO;
        WriterThread::instance().noteProgress();
    }
    return ::fsync(descriptor) == 0 ? 0 : errno;
}

void startSync(int descriptor)
{
    ::sync_file_range(descriptor, 0, 0, SYNC_FILE_RANGE_WRITE);
}

bool overwritesWithoutRoom(int descriptor)
{
    constexpr qint64 blockBytes = 512; // of what stat(2) counts
    struct statfs system = {};
    struct stat file = {};
    if (::fstatfs(descriptor, &system) != 0 || ::fstat(descriptor, &file) != 0)
        return false;
    const bool isInPlace = system.f_type == EXT4_SUPER_MAGIC /* and 2 and 3 */ || system.f_type == MSDOS_SUPER_MAGIC ||
                           system.f_type == EXFAT_SUPER_MAGIC;
    return isInPlace && file.st_blocks * blockBytes >= file.st_size; // a gap takes room when it is filled
}

qint64 freeBytes(int descriptor)
{
    struct statvfs status = {};
    if (::fstatvfs(descriptor, &status) != 0 || status.f_blocks == 0) // some file systems of user space do not tell
        return -1;
    return static_cast<qint64>(status.f_bavail) * static_cast<qint64>(status.f_frsize);
}

} // namespace tags
