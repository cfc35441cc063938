// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>

#include <chrono>
#include <optional>

// The longest pause that a site can ask for; a longer wish counts as this one.
constexpr std::chrono::seconds longestPause = std::chrono::minutes(10);

// Reads a "Retry-After" header (RFC 9110, section 10.2.3): a number of seconds, or a date in one of the three HTTP
// forms, which is compared with `now`. The result is above 0 and at most longestPause; nothing when the header is
// malformed or its time has passed.
[[nodiscard]] std::optional<std::chrono::seconds> retryAfter(const QByteArray &header, const QDateTime &now);
