// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Shows a file in the desktop's file manager: "nautilus" with the file or, when that cannot be started or ends with
// another status than 0, "xdg-open" with its folder. Both are found by PATH.
//
// Returns at once: a file manager may stay open for long, and whoever asked may be a button that goes meanwhile. The
// programs are not ended with this one. For a thread with an event loop.
void showInFileManager(const QString &file);
