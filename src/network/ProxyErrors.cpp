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

// What a SOCKS5 proxy answers when it cannot reach the site (RFC 1928, section 6): the proxy itself works. The network
// may also be missing between here and the proxy; the words are true of that as well.
bool isOfTheSite(const QString &words)
{
    return words == QCoreApplication::translate("QAbstractSocket", "Network unreachable") ||
           words == QCoreApplication::translate("QNativeSocketEngine", "Network unreachable") ||
           words == QCoreApplication::translate("QSocks5SocketEngine", "TTL expired");
}

// Qt 5.15 gives one number to all that a proxy can do wrong before it passes anything on, and tells it apart in words.
QNetworkReply::NetworkError fromWords(const QString &words)
{
    if (isOfTheSite(words))
        return QNetworkReply::NoError;
    const auto isOneOf = [&words](const char *socks, const char *http) {
        return words == QCoreApplication::translate("QSocks5SocketEngine", socks) ||
               words == QCoreApplication::translate("QHttpSocketEngine", http);
    };
    if (isOneOf("Connection to proxy refused", "Proxy connection refused"))
        return QNetworkReply::ProxyConnectionRefusedError;
    if (isOneOf("Connection to proxy closed prematurely", "Proxy connection closed prematurely"))
        return QNetworkReply::ProxyConnectionClosedError;
    if (isOneOf("Proxy host not found", "Proxy server not found"))
        return QNetworkReply::ProxyNotFoundError;
    if (isOneOf("Connection to proxy timed out", "Proxy server connection timed out"))
        return QNetworkReply::ProxyTimeoutError;
    return QNetworkReply::UnknownProxyError;
}

bool isSet(const QNetworkProxy &proxy)
{
    return proxy.type() != QNetworkProxy::NoProxy && proxy.type() != QNetworkProxy::DefaultProxy;
}

} // namespace

QNetworkReply::NetworkError proxyError(const QNetworkReply &reply, const QNetworkProxy &proxy)
{
    const QNetworkReply::NetworkError error = reply.error();
    if (!isSet(proxy))
        return QNetworkReply::NoError;
    const bool answered = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    const bool mayAnswerItself =
        proxy.type() == QNetworkProxy::HttpProxy && reply.url().scheme() == QLatin1String("http");
    if (answered && !mayAnswerItself)
        return QNetworkReply::NoError;
    if (error == QNetworkReply::UnknownNetworkError && !answered)
        return fromWords(reply.errorString());
    if (error >= QNetworkReply::ProxyConnectionRefusedError && error <= QNetworkReply::ProxyAuthenticationRequiredError)
        return error;
    return mayAnswerItself ? asProxyError(error) : QNetworkReply::NoError;
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
