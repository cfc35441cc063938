// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// What turns pages and fragments of HTML into lyrics. Pure functions, safe in every thread; their time grows in step
// with the length of the text, whatever it holds.

// Undoes percent-encoding where it is well formed: "%" and two hexadecimal digits. Any other "%" stays.
[[nodiscard]] QByteArray decodePercentEscapes(const QByteArray &bytes);

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
// stays, and so does all that comes behind it.
[[nodiscard]] QString withoutScriptsAndStyles(const QString &html);

// Removes everything from a "<" that is not directly followed by ">" up to the next ">".
[[nodiscard]] QString stripTags(const QString &html);

// The plain text of a fragment of HTML: comments go (withoutComments), lower-case
// break tags become newlines, tags go, blank space at both ends goes, entities are decoded.
[[nodiscard]] QString cleanLyrics(const QString &html);

// The text without NUL, and with U+FFFD for each half of a surrogate pair that stands alone: what no tag can hold.
[[nodiscard]] QString withoutBrokenCharacters(const QString &text);
