// SPDX-License-Identifier: MIT
#include "network/RetryAfter.h"

#include <QLocale>
#include <QString>

#include <algorithm>

namespace {

// A year of two digits that seems to lie more than 50 years back belongs to the next century.
QDateTime withLikelyCentury(const QDateTime &date, const QDateTime &now)
{
    return date < now.addYears(-50) ? date.addYears(100) : date;
}

QDateTime parseHttpDate(const QString &text, const QDateTime &now)
{
    // The preferred form, that of RFC 850, and that of asctime(), each without its first word: the name of the day
    // says nothing new, and Qt, which puts a year of two digits into the 20th century, would find it wrong.
    static const QString formats[] = {QStringLiteral("dd MMM yyyy HH:mm:ss 'GMT'"),
                                      QStringLiteral("dd-MMM-yy HH:mm:ss 'GMT'"),
                                      QStringLiteral("MMM d HH:mm:ss yyyy")};
    const QString withoutDay = text.simplified().section(QLatin1Char(' '), 1);
    for (const QString &format : formats) {
        QDateTime date = QLocale::c().toDateTime(withoutDay, format);
        date.setTimeSpec(Qt::UTC);
        if (date.isValid())
            return withLikelyCentury(date, now);
    }
    return {};
}

bool isNumber(const QByteArray &text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), [](char c) { return c >= '0' && c <= '9'; });
}

qint64 secondsAsked(const QByteArray &value, const QDateTime &now)
{
    if (isNumber(value)) {
        bool fits = false;
        const qint64 seconds = value.toLongLong(&fits);
        return fits ? seconds : longestPause.count();
    }
    const QDateTime until = parseHttpDate(QString::fromLatin1(value), now);
    return until.isValid() ? now.secsTo(until) : 0;
}

} // namespace

std::optional<std::chrono::seconds> retryAfter(const QByteArray &header, const QDateTime &now)
{
    const qint64 seconds = secondsAsked(header.trimmed(), now);
    if (seconds <= 0)
        return {};
    return std::min(std::chrono::seconds(seconds), longestPause);
}
