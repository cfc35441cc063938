// SPDX-License-Identifier: MIT
#include "support/ProxyServer.h"

#include "support/Forwarding.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QTcpSocket>
#include <QThread>

namespace {

constexpr int startSeconds = 10;

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

ProxyServer::ProxyServer(QNetworkProxy::ProxyType type, const QString &user, const QString &password)
    : m_type(type)
    , m_innerPort(freePort())
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    const QString port = QString::number(m_innerPort);
    if (type == QNetworkProxy::Socks5Proxy) {
        QStringList arguments{QStringLiteral("-i"), QStringLiteral("127.0.0.1"), QStringLiteral("-p"), port};
        if (!user.isEmpty())
            arguments += {QStringLiteral("-u"), user, QStringLiteral("-P"), password};
        m_process.start(QStringLiteral("microsocks"), arguments);
    } else {
        QFile file(m_folder.filePath(QStringLiteral("tinyproxy.conf")));
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.write("Listen 127.0.0.1\nLogLevel Connect\nMaxClients 50\nPort " + port.toLatin1() + '\n');
        if (!user.isEmpty())
            file.write("BasicAuth " + user.toUtf8() + ' ' + password.toUtf8() + '\n');
        file.close();
        m_process.start(QStringLiteral("tinyproxy"), {QStringLiteral("-d"), QStringLiteral("-c"), file.fileName()});
    }
    QObject::connect(&m_relay, &QTcpServer::newConnection, &m_relay, [this] { takeConnection(); });
    m_relay.listen(QHostAddress::LocalHost);
}

ProxyServer::~ProxyServer()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool ProxyServer::isReady()
{
    const QDeadlineTimer deadline(std::chrono::seconds{startSeconds});
    while (m_process.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        QTcpSocket probe;
        probe.setProxy(QNetworkProxy::NoProxy);
        probe.connectToHost(QHostAddress::LocalHost, m_innerPort);
        if (probe.waitForConnected(500))
            return true;
        QThread::msleep(20);
    }
    return false;
}

void ProxyServer::takeConnection()
{
    while (QTcpSocket *client = m_relay.nextPendingConnection()) {
        m_received.append(std::make_shared<QByteArray>());
        forwardBoth(client, m_innerPort, m_received.last());
    }
}

QList<QByteArray> ProxyServer::received() const
{
    QList<QByteArray> all;
    for (const auto &data : m_received)
        all.append(*data);
    return all;
}

int ProxyServer::logins(const QByteArray &user, const QByteArray &password) const
{
    const auto counted = [](const QByteArray &text) {
        return char(text.size()) + text;
    };
    // RFC 1929 for SOCKS5, RFC 7617 for HTTP.
    const QByteArray offer = m_type == QNetworkProxy::Socks5Proxy ? '\x01' + counted(user) + counted(password)
                                                                  : "Basic " + (user + ':' + password).toBase64();
    return received().join().count(offer);
}

QByteArray ProxyServer::log()
{
    m_process.waitForReadyRead(0);
    m_log += m_process.readAll();
    return m_log;
}
