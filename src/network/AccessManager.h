// SPDX-License-Identifier: MIT
#pragma once

#include "network/LimitedReply.h"
#include "network/ProxyLogin.h"
#include "network/RequestLimits.h"
#include "network/RequestQueue.h"
#include "network/RestingHosts.h"

#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QVector>

#include <memory>
#include <optional>

// The access manager of every connection that the program opens. It keeps hostile and broken servers from doing harm:
//
// - Each request has limits of time and size (RequestLimits). Bodies are inflated here, never beyond the limit.
// - Only http and https addresses are asked; anything else is an error reply.
// - Nobody is given a user name and a password but the proxy.
// - Redirects are not followed: whoever sent the request does that by hand (Redirects.h).
// - A server that answers 429 or 503 with "Retry-After" gets no request for that time; they fail instead, at once or,
//   when they wait already, as soon as it would be their turn. So do those to a server that let several time out.
// - A server gets a few requests at a time; the others wait here and cost no time of their limits (RequestQueue).
// - An HTTP proxy gets the user name and the password only after it asked for them, and is asked first for an address
//   that does not exist, so that no site sees a log-in and a wrong one is tried once. What is asked for meanwhile
//   waits.
// - A SOCKS5 proxy is given it first without a request (SocksLoginCheck); what is asked for meanwhile waits.
// - After a proxy refused a log-in, requests fail with that error and are not sent, until the proxy changes: somebody
//   who tries over and over gets the account locked. Managers that share a ProxyLogin try it once for all of them.
// - A site that speaks of a log-in at the proxy is not believed: an HTTP proxy is asked first for that address.
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

    // A request attribute (QUrl): the address that led to this one, by redirects or links. When the server of this one
    // asks for a pause, that one's server is left alone as well.
    static constexpr auto ChainStartAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 2);

    explicit AccessManager(QObject *parent = nullptr, RestingHosts::Clock clock = &std::chrono::steady_clock::now);

    // For the requests that are made from now on.
    void setLimits(const RequestLimits &limits);

    // Before anything is sent. Whoever shares one is to be given the same proxy.
    void shareLogin(const std::shared_ptr<ProxyLogin> &login);

    // Sets the proxy for what is sent from now on. With another one, or another log-in, it is forgotten that a log-in
    // was refused, and the pauses that were asked for too.
    void useProxy(const QNetworkProxy &proxy);
    // A log-in that was refused may be tried again.
    void forgetLogin() { m_login->forget(); }

    // Every server may be asked again.
    void forgetPauses();

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request, QIODevice *outgoingData) override;

private:
    struct Hindrance
    {
        QNetworkReply::NetworkError error;
        QString text; // for users
    };
    // A request that is to be sent once the log-in is checked.
    struct Held
    {
        QPointer<LimitedReply> reply;
        QPointer<QIODevice> data;
        bool uploads;
        bool isAnswered; // by somebody who asks for a log-in at the proxy: it fails, whoever that was
    };

    // An error reply when this request must not even wait, else null.
    QNetworkReply *refusal(Operation operation, const QNetworkRequest &request);
    // Why nothing may be sent to this address now, if so.
    [[nodiscard]] std::optional<Hindrance> hindrance(const QUrl &url) const;
    void enqueue(LimitedReply *reply, QIODevice *outgoingData);
    // Sends what the reply stands for, or ends it. Null when there was nothing to send.
    QNetworkReply *send(LimitedReply *reply, QIODevice *outgoingData);
    void noteWish(const QNetworkReply &reply);
    void noteSilence(const QNetworkReply &reply);
    QNetworkReply *sendNow(LimitedReply *reply, QIODevice *outgoingData);
    // After an answer that asks for the log-in, the reply is taken back and waits to be sent again.
    void repeatWithLogin(const QNetworkReply &source, const QNetworkProxy &proxy, LimitedReply *reply,
                         QIODevice *outgoingData);
    // Keeps what is to be sent until the log-in is checked, and sees to that.
    void hold(LimitedReply *reply, QIODevice *outgoingData);
    void checkLogin(bool withLogin);
    void loginChecked(LimitedReply *check, bool withLogin);
    void checkSocksLogin();
    // Keeps a reply that asks for a log-in until it is clear whether the proxy does.
    void doubt(LimitedReply *reply, bool withLogin);
    // Sends what was held, or lets it fail as the check did.
    void release(QNetworkReply::NetworkError error);
    // Looks at an answer that came through `proxy`; the reply that stands before it fails when the proxy did.
    void noteProxy(const QNetworkReply &source, const QNetworkProxy &proxy, LimitedReply *reply, bool withLogin);

    RequestLimits m_limits;
    RestingHosts m_restingHosts;
    RequestQueue m_queue;
    std::shared_ptr<ProxyLogin> m_login;
    QVector<Held> m_held;
};
