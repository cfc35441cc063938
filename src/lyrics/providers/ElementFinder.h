// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// The first element of this name in a page whose class attribute holds exactly the given classes, in any order and
// letter case: from its opening tag, or from just behind it, up to its own closing tag, nested elements counted. Empty
// when there is none. `tag` is a name in lower case; in the page, the opening tag may be in any letter case.
//
// Pure; its time grows in step with the page.
[[nodiscard]] QString findElement(const QString &html, const QString &tag, const QStringList &classes,
                                  bool withOpeningTag);

// Where the search goes on after a match of this length at `position` that was found from `offset` on and did not do:
// the offset grows by the length of the match, as often as it takes to get behind `position`.
[[nodiscard]] int offsetBehind(int offset, int position, int length);

// The text with A to Z in lower case, every character at its place.
[[nodiscard]] QString asciiLower(const QString &text);
