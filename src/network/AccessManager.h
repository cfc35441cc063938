// SPDX-License-Identifier: MIT
#pragma once

#include "network/RequestLimits.h"
#include "network/RequestQueue.h"
#include "network/RestingHosts.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <optional>

class LimitedReply;

// The access manager of every connection that the program opens. It keeps hostile and broken servers from doing harm:
//
// - Each request has limits of time and size (RequestLimits). Bodies are inflated here, never beyond the limit.
// - Only http and https addresses are asked; anything else is an error reply.
// - Nobody is given a user name and a password but the proxy.
// - Redirects are not followed: whoever sent the request does that by hand (Redirects.h).
// - A server that answers 429 or 503 with "Retry-After" gets no request for that time; they fail instead, at once or,
//   when they wait already, as soon as it would be their turn.
// - A server gets a few requests at a time; the others wait here and cost no time of their limits (RequestQueue).
// - After a proxy refused a log-in, requests fail with that error and are not sent, until the proxy changes: somebody
//   who tries over and over gets the account locked.
//
// Replies, cookies and proxies are used as with any QNetworkAccessManager; see LimitedReply for what a reply promises.
// A request that waited goes out with the cookies and the proxy of the moment in which it is sent. Data that is
// uploaded must stay alive until finished(), as always; when the reply is deleted before that, until the event loop has
// run once more.
//
// A reply given by authenticationRequired() or proxyAuthenticationRequired() is not the one that was handed out but the
// one behind it.
class AccessManager : public QNetworkAccessManager
{
    Q_OBJECT

public:
    // A request attribute (bool): the body goes through as it comes, not inflated, and without limits of size and total
    // time. It is read on readyRead().
    static constexpr auto DownloadAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 1);

    explicit AccessManager(QObject *parent = nullptr, RestingHosts::Clock clock = &std::chrono::steady_clock::now);

    // For the requests that are made from now on.
    void setLimits(const RequestLimits &limits);

    // Sets the proxy for what is sent from now on, and forgets that one refused a log-in.
    void useProxy(const QNetworkProxy &proxy);

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request, QIODevice *outgoingData) override;

private:
    struct Hindrance
    {
        QNetworkReply::NetworkError error;
        QString text; // for users
    };

    // An error reply when this request must not even wait, else null.
    QNetworkReply *refusal(Operation operation, const QNetworkRequest &request);
    // Why nothing may be sent to this address now, if so.
    [[nodiscard]] std::optional<Hindrance> hindrance(const QUrl &url) const;
    void enqueue(LimitedReply *reply, QIODevice *outgoingData);
    // Sends what the reply stands for, or ends it. Null when there was nothing to send.
    QNetworkReply *send(LimitedReply *reply, QIODevice *outgoingData);
    void noteWish(const QNetworkReply &reply);
    // Looks at an answer that came through `proxy`; the reply that stands before it fails when the proxy did.
    void noteProxy(const QNetworkReply &source, const QNetworkProxy &proxy, LimitedReply *reply);
    [[nodiscard]] bool isLoginRefused(const QNetworkReply &source, const QNetworkProxy &proxy) const;

    RequestLimits m_limits;
    RestingHosts m_restingHosts;
    RequestQueue m_queue;
    std::optional<QNetworkProxy> m_refusingProxy; // with the user name and the password that it refused
    bool m_proxyHasAnswered = false;              // something came through the proxy since it is in use
};
