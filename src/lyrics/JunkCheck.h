// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Whether what a site gave as lyrics is no lyrics: scripts or documents left over by the clean-up, or more than 100 kB.
// Errs towards keeping: other tags that a clean-up leaves in are lyrics.
[[nodiscard]] bool isJunk(const QString &lyrics);
