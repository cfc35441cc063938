// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLoggingCategory>

class QNetworkReply;

// "versewell.lyrics": what this folder and the site clients log. No lyrics and no full addresses.
Q_DECLARE_LOGGING_CATEGORY(lyricsLog)

// What a server did whose reply failed, to stand behind its name: which HTTP status it answered with, which error its
// answer had, or that it did not answer. Errors have the names that Qt gives them.
[[nodiscard]] QByteArray failureForLog(const QNetworkReply &reply);
