// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// How the names of songs are put into queries and compared with what a site answers.

// In UTF-16 units. What is longer is no name: it would go into the address of a request to every site, and be compared
// with every row of a page.
constexpr int longestName = 1000;

// The artist as sites list it: the first of several names joined by two backslashes, without a guest that is announced
// by " ft. ", " feat. " or " featuring ", trimmed.
[[nodiscard]] QString normalisedArtist(const QString &artist);

// The title without a guest (as above), then without " (official)" and " (Extended Video)" at its end, trimmed.
[[nodiscard]] QString normalisedTitle(const QString &title);

// A name out of a page: references to characters decoded, by number or by name, and trimmed. What windows-1252 has for
// "&#146;" counts, and so does what was encoded twice. Tags stay.
[[nodiscard]] QString foundName(const QString &encoded);

// Whether two names resemble each other: one holds the other once both are in lower case and without quotation marks,
// spaces, commas and ampersands. Characters that Unicode takes for forms of others count as those: an accent of its
// own, a wide letter (NFKC, https://unicode.org/reports/tr15). A name of which nothing is left resembles every other.
[[nodiscard]] bool looselyAgree(const QString &wanted, const QString &found);

// A name, or names, as the value of a query: percent-encoded wholly, so that "+", "&", "#" and "%" arrive as they are.
// A letter and its accents are sent as one character where there is one (NFC), as sites store them.
[[nodiscard]] QString queryValue(const QString &name);
