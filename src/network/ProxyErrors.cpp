// SPDX-License-Identifier: MIT
#include "network/ProxyErrors.h"

#include <QCoreApplication>

namespace {

// An http page is asked of an HTTP proxy itself, so that Qt takes the proxy for the site.
QNetworkReply::NetworkError asProxyError(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::ConnectionRefusedError:
        return QNetworkReply::ProxyConnectionRefusedError;
    case QNetworkReply::RemoteHostClosedError:
        return QNetworkReply::ProxyConnectionClosedError;
    case QNetworkReply::HostNotFoundError:
        return QNetworkReply::ProxyNotFoundError;
    default:
        return QNetworkReply::NoError;
    }
}

} // namespace

QNetworkReply::NetworkError proxyError(const QNetworkReply &reply, const QNetworkProxy &proxy)
{
    const QNetworkReply::NetworkError error = reply.error();
    if (error >= QNetworkReply::ProxyConnectionRefusedError && error <= QNetworkReply::ProxyAuthenticationRequiredError)
        return error;
    const bool plain = reply.url().scheme() == QLatin1String("http");
    return plain && proxy.type() == QNetworkProxy::HttpProxy ? asProxyError(error) : QNetworkReply::NoError;
}

QString proxyErrorText(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::ProxyConnectionRefusedError:
        return QCoreApplication::translate("Proxy", "The proxy does not take the connection.");
    case QNetworkReply::ProxyConnectionClosedError:
        return QCoreApplication::translate("Proxy", "The proxy closed the connection.");
    case QNetworkReply::ProxyNotFoundError:
        return QCoreApplication::translate("Proxy", "The proxy was not found.");
    case QNetworkReply::ProxyTimeoutError:
        return QCoreApplication::translate("Proxy", "The proxy did not answer in time.");
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return QCoreApplication::translate("Proxy", "The proxy refuses the user name or the password.");
    default:
        return QCoreApplication::translate("Proxy", "The proxy does not work.");
    }
}
