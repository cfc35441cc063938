// SPDX-License-Identifier: MIT
#include "network/NetworkLog.h"

Q_LOGGING_CATEGORY(networkLog, "versewell.network")
