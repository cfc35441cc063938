// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// What versions are ordered by: one byte for each part between dots, the number modulo 256; empty parts count as 0.
// Keys are compared as unsigned bytes, and one that another begins with is the smaller: 1.10 is newer than 1.9, and 1.2
// older than 1.2.0. That 1.257 equals 1.1 is meant: the maker numbers its releases accordingly.
[[nodiscard]] QByteArray versionKey(const QString &version);

[[nodiscard]] bool isNewerVersion(const QString &version, const QString &than);

// The first run of numbers joined by dots in the name of a file: "2.0.1" in "versewell_2.0.1-1.deb". Empty when there
// is none.
[[nodiscard]] QString versionInName(const QString &fileName);
