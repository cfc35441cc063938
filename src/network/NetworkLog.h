// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

// "versewell.network": what this folder logs. No credentials and no full addresses.
Q_DECLARE_LOGGING_CATEGORY(networkLog)
