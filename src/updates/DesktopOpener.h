// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Hands a file, by its absolute path, to the program that the desktop has for it, by way of "xdg-open". Reports from
// the event loop, once: false when that cannot be started or says within three seconds that it failed; true when it
// says that it did not, or is still running then, as it may be that program itself.
void openOnDesktop(const QString &path, const std::function<void(bool)> &report);
