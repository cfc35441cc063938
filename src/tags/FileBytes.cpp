// SPDX-License-Identifier: MIT
#include "tags/FileBytes.h"

#include <QtEndian>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace tags {

FileBytes::FileBytes(int descriptor)
    : m_descriptor(descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0)
        m_size = status.st_size;
}

qint64 FileBytes::readInto(char *target, qint64 offset, qint64 length) const
{
    qint64 done = 0;
    while (done < length) {
        const ssize_t got =
            ::pread(m_descriptor, target + done, static_cast<std::size_t>(length - done), offset + done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += got;
    }
    return done;
}

QByteArray FileBytes::read(qint64 offset, qint64 length) const
{
    constexpr qint64 mostBytes = qint64{512} * 1024 * 1024; // more than any tag holds
    const qint64 there = std::clamp<qint64>(m_size - offset, 0, std::min(length, mostBytes));
    if (there <= 0 || offset < 0)
        return {};
    QByteArray bytes(static_cast<int>(there), Qt::Uninitialized);
    bytes.truncate(static_cast<int>(readInto(bytes.data(), offset, there)));
    return bytes;
}

template<typename Number>
Number FileBytes::number(qint64 offset) const
{
    Number raw = 0;
    return readInto(reinterpret_cast<char *>(&raw), offset, sizeof raw) == sizeof raw ? raw : 0;
}

quint32 FileBytes::bigEndian32(qint64 offset) const
{
    return qFromBigEndian(number<quint32>(offset));
}

quint64 FileBytes::bigEndian64(qint64 offset) const
{
    return qFromBigEndian(number<quint64>(offset));
}

quint32 FileBytes::littleEndian32(qint64 offset) const
{
    return qFromLittleEndian(number<quint32>(offset));
}

quint64 FileBytes::littleEndian64(qint64 offset) const
{
    return qFromLittleEndian(number<quint64>(offset));
}

} // namespace tags
