// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ProviderStep.h"

#include <QString>

// A link that was found in the text of a page, as it stands in the page's source when escapes are in it: what browsers
// ask for, a "%" that begins no escape as "%25". Decoded, "%E9" and "%25E9" are the same. Any other link, and one with
// escaped slashes, is given back as it is. Time grows in step with the page.
[[nodiscard]] QString linkInSource(const Page &page, const QString &link);

// The same, but any other link gets those escapes without which it would lead elsewhere. "%" and "#" are always part of
// the path; "?" is as well, unless "=" follows: then a query begins.
[[nodiscard]] QString withLinkEscapes(const Page &page, const QString &link);
