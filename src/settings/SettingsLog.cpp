// SPDX-License-Identifier: MIT
#include "settings/SettingsLog.h"

Q_LOGGING_CATEGORY(settingsLog, "versewell.settings")
