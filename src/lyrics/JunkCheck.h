// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Whether what a site gave as lyrics is no lyrics: more than 100 kB, scripts or documents left over by the clean-up, a
// notice of a page that has no lyrics to show (blocked, log-in needed, withdrawn, nothing there yet, instrumental), no
// letter or digit at all, or a character that was lost (U+FFFD), as on a page that is not in the charset it names. The
// empty text is no junk.
// References and what no tag can hold are judged as they end in the tag: whoever takes the lyrics decodes them once.
// Errs towards keeping: other tags that a clean-up leaves in are lyrics, and so is a song about a lock-out. A phrase
// that a song can hold as well counts as a notice at the beginning of a text only, or in a short one.
//
// `markup` is what the clean-up stripped the tags from, where that is known: that makes words of a script, so a script
// there counts as left over as well.
[[nodiscard]] bool isJunk(const QString &lyrics, const QString &markup = {});
