// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

// "versewell.updates": what this folder logs. No full paths and no full addresses.
Q_DECLARE_LOGGING_CATEGORY(updatesLog)
