// SPDX-License-Identifier: MIT
#include "tags/NumberPair.h"

#include <QRegularExpression>

namespace tags {

std::optional<NumberPair> parseNumberPair(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(R"(\A(\d+)(?:[/\\](\d+))?\z)"));
    QString spaceless = text;
    spaceless.remove(QLatin1Char(' '));
    const QRegularExpressionMatch match = pattern.match(spaceless);
    if (!match.hasMatch())
        return std::nullopt;
    return NumberPair{match.captured(1).toInt(), match.captured(2).toInt()};
}

QString numberPairText(const NumberPair &pair)
{
    if (pair.number < 1)
        return {};
    const QString number = QString::number(pair.number);
    return pair.total < 1 ? number : number + QLatin1Char('/') + QString::number(pair.total);
}

} // namespace tags
