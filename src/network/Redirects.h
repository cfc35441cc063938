// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QUrl>

// Redirects are followed by hand by whoever sent the request; what is the same for all of them stands here.

// How many redirects in a row are followed for one request; the next one is an error.
constexpr int maximumRedirects = 20;

// Whether the program may send a request there: a valid http or https address with a host.
[[nodiscard]] bool isWebAddress(const QUrl &url);

// Where a "Location" header leads: resolved against the address that was asked, whose fragment it inherits when it has
// none of its own (RFC 9110, section 10.2.2). Empty when there is no location or when it is not a web address.
[[nodiscard]] QUrl redirectTarget(const QUrl &asked, const QByteArray &location);
