// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Whole contents of open files. Each function returns 0 or an errno, and tells the writer thread of its progress.
namespace tags {

// Into an empty file: shares the blocks where the file system can, else the kernel copies.
[[nodiscard]] int copyContent(int from, int to);

// Over what is there, in place; the length becomes that of the source. Room for growth is asked for before a byte is
// overwritten. Synced when it returns 0.
[[nodiscard]] int overwriteContent(int from, int to);

// Blocks until all is on the disk. Goes forward in pieces, so that a slow disk is seen to move.
[[nodiscard]] int syncContent(int descriptor);

// Starts writing to the disk without waiting for it.
void startSync(int descriptor);

// Bytes that may still be written on the file system of an open file or directory; -1 when nobody knows.
[[nodiscard]] qint64 freeBytes(int descriptor);

} // namespace tags
