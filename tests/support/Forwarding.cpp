// SPDX-License-Identifier: MIT
#include "support/Forwarding.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>

static void forward(QTcpSocket *from, QTcpSocket *to, const std::shared_ptr<QByteArray> &kept)
{
    QObject::connect(from, &QTcpSocket::readyRead, to, [from, to, kept] {
        const QByteArray data = from->readAll();
        if (kept)
            kept->append(data);
        to->write(data);
    });
    QObject::connect(from, &QTcpSocket::disconnected, to, &QTcpSocket::disconnectFromHost);
}

void forwardBoth(QTcpSocket *client, quint16 port, const std::shared_ptr<QByteArray> &kept)
{
    auto *inner = new QTcpSocket(client);
    inner->setProxy(QNetworkProxy::NoProxy);
    forward(client, inner, kept);
    forward(inner, client, nullptr);
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    inner->connectToHost(QHostAddress::LocalHost, port);
}
