// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Whole contents of open files. Each function returns 0 or an errno, and tells the writer thread of its progress.
namespace tags {

// Into an empty file: shares the blocks where the file system can, else the kernel copies.
[[nodiscard]] int copyContent(int from, int to);

// Over what is there, in place; the length becomes that of the source. Room for growth is asked for before a byte is
// overwritten, and what is there already is not written again. Synced when it returns 0.
[[nodiscard]] int overwriteContent(int from, int to);

// Blocks until all is on the disk. Goes forward in pieces, so that a slow disk is seen to move.
[[nodiscard]] int syncContent(int descriptor);

// Starts writing to the disk without waiting for it.
void startSync(int descriptor);

// True when bytes that an open file has can be overwritten without any new room, so far as its file system is known.
// Where a write goes to another place on the disk, as on Btrfs, a full disk would cut it off, and its undoing as well.
[[nodiscard]] bool overwritesWithoutRoom(int descriptor);

// Bytes that may still be written on the file system of an open file or directory; -1 when nobody knows.
[[nodiscard]] qint64 freeBytes(int descriptor);

} // namespace tags
