// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A link to a song out of a page that was percent-decoded, with those escapes again without which it would lead
// elsewhere. "%" and "#" are always part of the path; "?" is as well, unless "=" follows: then a query begins.
[[nodiscard]] QString withLinkEscapes(QString link);
