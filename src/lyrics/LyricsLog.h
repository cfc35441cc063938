// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

// "versewell.lyrics": what this folder and the site clients log. No lyrics and no full addresses.
Q_DECLARE_LOGGING_CATEGORY(lyricsLog)
