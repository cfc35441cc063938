// SPDX-License-Identifier: MIT
#include "updates/ReleaseAge.h"

#include <QCoreApplication>

static constexpr int monthsInYear = 12;
// Of each unit, as "more than 1 years" says little, and says it badly.
static constexpr int least = 2;

// A month is over on the same day of the next one, or on its last day where there is no such day.
static int wholeMonths(const QDate &from, const QDate &to)
{
    const int months = (to.year() - from.year()) * monthsInYear + to.month() - from.month();
    return from.addMonths(months) > to ? months - 1 : months;
}

QString releaseAge(const QDate &released, const QDate &today)
{
    if (!released.isValid() || !today.isValid() || released.daysTo(today) < least)
        return {};
    const int months = wholeMonths(released, today);
    if (months >= least * monthsInYear)
        return QCoreApplication::translate("UpdateDialog", "%n years", nullptr, months / monthsInYear);
    if (months >= least)
        return QCoreApplication::translate("UpdateDialog", "%n months", nullptr, months);
    const int days = static_cast<int>(released.daysTo(today)); // in the call the tool that collects texts would miss it
    return QCoreApplication::translate("UpdateDialog", "%n days", nullptr, days);
}
