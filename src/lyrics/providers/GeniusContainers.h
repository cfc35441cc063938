// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/ProviderStep.h"

#include <QString>

// Reads a Genius page in the newer layout: the lyrics are the texts of all lyrics containers, in their order, joined by
// CR LF. A page without containers, or with one that is not closed, is not understood. Pure; its time grows in step
// with the page.
[[nodiscard]] ProviderStep readGeniusContainers(const QString &songPage);

// Break tags ("<br>" and "<br/>", nothing else) as newlines.
[[nodiscard]] QString withPlainBreaksAsNewlines(const QString &html);
