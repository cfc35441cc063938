// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

// How long ago a release was, for people: whole years, or below two years months, or below two months days. Empty below
// two days, and when a date is missing.
[[nodiscard]] QString releaseAge(const QDate &released, const QDate &today);
