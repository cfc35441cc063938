// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Files that nobody else has a hand in: regular, the user's own, with a single name, and never reached through a link
// at their last step. The descriptors are closed by the caller and not handed on to other programs.

// Makes an empty file for writing, which only the user may read, in place of whatever file or link has the name; -1,
// with errno, when that fails.
[[nodiscard]] int createOwnFile(const QString &path);

// With the flags of open(2); -1, with errno, also for a file of another kind.
[[nodiscard]] int openOwnFile(const QString &path, int flags);

// In bytes; -1 when there is no such file.
[[nodiscard]] qint64 ownFileSize(const QString &path);

// A folder that is the user's own and not a link.
[[nodiscard]] bool isOwnFolder(const QString &path);
