// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What the speakers of a language call it, with the country where the code names one: "Deutsch" for "de", "Português
// (Brasil)" for "pt_BR". A code that no locale is known for is its own name.
[[nodiscard]] QString languageName(const QString &code);
