// SPDX-License-Identifier: MIT
#include "network/AccessManager.h"

#include "network/LimitedReply.h"
#include "network/NetworkLog.h"
#include "network/ProxyErrors.h"
#include "network/Redirects.h"
#include "network/RefusedReply.h"
#include "network/RetryAfter.h"

#include <utility>

namespace {

constexpr auto loginRefused = QNetworkReply::ProxyAuthenticationRequiredError;
constexpr int shownAddressCharacters = 120; // a data: address can be as long as a page

// Left to itself, Qt 5.15 gives the proxy's user name and password to an http site that asks for some under the name
// under which the proxy did. So it is kept from logging in anywhere, and an http page is asked for with the log-in for
// the proxy, which does not pass it on. For https Qt gives it to the proxy alone.
void addProxyLogin(const QNetworkProxy &proxy, QNetworkRequest *sent)
{
    sent->setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    const bool plain = sent->url().scheme() == QLatin1String("http");
    if (!plain || proxy.type() != QNetworkProxy::HttpProxy || proxy.user().isEmpty())
        return;
    const QString login = proxy.user() + QLatin1Char(':') + proxy.password();
    sent->setRawHeader("Proxy-Authorization", "Basic " + login.toUtf8().toBase64()); // RFC 7617
}

// Naming the codings ourselves keeps Qt from inflating, which it does without any bound.
QNetworkRequest asSent(const LimitedReply &reply, const QNetworkProxy &proxy)
{
    QNetworkRequest sent = reply.request();
    sent.setRawHeader("Accept-Encoding", reply.kind() == RequestKind::Page ? "gzip, deflate" : "identity");
    sent.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    addProxyLogin(proxy, &sent);
    return sent;
}

} // namespace

AccessManager::AccessManager(QObject *parent, RestingHosts::Clock clock)
    : QNetworkAccessManager(parent)
    , m_restingHosts(std::move(clock))
{
}

void AccessManager::setLimits(const RequestLimits &limits)
{
    m_limits = limits;
}

void AccessManager::useProxy(const QNetworkProxy &proxy)
{
    setProxy(proxy);
    m_refusingProxy.reset();
    m_proxyHasAnswered = false;
}

QNetworkReply *AccessManager::createRequest(Operation operation, const QNetworkRequest &request,
                                            QIODevice *outgoingData)
{
    if (QNetworkReply *refused = refusal(operation, request))
        return refused;
    const bool isDownload = request.attribute(DownloadAttribute).toBool();
    const auto kind = isDownload ? RequestKind::Download : RequestKind::Page;
    auto *reply = new LimitedReply(operation, request, kind, m_limits, this);
    connect(reply, &QNetworkReply::metaDataChanged, this, [this, reply] { noteWish(*reply); });
    enqueue(reply, outgoingData);
    return reply;
}

void AccessManager::enqueue(LimitedReply *reply, QIODevice *outgoingData)
{
    const bool uploads = outgoingData;
    const QPointer<LimitedReply> waiting(reply);
    const QPointer<QIODevice> data(outgoingData);
    m_queue.add(reply->url(), reply->kind(), [this, waiting, uploads, data]() -> QNetworkReply * {
        if (waiting && uploads && !data)
            waiting->abort(); // rather than send half of it
        return waiting ? send(waiting, data) : nullptr;
    });
}

QNetworkReply *AccessManager::refusal(Operation operation, const QNetworkRequest &request)
{
    const QUrl url = request.url();
    if (!isWebAddress(url)) {
        const QString text = tr("Not a web address: %1").arg(url.toDisplayString().left(shownAddressCharacters));
        return new RefusedReply(operation, request, QNetworkReply::ProtocolUnknownError, text, this);
    }
    if (const auto hindered = hindrance(url))
        return new RefusedReply(operation, request, hindered->error, hindered->text, this);
    return nullptr;
}

std::optional<AccessManager::Hindrance> AccessManager::hindrance(const QUrl &url) const
{
    if (m_refusingProxy == proxy())
        return Hindrance{loginRefused, proxyErrorText(loginRefused)};
    const qint64 seconds = m_restingHosts.remaining(url).count();
    if (seconds == 0)
        return {};
    const QString text = tr("%1 asked for a pause and can be asked again in %2 s.", "%1 is a host name");
    return Hindrance{QNetworkReply::ServiceUnavailableError, text.arg(url.host()).arg(seconds)};
}

QNetworkReply *AccessManager::send(LimitedReply *reply, QIODevice *outgoingData)
{
    if (reply->isSettled())
        return nullptr;
    if (const auto hindered = hindrance(reply->url())) {
        reply->fail(hindered->error, hindered->text);
        return nullptr;
    }
    QNetworkReply *source =
        QNetworkAccessManager::createRequest(reply->operation(), asSent(*reply, proxy()), outgoingData);
    // Here and not where the outcome is handed out, so that it is known before the next one in the queue is sent.
    connect(source, &QNetworkReply::finished, this,
            [this, source, used = proxy(), waiting = QPointer(reply)] { noteProxy(*source, used, waiting); });
    reply->start(source);
    return source;
}

void AccessManager::noteProxy(const QNetworkReply &source, const QNetworkProxy &proxy, LimitedReply *reply)
{
    const bool refused = isLoginRefused(source, proxy);
    const QNetworkReply::NetworkError error = refused ? loginRefused : proxyError(source, proxy);
    if (proxy == this->proxy()) {
        if (refused && !m_refusingProxy)
            qCWarning(networkLog, "The proxy refuses the log-in.");
        if (refused)
            m_refusingProxy = proxy;
        else if (error == QNetworkReply::NoError)
            m_proxyHasAnswered |= source.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    }
    if (error != QNetworkReply::NoError && reply)
        reply->fail(error, proxyErrorText(error));
}

bool AccessManager::isLoginRefused(const QNetworkReply &source, const QNetworkProxy &proxy) const
{
    if (source.error() == QNetworkReply::ProxyAuthenticationRequiredError)
        return true;
    // There are proxies that answer a wrong password as if the site had been asked for one. Once a page has come
    // through, the password is right and it is the site that asks.
    return source.error() == QNetworkReply::AuthenticationRequiredError && proxy.type() == QNetworkProxy::HttpProxy &&
           !proxy.user().isEmpty() && !m_proxyHasAnswered &&
           !source.attribute(QNetworkRequest::ConnectionEncryptedAttribute).toBool();
}

void AccessManager::noteWish(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 429 && status != 503)
        return;
    const auto pause = retryAfter(reply.rawHeader("Retry-After"), QDateTime::currentDateTimeUtc());
    if (!pause)
        return;
    qCInfo(networkLog) << reply.url().host() << "asked for a pause of" << pause->count() << "s";
    m_restingHosts.rest(reply.url(), *pause);
}
