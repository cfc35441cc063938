// SPDX-License-Identifier: MIT
#include "ui/UiLog.h"

Q_LOGGING_CATEGORY(uiLog, "versewell.ui")
