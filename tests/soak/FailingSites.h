// SPDX-License-Identifier: MIT
#pragma once

#include "soak/LyricsSites.h"

#include <QtGlobal>

// Answers for sites that fail at random: with lyrics, with nothing, with an error, with rubbish, late, or with half a
// page. `seed` settles what each request gets.
[[nodiscard]] LyricsSites::Answer failingAnswers(quint32 seed);
