// SPDX-License-Identifier: MIT
#pragma once

#include "support/LoopbackMessages.h"

#include <QObject>
#include <QTcpSocket>
#include <QTimer>

class LoopbackServer;

// One connection of a LoopbackServer: reads a request, writes its answer, then reads the next. Deletes itself when the
// client goes away. Part of the server, not for tests.
class LoopbackConnection : public QObject
{
    Q_OBJECT

public:
    // Takes the socket. The server is the parent and outlives the connection.
    LoopbackConnection(QTcpSocket *socket, LoopbackServer *server);
    ~LoopbackConnection() override;

private:
    void receive();
    // True when m_received held a whole request, which is then cut off it.
    bool takeRequest(LoopbackRequest *request);
    void respond(const LoopbackRequest &request);
    void sendHead();
    void sendBody();
    void drip();
    void endResponse();

    LoopbackServer *m_server;
    QTcpSocket *m_socket;
    QByteArray m_received;
    LoopbackResponse m_response;
    QTimer m_timer; // the delay before an answer, then the drip
    qint64 m_sentBytes = 0;
    bool m_answering = false;
    bool m_headOnly = false;
};
