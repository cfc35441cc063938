// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"

#include <algorithm>
#include <array>

namespace {

constexpr int mostBytes = 100 * 1000;

const std::array<QLatin1String, 4> leftOvers{QLatin1String("<script"), QLatin1String("<style"), QLatin1String("<html"),
                                             QLatin1String("<!DOCTYPE")};

} // namespace

bool isJunk(const QString &lyrics)
{
    return lyrics.toUtf8().size() > mostBytes ||
           std::any_of(leftOvers.begin(), leftOvers.end(),
                       [&lyrics](QLatin1String leftOver) { return lyrics.contains(leftOver, Qt::CaseInsensitive); });
}
