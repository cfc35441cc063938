// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Whether what a site gave as lyrics is no lyrics: more than 100 kB, scripts or documents left over by the clean-up, or
// a notice of a page that has no lyrics to show (blocked, log-in needed, withdrawn, nothing there yet), or no words at
// all. The empty text is none.
// Errs towards keeping: other tags that a clean-up leaves in are lyrics, and so is a song about a lock-out.
//
// `markup` is what the text was made of, where that is known: a clean-up that strips tags makes words of a script, so
// what stands there outside comments counts as left over as well.
[[nodiscard]] bool isJunk(const QString &lyrics, const QString &markup = {});
