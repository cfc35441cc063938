// SPDX-License-Identifier: MIT
#include "support/LoopbackServer.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace {

QByteArray headerIn(const LoopbackHeaders &headers, const QByteArray &name)
{
    const auto found = std::find_if(headers.begin(), headers.end(), [&name](const auto &header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? QByteArray() : found->second;
}

// Cuts a whole request off what was received; false when there is none yet.
bool takeRequest(QByteArray &received, LoopbackRequest &request)
{
    const int headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QList<QByteArray> lines = received.left(headEnd).split('\n');
    for (int i = 1; i < lines.size(); ++i) {
        const int colon = lines.at(i).indexOf(':');
        request.headers.append({lines.at(i).left(colon), lines.at(i).mid(colon + 1).trimmed()});
    }
    const int bodyStart = headEnd + 4;
    const int bodyBytes = request.header("Content-Length").toInt();
    if (received.size() < bodyStart + bodyBytes)
        return false;
    const QList<QByteArray> words = lines.first().split(' ');
    request.method = words.value(0);
    request.target = words.value(1);
    const QUrl url = QUrl::fromEncoded(request.target);
    request.path = url.path(QUrl::FullyDecoded);
    request.query = QUrlQuery(url);
    request.body = received.mid(bodyStart, bodyBytes);
    received.remove(0, bodyStart + bodyBytes);
    return true;
}

// Reads a request, writes its answer, then reads the next. Goes with its socket.
class Connection : public QObject
{
public:
    Connection(QTcpSocket *socket, const LoopbackServer::Handler &answer)
        : QObject(socket)
        , m_socket(socket)
        , m_answer(answer)
    {
        connect(socket, &QTcpSocket::readyRead, this, &Connection::receive);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        receive();
    }

private:
    void receive()
    {
        m_received += m_socket->readAll();
        LoopbackRequest request;
        if (m_answering || !takeRequest(m_received, request))
            return;
        m_answering = true;
        m_response = m_answer(request);
        m_headOnly = request.method == "HEAD";
        if (m_response.hang)
            return;
        QTimer::singleShot(m_response.delay, this, [this] {
            sendHead();
            sendBody();
        });
    }

    void sendHead()
    {
        QByteArray head = "HTTP/1.1 " + QByteArray::number(m_response.status) + " Loopback\r\n";
        for (const auto &[name, value] : qAsConst(m_response.headers))
            head += name + ": " + value + "\r\n";
        const auto has = [this](const char *name) {
            return !headerIn(m_response.headers, name).isNull();
        };
        if (m_response.untilClose)
            head += "Connection: close\r\n";
        else if (!has("Content-Length") && !has("Transfer-Encoding"))
            head += "Content-Length: " + QByteArray::number(m_response.body.size()) + "\r\n";
        m_socket->write(head + "\r\n");
    }

    void sendBody()
    {
        const bool isCut = m_response.cutAfter >= 0 && !m_headOnly;
        QByteArray body = m_headOnly ? QByteArray() : m_response.body;
        if (isCut)
            body.truncate(static_cast<int>(m_response.cutAfter));
        if (m_response.dripInterval.count() > 0 && !body.isEmpty()) {
            drip(body, 0);
            return;
        }
        m_socket->write(body);
        endResponse(isCut);
    }

    void drip(const QByteArray &body, int sent)
    {
        QTimer::singleShot(m_response.dripInterval, this, [this, body, sent] {
            m_socket->write(body.constData() + sent, 1);
            m_socket->flush();
            if (sent + 1 < body.size())
                drip(body, sent + 1);
            else
                endResponse(m_response.cutAfter >= 0);
        });
    }

    void endResponse(bool isCut)
    {
        if (m_response.untilClose || isCut) {
            m_socket->disconnectFromHost();
            return;
        }
        m_answering = false;
        QMetaObject::invokeMethod(this, &Connection::receive, Qt::QueuedConnection);
    }

    QTcpSocket *m_socket;
    LoopbackServer::Handler m_answer;
    QByteArray m_received;
    LoopbackResponse m_response;
    bool m_answering = false;
    bool m_headOnly = false;
};

} // namespace

QByteArray LoopbackRequest::header(const QByteArray &name) const
{
    return headerIn(headers, name);
}

LoopbackResponse LoopbackResponse::page(const QByteArray &body)
{
    LoopbackResponse response;
    response.body = body;
    return response.with("Content-Type", "text/html; charset=utf-8");
}

LoopbackResponse LoopbackResponse::error(int status)
{
    LoopbackResponse response = page("<html><body>error " + QByteArray::number(status) + "</body></html>");
    response.status = status;
    return response;
}

LoopbackResponse LoopbackResponse::redirect(int status, const QByteArray &location)
{
    LoopbackResponse response;
    response.status = status;
    return response.with("Location", location);
}

LoopbackResponse LoopbackResponse::hanging()
{
    LoopbackResponse response;
    response.hang = true;
    return response;
}

LoopbackResponse LoopbackResponse::with(const QByteArray &header, const QByteArray &value) const
{
    LoopbackResponse response = *this;
    response.headers.append({header, value});
    return response;
}

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

void LoopbackServer::route(const QString &path, const LoopbackResponse &response)
{
    route(path, [response](const LoopbackRequest &) { return response; });
}

int LoopbackServer::requestCount(const QString &path) const
{
    return static_cast<int>(std::count_if(m_requests.cbegin(), m_requests.cend(),
                                          [&path](const LoopbackRequest &request) { return request.path == path; }));
}

void LoopbackServer::stop()
{
    m_server.close();
    const auto sockets = findChildren<QTcpSocket *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTcpSocket *socket : sockets) {
        socket->disconnect();
        delete socket;
    }
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
        socket->setParent(this);
        const auto *connection = new Connection(socket, [this](const LoopbackRequest &r) { return answer(r); });
        connect(connection, &QObject::destroyed, this, [this] { --m_openConnections; });
    }
}
