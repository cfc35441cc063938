// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The text file that belongs to an audio file: same folder, complete base name, ".txt".
[[nodiscard]] QString lyricsFileName(const QString &audioFile);

// Writes the text into that file, replacing what is there as a whole or not at all. The encoding is the locale's where
// it can hold the text, else UTF-8. False, with nothing changed, when the file cannot be written.
[[nodiscard]] bool writeLyricsFile(const QString &audioFile, const QString &lyrics);
