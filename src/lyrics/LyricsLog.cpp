// SPDX-License-Identifier: MIT
#include "lyrics/LyricsLog.h"

Q_LOGGING_CATEGORY(lyricsLog, "versewell.lyrics")
