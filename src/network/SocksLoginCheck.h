// SPDX-License-Identifier: MIT
#pragma once

#include "network/ProxyLogin.h"

#include <QByteArray>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>

// Gives a SOCKS5 proxy its user name and password, once, and asks it for nothing (RFC 1928, section 3; RFC 1929). Qt
// would try a log-in six times where the proxy hangs up on it, and not tell.
class SocksLoginCheck final : public QObject
{
    Q_OBJECT

public:
    // Begins at once. The user name and the password are bytes in Latin-1.
    SocksLoginCheck(const QNetworkProxy &proxy, std::chrono::milliseconds patience, QObject *parent);

signals:
    // Once, from the event loop. A proxy that ends the connection after the log-in, or that no log-in fits into,
    // refuses it. `error` tells why nothing is known: NoError in any other case.
    void finished(ProxyLogin::State state, QNetworkReply::NetworkError error);

private:
    void readAnswer();
    void noteError(QAbstractSocket::SocketError error);
    void conclude(ProxyLogin::State state, QNetworkReply::NetworkError error = QNetworkReply::NoError);

    const QNetworkProxy m_proxy;
    QTcpSocket m_socket;
    QTimer m_patience;
    bool m_isGiven = false;
    bool m_isConcluded = false;
};
