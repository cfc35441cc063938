// SPDX-License-Identifier: MIT
#include "tags/TagRating.h"

#include <array>

namespace tags {

int starsFromByte(int byte)
{
    const int rating = qBound(0, byte, 255);
    if (rating == 255)
        return 5;
    if (rating >= 196)
        return 4;
    if (rating >= 128)
        return 3;
    if (rating >= 64)
        return 2;
    return rating >= 1 ? 1 : 0;
}

int byteFromStars(int stars)
{
    constexpr std::array<int, 6> lowestByte{0, 1, 64, 128, 196, 255};
    return lowestByte.at(qBound(0, stars, 5));
}

int starsFromPercent(int percent)
{
    return qBound(0, (qMin(percent, 100) + 10) / 25 + 1, 5);
}

int percentFromStars(int stars)
{
    constexpr std::array<int, 6> percents{0, 1, 25, 50, 75, 99};
    return percents.at(qBound(0, stars, 5));
}

int starsFromText(const QString &text)
{
    bool isNumber = false;
    const int stars = text.trimmed().toInt(&isNumber);
    return isNumber && stars >= 0 && stars <= 5 ? stars : -1;
}

} // namespace tags
