// SPDX-License-Identifier: MIT
#include "network/Server.h"

QString serverOf(const QUrl &url)
{
    const int defaultPort = url.scheme() == QLatin1String("https") ? 443 : 80;
    return QStringLiteral("%1://%2:%3").arg(url.scheme(), url.host()).arg(url.port(defaultPort));
}
