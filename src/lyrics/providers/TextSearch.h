// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Searching for a text that a page itself has given, which may be as long as a page, in time that grows in step with
// both. QString compares the whole of such a text anew at each place.

// Whether `text` holds `part`, in the same case.
[[nodiscard]] bool holdsText(const QString &text, const QString &part);

// `text` without every occurrence of `part`, which is not empty, that `follower` stands behind. What comes together
// behind a removal is not looked at again.
[[nodiscard]] QString withoutText(const QString &text, const QString &part, const QString &follower = {});
