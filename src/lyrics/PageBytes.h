// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// What is done to the bytes of a page before it is read as UTF-8. The time grows in step with the page.

// The bytes of a page in UTF-8. What is UTF-8 already stays as it is, whatever it says of itself, and so does what has
// a broken character here and there: sites cut texts in the middle of one. Anything else is converted from the charset
// that the value of its Content-Type header names or, when that names none or UTF-8, the page: by a byte order mark, or
// by a <meta> in its first 1024 bytes. A page that names no other charset known here stays as it is, too.
[[nodiscard]] QByteArray pageInUtf8(const QByteArray &page, const QByteArray &contentType);

// Undoes percent-encoding where it is well formed, "%" and two hexadecimal digits, and stands for UTF-8. Any other "%"
// stays: people sing of "100%baby".
[[nodiscard]] QByteArray decodePercentEscapes(const QByteArray &bytes);
