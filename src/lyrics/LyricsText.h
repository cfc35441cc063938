// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What turns fragments of HTML into lyrics. Pure functions, safe in every thread; their time grows in step with the
// length of the text, whatever it holds.

// Decodes numeric references of two to six decimal or two to five hexadecimal digits, then "&amp;", "&gt;", "&lt;",
// "&quot;", "&#39;" and "&#039;", in this order. A reference that comes into being through a decoded one is decoded as
// well, but after "&amp;" only the named ones: "&amp;lt;" gives "<" and "&amp;#8217;" gives "&#8217;".
// The result may hold what the text asked for: NUL, or half a surrogate pair; see withoutBrokenCharacters().
[[nodiscard]] QString decodeHtmlEntities(const QString &text);

// Decodes "&#", decimal digits in any number, ";", and nothing else; also what comes into being through a decoded one.
// Numbers beyond Unicode give U+FFFD.
[[nodiscard]] QString decodeDecimalReferences(const QString &text);

// Removes everything from the first "<!--" to the last "-->", also what stands between several comments.
[[nodiscard]] QString withoutComments(const QString &html);

// Removes "<script" and "<style" elements with all that stands in them, in any letter case. One that is not closed
// stays, and so does all that comes behind it; when it begins in a comment, only the rest of that comment.
[[nodiscard]] QString withoutScriptsAndStyles(const QString &html);

// Removes everything from a "<" that is not directly followed by ">" up to the next ">".
[[nodiscard]] QString stripTags(const QString &html);

// The plain text of a fragment of HTML: comments go (withoutComments), lower-case break tags become newlines, tags go,
// blank space at both ends goes, entities are decoded.
[[nodiscard]] QString cleanLyrics(const QString &html);

// The text as tags can hold it and people read it: without control characters but tabs and line ends, without byte
// order marks, without zero width spaces at the ends, and with U+FFFD for each half of a surrogate pair that stands
// alone. U+0080 to U+009F become what they are in windows-1252, since that is what "&#146;" is meant to be on old
// pages.
[[nodiscard]] QString withoutBrokenCharacters(const QString &text);
