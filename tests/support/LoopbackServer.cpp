// SPDX-License-Identifier: MIT
#include "support/LoopbackServer.h"

#include "support/LoopbackConnection.h"

#include <QHostAddress>
#include <QTcpSocket>

#include <algorithm>
#include <utility>

LoopbackServer::LoopbackServer(QObject *parent)
    : QObject(parent)
    , m_others([](const LoopbackRequest &) { return LoopbackResponse::error(404); })
{
    connect(&m_server, &QTcpServer::newConnection, this, &LoopbackServer::acceptConnections);
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("cannot listen: %s", qPrintable(m_server.errorString()));
    m_base = QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
}

LoopbackServer::~LoopbackServer()
{
    stop();
}

QString LoopbackServer::base() const
{
    return m_base;
}

QUrl LoopbackServer::url(const QByteArray &target) const
{
    return QUrl::fromEncoded(m_base.toLatin1() + target);
}

void LoopbackServer::route(const QString &path, const LoopbackResponse &response)
{
    m_routes.insert(path, [response](const LoopbackRequest &) { return response; });
}

void LoopbackServer::route(const QString &path, const Handler &handler)
{
    m_routes.insert(path, handler);
}

void LoopbackServer::routeOthers(Handler handler)
{
    m_others = std::move(handler);
}

int LoopbackServer::requestCount(const QString &path) const
{
    return static_cast<int>(std::count_if(m_requests.cbegin(), m_requests.cend(),
                                          [&path](const LoopbackRequest &request) { return request.path == path; }));
}

void LoopbackServer::forgetRequests()
{
    m_requests.clear();
}

void LoopbackServer::stop()
{
    m_server.close();
    const auto connections = findChildren<LoopbackConnection *>(QString(), Qt::FindDirectChildrenOnly);
    qDeleteAll(connections);
}

LoopbackResponse LoopbackServer::answer(const LoopbackRequest &request)
{
    m_requests.append(request);
    emit requestReceived(request.path);
    return m_routes.value(request.path, m_others)(request);
}

void LoopbackServer::acceptConnections()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        m_mostConnections = std::max(m_mostConnections, ++m_openConnections);
        auto *connection = new LoopbackConnection(socket, this);
        connect(connection, &QObject::destroyed, this, [this] { --m_openConnections; });
    }
}
