// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

// The address of a page on the maker's site, `path` beginning with "/", with the product, its version and the place in
// the program that leads there ("app", "app-about") in its query. Empty when there is no such site.
[[nodiscard]] QUrl makerPage(const QString &path, const QString &source);
