// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

// What counts as one server, whatever the path: scheme, host and port, as "https://host:443". The address must be a web
// address (Redirects.h).
[[nodiscard]] QString serverOf(const QUrl &url);
