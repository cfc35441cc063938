// SPDX-License-Identifier: MIT
#include "network/Redirects.h"

bool isWebAddress(const QUrl &url)
{
    const bool web = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && web && !url.host().isEmpty();
}

QUrl redirectTarget(const QUrl &asked, const QByteArray &location)
{
    const QUrl relative = QUrl::fromEncoded(location.trimmed());
    if (relative.isEmpty() || !relative.isValid())
        return {};
    QUrl target = asked.resolved(relative);
    if (!isWebAddress(target))
        return {};
    if (!target.hasFragment() && asked.hasFragment())
        target.setFragment(asked.fragment(QUrl::FullyEncoded));
    return target;
}
