// SPDX-License-Identifier: MIT
#pragma once

#include <QSslConfiguration>
#include <QTcpServer>

// Speaks TLS on 127.0.0.1 before a server that does not, under the name "localhost". Its certificate is made anew each
// time, and trusted by this process as long as the front lives, or not at all.
class TlsFront : public QTcpServer
{
public:
    enum Trust { Trusted, Unknown };

    // Before the server on this port of 127.0.0.1. Ends the test when it cannot be made.
    explicit TlsFront(quint16 plainPort, Trust trust = Trusted);
    ~TlsFront() override;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    const quint16 m_plainPort;
    QSslConfiguration m_identity;
    const QSslConfiguration m_usual = QSslConfiguration::defaultConfiguration();
};
