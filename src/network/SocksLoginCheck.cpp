// SPDX-License-Identifier: MIT
#include "network/SocksLoginCheck.h"

#include <utility>

namespace {

constexpr int mostBytes = 255; // of a user name or a password
constexpr int answerBytes = 2;
constexpr char loginMethod = 2;
const QByteArray greeting("\5\1\2", 3); // one method is offered: a user name and a password

QByteArray withLength(const QByteArray &text)
{
    return static_cast<char>(text.size()) + text;
}

QByteArray login(const QNetworkProxy &proxy)
{
    return '\1' + withLength(proxy.user().toLatin1()) + withLength(proxy.password().toLatin1());
}

QNetworkReply::NetworkError asProxyError(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return QNetworkReply::ProxyConnectionRefusedError;
    case QAbstractSocket::RemoteHostClosedError:
        return QNetworkReply::ProxyConnectionClosedError;
    case QAbstractSocket::HostNotFoundError:
        return QNetworkReply::ProxyNotFoundError;
    case QAbstractSocket::SocketTimeoutError:
        return QNetworkReply::ProxyTimeoutError;
    default:
        return QNetworkReply::UnknownProxyError;
    }
}

} // namespace

SocksLoginCheck::SocksLoginCheck(const QNetworkProxy &proxy, std::chrono::milliseconds patience, QObject *parent)
    : QObject(parent)
    , m_proxy(proxy)
{
    connect(&m_socket, &QTcpSocket::connected, this, [this] { m_socket.write(greeting); });
    connect(&m_socket, &QTcpSocket::readyRead, this, &SocksLoginCheck::readAnswer);
    // Later, as a host that is an address may fail at once.
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &SocksLoginCheck::noteError, Qt::QueuedConnection);
    connect(&m_patience, &QTimer::timeout, this, [this] { noteError(QAbstractSocket::SocketTimeoutError); });
    m_patience.start(patience);
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.connectToHost(proxy.hostName(), proxy.port());
}

void SocksLoginCheck::readAnswer()
{
    if (m_isConcluded || m_socket.bytesAvailable() < answerBytes)
        return;
    const char said = m_socket.read(answerBytes).at(1);
    const bool fits = m_proxy.user().size() <= mostBytes && m_proxy.password().size() <= mostBytes;
    if (m_isGiven) {
        conclude(said == 0 ? ProxyLogin::State::Works : ProxyLogin::State::Refused);
    } else if (said != loginMethod) {
        conclude(ProxyLogin::State::NotWanted);
    } else if (!fits) {
        conclude(ProxyLogin::State::Refused);
    } else {
        m_isGiven = true;
        m_socket.write(login(m_proxy));
    }
}

void SocksLoginCheck::noteError(QAbstractSocket::SocketError error)
{
    if (m_isGiven && error == QAbstractSocket::RemoteHostClosedError)
        conclude(ProxyLogin::State::Refused);
    else
        conclude(ProxyLogin::State::Unknown, asProxyError(error));
}

void SocksLoginCheck::conclude(ProxyLogin::State state, QNetworkReply::NetworkError error)
{
    if (std::exchange(m_isConcluded, true))
        return;
    m_patience.stop();
    m_socket.abort();
    emit finished(state, error);
}
