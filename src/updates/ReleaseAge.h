// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

// How long ago a release was, for people: whole years, or below one year months, or below one month days. Empty when a
// date is missing, or when it is not in the past.
[[nodiscard]] QString releaseAge(const QDate &released, const QDate &today);
