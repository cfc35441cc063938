// SPDX-License-Identifier: MIT
#include "network/ProxyConfiguration.h"

namespace {

QNetworkProxy::ProxyType networkType(int type)
{
    switch (type) {
    case ProxyConfiguration::Socks5:
        return QNetworkProxy::Socks5Proxy;
    case ProxyConfiguration::Http:
        return QNetworkProxy::HttpProxy;
    default:
        return QNetworkProxy::NoProxy;
    }
}

} // namespace

QNetworkProxy ProxyConfiguration::toProxy() const
{
    const QNetworkProxy::ProxyType proxyType = networkType(type);
    if (proxyType != QNetworkProxy::NoProxy && address.isEmpty())
        return {};
    const bool hasCredentials = authentication && !username.isEmpty();
    return {proxyType, address, port, hasCredentials ? username : QString(), hasCredentials ? password : QString()};
}
