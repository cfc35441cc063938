// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>

class QTcpSocket;

// Hands on what a client of a test's server sends to the server on this port of 127.0.0.1, and what comes back, until
// one of them ends; the client's socket then deletes itself. What the client sends is kept as well, where that is
// wanted.
void forwardBoth(QTcpSocket *client, quint16 port, const std::shared_ptr<QByteArray> &kept = {});
