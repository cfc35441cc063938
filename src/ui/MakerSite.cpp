// SPDX-License-Identifier: MIT
#include "ui/MakerSite.h"

#include "network/Endpoints.h"

#include <QCoreApplication>
#include <QUrlQuery>

QUrl makerPage(const QString &path, const QString &source)
{
    if (!endpointExists(Endpoint::Maker))
        return {};
    QUrl url = endpointUrl(Endpoint::Maker, path);
    url.setQuery(QUrlQuery{{QStringLiteral("zv_product"), QStringLiteral("versewell")},
                           {QStringLiteral("zv_version"), QCoreApplication::applicationVersion()},
                           {QStringLiteral("zv_source"), source}});
    return url;
}
