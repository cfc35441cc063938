// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ChainPattern.h"

#include <QString>

// Whether a fragment of HTML that should be lyrics is a list of links instead: of its letters, hardly any stand outside
// the elements that `link` matches. Never for a fragment without letters. Pure; its time grows in step with the
// fragment.
[[nodiscard]] bool isLinkList(const QString &markup, const ChainPattern &link);
