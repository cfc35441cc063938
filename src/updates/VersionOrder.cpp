// SPDX-License-Identifier: MIT
#include "updates/VersionOrder.h"

#include <QRegularExpression>

namespace {

// Of an unsigned decimal number however long; 0 for anything else.
uchar numberModulo256(const QString &digits)
{
    unsigned number = 0;
    for (const QChar digit : digits) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9'))
            return 0;
        number = (number * 10 + (digit.unicode() - '0')) % 256;
    }
    return static_cast<uchar>(number);
}

} // namespace

QByteArray versionKey(const QString &version)
{
    QByteArray key;
    const QStringList parts = version.split(QLatin1Char('.'));
    for (const QString &part : parts)
        key.append(static_cast<char>(numberModulo256(part)));
    return key;
}

bool isNewerVersion(const QString &version, const QString &than)
{
    return versionKey(version) > versionKey(than);
}

QString versionInName(const QString &fileName)
{
    static const QRegularExpression version(QStringLiteral("\\d+(\\.\\d+)+"));
    return version.match(fileName).captured();
}
