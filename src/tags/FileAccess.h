// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace tags {

// What may be done with a path, found out without opening it: opening a FIFO waits for ever, and opening a device
// may do anything. Symbolic links are followed.
enum class FileAccess {
    Missing,
    NotRegular, // a directory, a FIFO, a device, a socket
    ReadOnly,   // also when it cannot even be read
    Writable,
};

FileAccess fileAccess(const QString &path);

// Regular files only; whether they can be read shows when they are opened.
bool isRegularFile(const QString &path);

// Opens a regular file with the flags of open(2), close-on-exec; -1, with errno, when it cannot be opened or is
// something else. The caller closes the descriptor.
int openRegularFile(const QByteArray &path, int flags);

// The name under which the file is opened: UTF-8 in every locale.
QByteArray nativePath(const QString &path);

} // namespace tags
