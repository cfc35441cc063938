// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

// "versewell.settings": what this folder logs. Never a value that was stored.
Q_DECLARE_LOGGING_CATEGORY(settingsLog)
