// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace tags {

// Which file it is and in what state: equal only while nobody wrote it, replaced it or changed its attributes.
struct FileIdentity
{
    quint64 device = 0;
    quint64 inode = 0;
    quint64 links = 0;
    qint64 size = -1; // -1: there is none
    qint64 modifiedSeconds = 0;
    qint64 modifiedNanoseconds = 0;
    qint64 changedSeconds = 0;
    qint64 changedNanoseconds = 0;

    static FileIdentity of(int descriptor);
    static FileIdentity of(const QByteArray &path);

    [[nodiscard]] bool isSameFile(const FileIdentity &other) const;
    bool operator==(const FileIdentity &other) const;
    bool operator!=(const FileIdentity &other) const { return !(*this == other); }
};

} // namespace tags
