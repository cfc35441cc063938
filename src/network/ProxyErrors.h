// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QString>

// What went wrong with the proxy through which this answer came, as one of the errors that Qt has for proxies; NoError
// when it is not the proxy that failed. A plain http answer with status 407 through an HTTP proxy may be the site's.
[[nodiscard]] QNetworkReply::NetworkError proxyError(const QNetworkReply &reply, const QNetworkProxy &proxy);

// Such an error in words for users.
[[nodiscard]] QString proxyErrorText(QNetworkReply::NetworkError error);
