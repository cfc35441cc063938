// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The plain text of names and lyrics as Megalyrics writes them, which differs from that of other sites: the named
// references "&quot;", "&amp;", "&lt;", "&gt;", "&nbsp;" (a space) and "&middot;" (nothing), then escapes with a
// backslash as in JavaScript, then decimal references. Tags stay. Time grows in step with the length of the text.
//
// "\u" and four hexadecimal digits give one UTF-16 unit, so that a pair of them gives one character. Where the digits
// are none, the text stays as it is and the mistake is logged.
[[nodiscard]] QString decodeMegaLyricsText(const QString &text);
