// SPDX-License-Identifier: MIT
#include "support/LoopbackConnection.h"

#include "support/LoopbackServer.h"

#include <QUrl>

namespace {

bool hasHeader(const LoopbackResponse &response, const char *name)
{
    for (const auto &header : response.headers) {
        if (header.first.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

void parseRequestLine(const QByteArray &line, LoopbackRequest *request)
{
    const QList<QByteArray> words = line.split(' ');
    request->method = words.value(0);
    request->target = words.value(1);
    const QUrl url = QUrl::fromEncoded(request->target);
    request->path = url.path(QUrl::FullyDecoded);
    request->query = QUrlQuery(url);
}

void parseHeaders(const QList<QByteArray> &lines, LoopbackRequest *request)
{
    for (int i = 1; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        const int colon = line.indexOf(':');
        if (colon > 0)
            request->headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
    }
}

} // namespace

LoopbackConnection::LoopbackConnection(QTcpSocket *socket, LoopbackServer *server)
    : QObject(server)
    , m_server(server)
    , m_socket(socket)
{
    socket->setParent(this);
    connect(socket, &QTcpSocket::readyRead, this, &LoopbackConnection::receive);
    connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    receive();
}

LoopbackConnection::~LoopbackConnection()
{
    m_socket->disconnect(this);
}

void LoopbackConnection::receive()
{
    m_received += m_socket->readAll();
    LoopbackRequest request;
    if (m_answering || !takeRequest(&request))
        return;
    m_answering = true;
    respond(request);
}

bool LoopbackConnection::takeRequest(LoopbackRequest *request)
{
    const int headEnd = m_received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QList<QByteArray> lines = m_received.left(headEnd).split('\n');
    parseRequestLine(lines.first(), request);
    parseHeaders(lines, request);
    const int bodyStart = headEnd + 4;
    const int bodyBytes = request->header("Content-Length").toInt();
    if (m_received.size() < bodyStart + bodyBytes)
        return false;
    request->body = m_received.mid(bodyStart, bodyBytes);
    m_received.remove(0, bodyStart + bodyBytes);
    return true;
}

void LoopbackConnection::respond(const LoopbackRequest &request)
{
    m_response = m_server->answer(request);
    m_headOnly = request.method == "HEAD";
    m_sentBytes = 0;
    if (m_response.hang)
        return;
    m_timer.disconnect(this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        sendHead();
        sendBody();
    });
    m_timer.start(m_response.delay);
}

void LoopbackConnection::sendHead()
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(m_response.status) + " Loopback\r\n";
    for (const auto &[name, value] : qAsConst(m_response.headers))
        head += name + ": " + value + "\r\n";
    if (m_response.untilClose)
        head += "Connection: close\r\n";
    else if (!hasHeader(m_response, "Content-Length") && !hasHeader(m_response, "Transfer-Encoding"))
        head += "Content-Length: " + QByteArray::number(m_response.body.size()) + "\r\n";
    m_socket->write(head + "\r\n");
}

void LoopbackConnection::sendBody()
{
    if (m_headOnly) {
        endResponse();
    } else if (m_response.dripInterval.count() > 0) {
        m_timer.disconnect(this);
        m_timer.setSingleShot(false);
        connect(&m_timer, &QTimer::timeout, this, &LoopbackConnection::drip);
        m_timer.start(m_response.dripInterval);
    } else {
        m_socket->write(m_response.cutAfter < 0 ? m_response.body
                                                : m_response.body.left(static_cast<int>(m_response.cutAfter)));
        endResponse();
    }
}

void LoopbackConnection::drip()
{
    if (m_sentBytes == m_response.body.size() || m_sentBytes == m_response.cutAfter) {
        m_timer.stop();
        endResponse();
        return;
    }
    m_socket->write(m_response.body.constData() + m_sentBytes, 1);
    m_socket->flush();
    ++m_sentBytes;
}

void LoopbackConnection::endResponse()
{
    if (m_response.untilClose || (m_response.cutAfter >= 0 && !m_headOnly)) {
        m_socket->disconnectFromHost();
        return;
    }
    m_answering = false;
    QMetaObject::invokeMethod(this, &LoopbackConnection::receive, Qt::QueuedConnection);
}
