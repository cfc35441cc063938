// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tags {

// Stars are whole numbers from 0 to 5.

// The bounds are those that Windows Media Player writes into the popularimeter frame; other programs follow it.
int starsFromByte(int byte);
int byteFromStars(int stars);

// For ratings from 0 to 100. An unset 0 gives 1 star; this is deliberate.
int starsFromPercent(int percent);

// The percentage that Windows shows as that many stars; 0 for none.
int percentFromStars(int stars);

// -1 when the text is no star count.
int starsFromText(const QString &text);

} // namespace tags
