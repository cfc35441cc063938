// SPDX-License-Identifier: MIT
#include "updates/UpdatesLog.h"

Q_LOGGING_CATEGORY(updatesLog, "versewell.updates")
