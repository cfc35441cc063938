// SPDX-License-Identifier: MIT
#pragma once

#include "support/LoopbackMessages.h"

#include <QHash>
#include <QObject>
#include <QTcpServer>
#include <QUrl>
#include <QVector>

#include <functional>

// A small HTTP/1.1 server on 127.0.0.1 and a port of the system's choice, in the event loop of the test that owns it.
// Paths are answered from routes; any other path gets 404. Connections are kept alive. It never asserts: a test looks
// at requests() and the counters.
//
//     LoopbackServer site;
//     site.route("/song", LoopbackResponse::page("<div>la</div>"));
//     site.route("/search.php", [](const LoopbackRequest &r) { return LoopbackResponse::redirect(301, "/song"); });
//     get(site.url("/search.php?q=la"));
class LoopbackServer : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<LoopbackResponse(const LoopbackRequest &)>;

    // Listens at once; ends the test when that does not work.
    explicit LoopbackServer(QObject *parent = nullptr);
    ~LoopbackServer() override;

    // "http://127.0.0.1:<port>", without a trailing slash. Stays the same after stop().
    [[nodiscard]] QString base() const { return m_base; }
    // base() followed by an encoded path (and query).
    [[nodiscard]] QUrl url(const QByteArray &target) const { return QUrl::fromEncoded(m_base.toLatin1() + target); }

    // `path` is the decoded path without a query. A later route replaces an earlier one.
    void route(const QString &path, const LoopbackResponse &response);
    void route(const QString &path, const Handler &handler) { m_routes.insert(path, handler); }
    // Answers every path that has no route of its own.
    void routeOthers(const Handler &handler) { m_others = handler; }

    // All requests so far, in the order in which they came; those that hang are among them.
    [[nodiscard]] const QVector<LoopbackRequest> &requests() const { return m_requests; }
    [[nodiscard]] int requestCount(const QString &path) const;
    void forgetRequests() { m_requests.clear(); }

    [[nodiscard]] int openConnections() const { return m_openConnections; }
    // The highest number of connections that were open at once.
    [[nodiscard]] int mostConnections() const { return m_mostConnections; }

    // Closes the port and every connection: later requests are refused.
    void stop();

signals:
    // After the request was recorded, before it is answered.
    void requestReceived(const QString &path);

private:
    // Records the request and finds its answer.
    LoopbackResponse answer(const LoopbackRequest &request);
    void acceptConnections();

    QTcpServer m_server;
    QString m_base;
    QHash<QString, Handler> m_routes;
    Handler m_others;
    QVector<LoopbackRequest> m_requests;
    int m_openConnections = 0;
    int m_mostConnections = 0;
};
