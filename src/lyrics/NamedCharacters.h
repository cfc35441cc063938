// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Decodes the references by name that texts are full of, once: "&eacute;" and all others of Latin-1, and those of
// quotation marks, dashes and a few signs, as in HTML 4.01, section 24, with "&apos;". Letter case counts. Those that
// decodeHtmlEntities() knows stay, so that none of the characters that come out is part of markup or of a reference:
// it does not matter what is decoded before this, and what after.
[[nodiscard]] QString withNamedCharacters(const QString &text);
