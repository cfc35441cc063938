// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib {
class String;
}

namespace tags {

// Longest texts that are taken out of a tag, in UTF-16 units: a tag is hostile input, and everything that is read
// is kept in memory for every file of the list.
constexpr int maximumLyricsLength = 1024 * 1024;
constexpr int maximumFieldLength = 64 * 1024;

QString fromTagText(const TagLib::String &text);

// NUL characters are left out: several formats take them for a separator of values.
TagLib::String toTagText(const QString &text);

// RIFF INFO names no encoding. Once this was called, in any thread, TagLib takes a text of it for Latin-1 where it is
// not UTF-8; by itself it drops such a text. For the whole process; to be called before a file is opened.
void acceptLatin1InRiffInfo();

// Without control characters other than tab, carriage return and line feed, and cut to maximumLength, never within
// a surrogate pair.
[[nodiscard]] QString cleanedText(const QString &text, int maximumLength);

// True when every character is of the 7-bit set.
[[nodiscard]] bool isAscii(const QString &text);

} // namespace tags
