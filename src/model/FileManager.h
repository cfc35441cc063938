// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Shows a file in the desktop's file manager: "nautilus" with the file or, when that fails, "xdg-open" with its folder.
//
// Returns when the last of these programs has ended. Events are handled meanwhile, so that the window lives on even
// when the file manager stays open.
void showInFileManager(const QString &file);
