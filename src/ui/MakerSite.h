// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Opens a page of the maker's site in the browser, telling it the program, its version and `source`: which link of the
// program was followed. `path` begins with a slash. Nothing when there is no such site.
void openMakerSite(const QString &path, const QString &source);
