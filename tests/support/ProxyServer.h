// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QNetworkProxy>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

// A real proxy on 127.0.0.1: microsocks for SOCKS5, tinyproxy for HTTP. In front of it stands a relay in the test's
// event loop, which keeps what clients send.
class ProxyServer
{
public:
    // With a user name, the proxy wants a log-in.
    explicit ProxyServer(QNetworkProxy::ProxyType type, const QString &user = {}, const QString &password = {});
    ~ProxyServer();

    // Waits until the proxy takes connections; false when it does not.
    [[nodiscard]] bool isReady();
    // The port for clients.
    [[nodiscard]] quint16 port() const { return m_relay.serverPort(); }
    // Everything that clients have sent, connection by connection.
    [[nodiscard]] QList<QByteArray> received() const;
    // How often these credentials were offered.
    [[nodiscard]] int logins(const QByteArray &user, const QByteArray &password) const;
    // What the proxy tells about its connections.
    [[nodiscard]] QByteArray log();

private:
    void takeConnection();

    const QNetworkProxy::ProxyType m_type;
    QTemporaryDir m_folder;
    QProcess m_process;
    QByteArray m_log;
    quint16 m_innerPort;
    QTcpServer m_relay;
    QList<std::shared_ptr<QByteArray>> m_received;
};
