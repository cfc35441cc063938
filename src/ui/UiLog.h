// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

// "versewell.ui": what this folder logs.
Q_DECLARE_LOGGING_CATEGORY(uiLog)
