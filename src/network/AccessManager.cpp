// SPDX-License-Identifier: MIT
#include "network/AccessManager.h"

#include "network/LimitedReply.h"
#include "network/NetworkLog.h"
#include "network/Redirects.h"
#include "network/RefusedReply.h"
#include "network/RetryAfter.h"

#include <utility>

namespace {

constexpr int shownAddressCharacters = 120; // a data: address can be as long as a page

// Naming the codings ourselves keeps Qt from inflating, which it does without any bound.
QNetworkRequest asSent(const LimitedReply &reply)
{
    QNetworkRequest sent = reply.request();
    sent.setRawHeader("Accept-Encoding", reply.kind() == RequestKind::Page ? "gzip, deflate" : "identity");
    sent.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
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
    const QString text = pauseText(url);
    if (!text.isEmpty())
        return new RefusedReply(operation, request, QNetworkReply::ServiceUnavailableError, text, this);
    return nullptr;
}

QString AccessManager::pauseText(const QUrl &url) const
{
    const qint64 seconds = m_restingHosts.remaining(url).count();
    if (seconds == 0)
        return {};
    return tr("%1 asked for a pause and can be asked again in %2 s.", "%1 is a host name").arg(url.host()).arg(seconds);
}

QNetworkReply *AccessManager::send(LimitedReply *reply, QIODevice *outgoingData)
{
    if (reply->isSettled())
        return nullptr;
    const QString text = pauseText(reply->url());
    if (!text.isEmpty()) {
        reply->fail(QNetworkReply::ServiceUnavailableError, text);
        return nullptr;
    }
    QNetworkReply *source = QNetworkAccessManager::createRequest(reply->operation(), asSent(*reply), outgoingData);
    reply->start(source);
    return source;
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
