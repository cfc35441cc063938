// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Whether what a site gave as lyrics is no lyrics: more than 100 kB, scripts or documents left over by the clean-up, or
// a notice of a page that has no lyrics to show (blocked, log-in needed, withdrawn, nothing there yet), or no words at
// all but tags of layout. The empty text is no junk.
// Errs towards keeping: other tags that a clean-up leaves in are lyrics, and so is a song about a lock-out. A phrase
// that a song can hold as well counts as a notice in a short text only.
//
// `markup` is what the clean-up stripped the tags from, where that is known: that makes words of a script, so a script
// there counts as left over as well.
[[nodiscard]] bool isJunk(const QString &lyrics, const QString &markup = {});
