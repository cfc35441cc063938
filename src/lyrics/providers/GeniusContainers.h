// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ProviderStep.h"

#include <QString>

// Reads a Genius page in the newer layout: the lyrics are the texts of all lyrics containers, in their order, joined by
// CR LF. A container that is not closed ends the search for more of them; a page without a closed one is not
// understood. Pure; its time grows in step with the page.
[[nodiscard]] ProviderStep readGeniusContainers(const QString &songPage);

// Break tags ("<br>" and "<br/>", nothing else) as newlines.
[[nodiscard]] QString withPlainBreaksAsNewlines(const QString &html);
