// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The lyrics of a Genius page in the newer layout: the texts of all lyrics containers, in their order, joined by CR LF.
// A container that is not closed ends the search for more of them. Pure; its time grows in step with the page.
[[nodiscard]] QString lyricsOfGeniusContainers(const QString &songPage);

// Break tags ("<br>" and "<br/>", nothing else) as newlines.
[[nodiscard]] QString withPlainBreaksAsNewlines(const QString &html);
