// SPDX-License-Identifier: MIT
#include "network/AccessManager.h"
#include "support/LoopbackServer.h"

#include <QBuffer>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <sys/resource.h>
#include <vector>
#include <zlib.h>

using namespace std::chrono_literals;

namespace {

constexpr int limitBytes = 1024 * 1024;
constexpr int gzipWindow = 15 + 16;
constexpr int zlibWindow = 15;
constexpr int bareWindow = -15;

QByteArray deflated(const QByteArray &plain, int window, int flush = Z_FINISH)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, window, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(static_cast<int>(deflateBound(&stream, static_cast<uLong>(plain.size()))) + 64, '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(plain.constData()));
    stream.avail_in = static_cast<uInt>(plain.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, flush);
    packed.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

// A gzip body that would become a gigabyte: after a full flush, one piece can follow itself as often as one likes.
QByteArray gigabyteBomb()
{
    const QByteArray piece = deflated(QByteArray(limitBytes, '\0'), bareWindow, Z_FULL_FLUSH);
    return QByteArray::fromHex("1f8b0800000000000003") + piece.repeated(1024);
}

LoopbackResponse coded(const QByteArray &coding, const QByteArray &body)
{
    return LoopbackResponse::page(body).with("Content-Encoding", coding);
}

LoopbackResponse damaged(LoopbackResponse response, int byte)
{
    response.body[byte] = static_cast<char>(~response.body.at(byte));
    return response;
}

LoopbackResponse cut(LoopbackResponse response, qint64 bytes)
{
    response.cutAfter = bytes;
    return response;
}

LoopbackResponse untilClose(LoopbackResponse response)
{
    response.untilClose = true;
    return response;
}

LoopbackResponse dripped(LoopbackResponse response, std::chrono::milliseconds interval)
{
    response.dripInterval = interval;
    return response;
}

LoopbackResponse hanging()
{
    LoopbackResponse response;
    response.hang = true;
    return response;
}

LoopbackResponse chunked(const QByteArray &chunks)
{
    return untilClose(LoopbackResponse::page(chunks).with("Transfer-Encoding", "chunked"));
}

LoopbackResponse withRetryAfter(int status, const QByteArray &value)
{
    return LoopbackResponse::error(status).with("Retry-After", value);
}

long peakMemoryKiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

Q_DECLARE_METATYPE(RequestLimits)

class tst_AccessManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<QNetworkReply *>(); }

    void init()
    {
        m_server = std::make_unique<LoopbackServer>();
        m_now = std::chrono::steady_clock::time_point(1h);
        m_manager = std::make_unique<AccessManager>(nullptr, [this] { return m_now; });
        m_manager->setProxy(QNetworkProxy::NoProxy);
    }

    void cleanup()
    {
        m_manager.reset();
        m_server.reset();
    }

    void answers_data()
    {
        QTest::addColumn<LoopbackResponse>("response");
        QTest::addColumn<QNetworkReply::NetworkError>("error");
        QTest::addColumn<QByteArray>("body");

        using Reply = QNetworkReply;
        const QByteArray song = QByteArrayLiteral("<div>la\xc3\xa9\0la</div>");
        const QByteArray full(limitBytes, 'x');
        const LoopbackResponse gzip = coded("gzip", deflated(song, gzipWindow));

        QTest::newRow("page") << LoopbackResponse::page(song) << Reply::NoError << song;
        QTest::newRow("empty page") << LoopbackResponse::page({}) << Reply::NoError << QByteArray();
        QTest::newRow("page without a length") << untilClose(LoopbackResponse::page(song)) << Reply::NoError << song;
        QTest::newRow("gzip") << gzip << Reply::NoError << song;
        QTest::newRow("gzip, upper case") << coded("GZIP", gzip.body) << Reply::NoError << song;
        QTest::newRow("gzip, byte by byte") << dripped(gzip, 1ms) << Reply::NoError << song;
        QTest::newRow("gzip in two members") << coded("gzip", gzip.body + gzip.body) << Reply::NoError << song + song;
        QTest::newRow("gzip with junk behind") << coded("gzip", gzip.body + "junk") << Reply::NoError << song;
        QTest::newRow("gzip of nothing") << coded("gzip", deflated({}, gzipWindow)) << Reply::NoError << QByteArray();
        QTest::newRow("gzip said, nothing sent") << coded("gzip", {}) << Reply::NoError << QByteArray();
        QTest::newRow("deflate") << coded("deflate", deflated(song, zlibWindow)) << Reply::NoError << song;
        QTest::newRow("bare deflate") << coded("deflate", deflated(song, bareWindow)) << Reply::NoError << song;
        QTest::newRow("bare deflate, byte by byte")
            << dripped(coded("deflate", deflated(song, bareWindow)), 1ms) << Reply::NoError << song;

        QTest::newRow("as large as allowed") << LoopbackResponse::page(full) << Reply::NoError << full;
        QTest::newRow("gzip as large as allowed")
            << coded("gzip", deflated(full, gzipWindow)) << Reply::NoError << full;
        QTest::newRow("a byte too large")
            << LoopbackResponse::page(full + 'x') << Reply::UnknownContentError << QByteArray();
        QTest::newRow("far too large, without a length")
            << untilClose(LoopbackResponse::page(full.repeated(8))) << Reply::UnknownContentError << QByteArray();
        QTest::newRow("gzip a byte too large")
            << coded("gzip", deflated(full + 'x', gzipWindow)) << Reply::UnknownContentError << QByteArray();
        QTest::newRow("deflate a byte too large")
            << coded("deflate", deflated(full + 'x', zlibWindow)) << Reply::UnknownContentError << QByteArray();
        QTest::newRow("endless members of nothing")
            << untilClose(coded("gzip", deflated({}, gzipWindow).repeated(100000))) << Reply::UnknownContentError
            << QByteArray();

        QTest::newRow("gzip with a wrong checksum")
            << damaged(gzip, gzip.body.size() - 6) << Reply::UnknownContentError << QByteArray();
        QTest::newRow("gzip that is none")
            << coded("gzip", "<html>no</html>") << Reply::UnknownContentError << QByteArray();
        QTest::newRow("unknown coding") << coded("br", "x") << Reply::UnknownContentError << QByteArray();
        QTest::newRow("coded twice") << coded("gzip, gzip", gzip.body) << Reply::UnknownContentError << QByteArray();
        QTest::newRow("gzip without its end") << untilClose(coded("gzip", gzip.body.left(gzip.body.size() - 9)))
                                              << Reply::RemoteHostClosedError << QByteArray();
        QTest::newRow("one byte of gzip") << coded("gzip", "\x1f") << Reply::RemoteHostClosedError << QByteArray();
        QTest::newRow("cut body") << cut(LoopbackResponse::page(song), 5) << Reply::RemoteHostClosedError
                                  << QByteArray();
        QTest::newRow("cut before the body")
            << cut(LoopbackResponse::page(song), 0) << Reply::RemoteHostClosedError << QByteArray();
        QTest::newRow("chunks") << chunked("2\r\nla\r\n2\r\nlu\r\n0\r\n\r\n") << Reply::NoError << QByteArray("lalu");
        QTest::newRow("chunks of gzip without an end")
            << chunked("9\r\n" + gzip.body.left(9) + "\r\n").with("Content-Encoding", "gzip")
            << Reply::RemoteHostClosedError << QByteArray();

        QTest::newRow("redirect by 302") << LoopbackResponse::redirect(302, "/elsewhere") << Reply::NoError
                                         << QByteArray();
        QTest::newRow("redirect to itself by 307")
            << LoopbackResponse::redirect(307, "/page") << Reply::NoError << QByteArray();
        QTest::newRow("redirect to a file")
            << LoopbackResponse::redirect(301, "file:///etc/passwd") << Reply::NoError << QByteArray();
        QTest::newRow("404") << LoopbackResponse::error(404) << Reply::ContentNotFoundError << QByteArray();
        QTest::newRow("403") << LoopbackResponse::error(403) << Reply::ContentAccessDenied << QByteArray();
        QTest::newRow("500") << LoopbackResponse::error(500) << Reply::InternalServerError << QByteArray();
    }

    void answers()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(QNetworkReply::NetworkError, error);
        QFETCH(QByteArray, body);
        m_server->route(QStringLiteral("/page"), response);

        const auto reply = get("/page");
        QVERIFY2(reply->error() == error,
                 qPrintable(QStringLiteral("%1 %2").arg(reply->error()).arg(reply->errorString())));
        QCOMPARE(reply->bytesAvailable(), qint64(body.size()));
        QCOMPARE(reply->readAll(), body);
        QCOMPARE(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), response.status);
        if (response.status / 100 == 3)
            QCOMPARE(m_server->requests().size(), 1); // not followed
        if (response.status >= 400)
            QVERIFY2(reply->errorString().contains(QString::number(response.status)), qPrintable(reply->errorString()));
    }

    void refusedConnection()
    {
        m_server->stop();
        QCOMPARE(get("/page")->error(), QNetworkReply::ConnectionRefusedError);
    }

    void bombCostsNoMoreThanTheLimit()
    {
        m_server->route(QStringLiteral("/page"), coded("gzip", gigabyteBomb()));
        get("/other");
        const long before = peakMemoryKiB();
        const auto reply = get("/page");
        QCOMPARE(reply->error(), QNetworkReply::UnknownContentError);
        QVERIFY2(peakMemoryKiB() - before < 32L * 1024, "inflating cost more than 32 MiB");
    }

    void describesThePageThatIsRead()
    {
        m_server->route(QStringLiteral("/page"), coded("gzip", deflated("song", gzipWindow)).with("Set-Cookie", "a=b"));

        const auto reply = get("/page?q=1");
        QCOMPARE(reply->url(), m_server->url("/page?q=1"));
        QCOMPARE(reply->header(QNetworkRequest::ContentTypeHeader).toString(),
                 QStringLiteral("text/html; charset=utf-8"));
        QVERIFY(!reply->hasRawHeader("Content-Encoding"));
        QVERIFY(!reply->hasRawHeader("Content-Length"));
        QCOMPARE(reply->read(2) + reply->readAll(), QByteArray("song"));
        get("/page");
        QCOMPARE(m_server->requests().last().header("Cookie"), QByteArray("a=b"));
    }

    void headKeepsTheLength()
    {
        LoopbackResponse response;
        response.headers = {{"Content-Length", "987654321"}, {"Content-Encoding", "gzip"}};
        m_server->route(QStringLiteral("/setup"), response);

        const std::unique_ptr<QNetworkReply> reply(m_manager->head(QNetworkRequest(m_server->url("/setup"))));
        waitFor(reply.get());
        QCOMPARE(reply->error(), QNetworkReply::NoError);
        QCOMPARE(reply->header(QNetworkRequest::ContentLengthHeader).toLongLong(), 987654321LL);
    }

    void sendsWhatWasAsked()
    {
        QNetworkRequest request = form("/collect?v=1");
        request.setRawHeader("User-Agent", "Versewell");
        const std::unique_ptr<QNetworkReply> reply(m_manager->post(request, "body"));
        waitFor(reply.get());

        const LoopbackRequest &seen = m_server->requests().first();
        QCOMPARE(seen.method, QByteArray("POST"));
        QCOMPARE(seen.target, QByteArray("/collect?v=1"));
        QCOMPARE(seen.body, QByteArray("body"));
        QCOMPARE(seen.header("User-Agent"), QByteArray("Versewell"));
        QCOMPARE(seen.header("Accept-Encoding"), QByteArray("gzip, deflate"));
        QCOMPARE(reply->request(), request);
        QCOMPARE(reply->operation(), QNetworkAccessManager::PostOperation);
    }

    void onlyWebAddresses_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("file") << "file:///etc/passwd";
        QTest::newRow("data") << "data:text/html,song";
        QTest::newRow("resource") << "qrc:/img/a.png";
        QTest::newRow("ftp") << "ftp://127.0.0.1/song";
        QTest::newRow("no host") << "http:///song";
        QTest::newRow("relative") << "/etc/passwd";
        QTest::newRow("nothing") << QString();
    }

    void onlyWebAddresses()
    {
        QFETCH(QString, address);
        const auto reply = get(QNetworkRequest(QUrl(address)));
        QCOMPARE(reply->error(), QNetworkReply::ProtocolUnknownError);
        QVERIFY(reply->errorString().contains(address));
        QVERIFY(reply->readAll().isEmpty());
    }

    void timeLimits_data()
    {
        QTest::addColumn<LoopbackResponse>("response");
        QTest::addColumn<RequestLimits>("limits");
        QTest::addColumn<QString>("text");

        // Only one of the two limits is in reach, so that a machine that stands still for a moment changes nothing.
        const RequestLimits noSilence{500ms, 1h, limitBytes};
        const RequestLimits shortInAll{1h, 1100ms, limitBytes};
        const LoopbackResponse page = LoopbackResponse::page(QByteArray(100000, 'x'));
        QTest::newRow("hangs") << hanging() << noSilence << "silent for 1 seconds";
        QTest::newRow("stalls in the body") << dripped(page, 1h) << noSilence << "silent for 1 seconds";
        QTest::newRow("drips") << dripped(page, 20ms) << shortInAll << "longer than 2 seconds";
    }

    void timeLimits()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(RequestLimits, limits);
        QFETCH(QString, text);
        m_manager->setLimits(limits);
        m_server->route(QStringLiteral("/page"), response);

        const auto reply = get("/page");
        QCOMPARE(reply->error(), QNetworkReply::TimeoutError);
        QVERIFY2(reply->errorString().contains(text), qPrintable(reply->errorString()));
        QVERIFY(reply->readAll().isEmpty());
    }

    void downloadIsStreamedWhole()
    {
        // It takes longer than a page may take in all.
        const QByteArray packed = deflated(QByteArray(2000, 'x'), gzipWindow);
        m_manager->setLimits({1h, 1ms, 10});
        m_server->route(QStringLiteral("/setup"),
                        dripped(coded("gzip", packed), std::chrono::milliseconds(800 / packed.size())));

        const std::unique_ptr<QNetworkReply> reply(m_manager->get(download("/setup")));
        QByteArray early;
        connect(reply.get(), &QNetworkReply::readyRead, this, [&] { early += reply->read(3); });
        waitFor(reply.get());
        QVERIFY2(reply->error() == QNetworkReply::NoError, qPrintable(reply->errorString()));
        QVERIFY(!early.isEmpty());
        QCOMPARE(early + reply->readAll(), packed);
        QCOMPARE(m_server->requests().first().header("Accept-Encoding"), QByteArray("identity"));
    }

    void downloadStillEndsWhenSilent()
    {
        m_manager->setLimits({300ms, 1ms, 10});
        m_server->route(QStringLiteral("/setup"), hanging());
        QCOMPARE(get(download("/setup"))->error(), QNetworkReply::TimeoutError);
    }

    void pauses_data()
    {
        QTest::addColumn<LoopbackResponse>("response");
        QTest::addColumn<int>("pauseSeconds");
        QTest::newRow("429 with seconds") << withRetryAfter(429, "30") << 30;
        QTest::newRow("503 with seconds") << withRetryAfter(503, "30") << 30;
        QTest::newRow("429 with a day") << withRetryAfter(429, "86400") << 600;
        QTest::newRow("429 with a far date") << withRetryAfter(429, "Fri, 31 Dec 2999 23:59:59 GMT") << 600;
        QTest::newRow("429 without a wish") << LoopbackResponse::error(429) << 0;
        QTest::newRow("500 with a wish") << withRetryAfter(500, "30") << 0;
        QTest::newRow("200 with a wish") << withRetryAfter(200, "30") << 0;
    }

    void pauses()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(int, pauseSeconds);
        m_server->route(QStringLiteral("/page"), response);
        get("/page");

        m_now += std::chrono::seconds(pauseSeconds) - 1ms;
        const auto early = get("/other");
        if (pauseSeconds > 0) {
            QCOMPARE(early->error(), QNetworkReply::ServiceUnavailableError);
            QVERIFY2(early->errorString().contains(QLatin1String("again in 1 s")), qPrintable(early->errorString()));
        }
        QCOMPARE(m_server->requestCount(QStringLiteral("/other")), pauseSeconds > 0 ? 0 : 1);
        m_now += 1ms;
        get("/late");
        QCOMPARE(m_server->requestCount(QStringLiteral("/late")), 1);
    }

    void aPauseIsForOneServer()
    {
        LoopbackServer other;
        m_server->route(QStringLiteral("/page"), withRetryAfter(429, "30"));
        get("/page");
        get(QNetworkRequest(other.url("/page")));
        QCOMPARE(other.requests().size(), 1);
    }

    void waitingCostsNoTime()
    {
        // The seventh is answered after 1.2 s.
        m_manager->setLimits({1s, 1s, limitBytes});
        LoopbackResponse slow = LoopbackResponse::page("song");
        slow.delay = 600ms;
        m_server->route(QStringLiteral("/page"), slow);

        const std::vector<QNetworkReply *> replies = getMany(7, "/page");
        QTRY_VERIFY(replies.back()->isFinished());
        for (const QNetworkReply *reply : replies)
            QVERIFY2(reply->error() == QNetworkReply::NoError, qPrintable(reply->errorString()));
        QCOMPARE(m_server->mostConnections(), 6);
    }

    void aPauseHoldsForWhatWaits()
    {
        m_server->route(QStringLiteral("/page"), withRetryAfter(429, "30"));
        const std::vector<QNetworkReply *> replies = getMany(20, "/page");
        for (QNetworkReply *reply : replies)
            QTRY_VERIFY(reply->isFinished());
        QCOMPARE(m_server->requests().size(), 6);
        QCOMPARE(replies[6]->error(), QNetworkReply::ServiceUnavailableError);
        QVERIFY2(replies[6]->errorString().contains(QLatin1String("again in 30 s")),
                 qPrintable(replies[6]->errorString()));
    }

    void waitingRequestsGoOutInOrder()
    {
        m_server->route(QStringLiteral("/hang"), hanging());
        const std::vector<QNetworkReply *> hanging = getMany(6, "/hang");
        m_manager->post(form("/first"), "body");
        const std::vector<QNetworkReply *> given = getMany(2, "/never");
        auto data = std::make_unique<QBuffer>();
        QVERIFY(data->open(QIODevice::ReadOnly));
        const QNetworkReply *withoutData = m_manager->post(form("/never"), data.get());
        data.reset();
        const QNetworkReply *last = m_manager->get(QNetworkRequest(m_server->url("/last")));

        delete given[0];
        given[1]->abort();
        waitFor(given[1]);
        QCOMPARE(given[1]->error(), QNetworkReply::OperationCanceledError);
        LoopbackServer other; // it has a line of its own
        get(QNetworkRequest(other.url("/page")));
        QCOMPARE(m_server->requests().size(), 6);

        delete hanging[0];
        QTRY_VERIFY(last->isFinished());
        QTRY_VERIFY(withoutData->isFinished());
        QCOMPARE(withoutData->error(), QNetworkReply::OperationCanceledError);
        QCOMPARE(m_server->requests().size(), 8);
        QCOMPARE(m_server->requests().at(6).body, QByteArray("body"));
        QCOMPARE(m_server->requests().at(7).path, QStringLiteral("/last"));
    }

    void downloadsLeavePlacesForPages()
    {
        m_server->route(QStringLiteral("/setup"), hanging());
        QNetworkReply *first = m_manager->get(download("/setup"));
        for (int i = 0; i < 7; ++i)
            m_manager->get(download("/setup"));
        QCOMPARE(get("/page")->error(), QNetworkReply::ContentNotFoundError);
        QCOMPARE(m_server->requestCount(QStringLiteral("/setup")), 3);
        first->abort();
        QTRY_COMPARE(m_server->requestCount(QStringLiteral("/setup")), 4);
    }

    void abortMidway()
    {
        m_server->route(QStringLiteral("/page"), dripped(LoopbackResponse::page(QByteArray(100000, 'x')), 1ms));
        const std::unique_ptr<QNetworkReply> reply(m_manager->get(QNetworkRequest(m_server->url("/page"))));
        QSignalSpy progress(reply.get(), &QNetworkReply::downloadProgress);
        QVERIFY(progress.wait());

        reply->abort();
        reply->abort();
        waitFor(reply.get());
        QCOMPARE(reply->error(), QNetworkReply::OperationCanceledError);
        QVERIFY(reply->readAll().isEmpty());
        QTRY_COMPARE(m_server->openConnections(), 0);
    }

    void replyDeletedMidway()
    {
        m_server->route(QStringLiteral("/page"), dripped(LoopbackResponse::page(QByteArray(100000, 'x')), 1ms));
        QNetworkReply *reply = m_manager->get(QNetworkRequest(m_server->url("/page")));
        connect(reply, &QNetworkReply::downloadProgress, this, [reply] { delete reply; });
        QPointer<QNetworkReply> guard(reply);
        QTRY_VERIFY(!guard);
        QTRY_COMPARE(m_server->openConnections(), 0);
        QCOMPARE(get("/other")->error(), QNetworkReply::ContentNotFoundError);
    }

    void uploadDeletedMidway()
    {
        QNetworkReply *reply = m_manager->post(form("/page"), QByteArray(32 * limitBytes, 'x'));
        connect(reply, &QNetworkReply::uploadProgress, this, [reply] { delete reply; });
        QPointer<QNetworkReply> guard(reply);
        QTRY_VERIFY(!guard);
        QTRY_COMPARE(m_server->openConnections(), 0);
    }

    void managerDeletedWithRequestsInFlight()
    {
        m_server->route(QStringLiteral("/hang"), hanging());
        m_server->route(QStringLiteral("/drip"), dripped(LoopbackResponse::page("xxxxxxxxxxx"), 1h));
        const QPointer<QNetworkReply> replies[] = {m_manager->get(QNetworkRequest(m_server->url("/hang"))),
                                                   m_manager->get(QNetworkRequest(m_server->url("/drip"))),
                                                   m_manager->get(QNetworkRequest(QUrl(QStringLiteral("file:///x")))),
                                                   m_manager->get(QNetworkRequest(m_server->url("/drip")))};
        QTRY_COMPARE(m_server->requests().size(), 3);
        const QPointer<QNetworkReply> waiting = getMany(5, "/hang").back();
        replies[3]->abort();
        m_manager.reset();
        for (const auto &reply : replies)
            QVERIFY(!reply);
        QVERIFY(!waiting);
        QTRY_COMPARE(m_server->openConnections(), 0);
    }

    void managerDeletedBeforeAReplyOfSomebodyElse()
    {
        m_server->route(QStringLiteral("/hang"), hanging());
        const std::unique_ptr<QNetworkReply> reply(m_manager->get(QNetworkRequest(m_server->url("/hang"))));
        const std::unique_ptr<QNetworkReply> aborted(m_manager->get(QNetworkRequest(m_server->url("/hang"))));
        QTRY_COMPARE(m_server->requests().size(), 2);
        getMany(4, "/hang");
        const std::unique_ptr<QNetworkReply> waiting(m_manager->get(QNetworkRequest(m_server->url("/hang"))));
        QSignalSpy finished(reply.get(), &QNetworkReply::finished);
        aborted->abort();
        const std::unique_ptr<QNetworkReply> refused(
            m_manager->get(QNetworkRequest(QUrl(QStringLiteral("file:///x")))));
        for (const auto &survivor : {reply.get(), aborted.get(), waiting.get(), refused.get()})
            survivor->setParent(nullptr);
        m_manager.reset();
        QVERIFY(finished.wait());
        QTRY_VERIFY(refused->isFinished() && aborted->isFinished() && waiting->isFinished());
        QCOMPARE(reply->error(), QNetworkReply::OperationCanceledError);
        QCOMPARE(waiting->error(), QNetworkReply::OperationCanceledError);
    }

private:
    // Waits until the reply has finished, and checks that it does so once, from the event loop.
    void waitFor(QNetworkReply *reply)
    {
        QVERIFY(!reply->isFinished());
        QSignalSpy ofReply(reply, &QNetworkReply::finished);
        QSignalSpy errors(reply, &QNetworkReply::errorOccurred);
        QSignalSpy ofManager(m_manager.get(), &QNetworkAccessManager::finished);
        QVERIFY(ofReply.wait(20000));
        QVERIFY(reply->isFinished());
        QCoreApplication::processEvents();
        QCOMPARE(ofReply.count(), 1);
        QCOMPARE(errors.count(), reply->error() == QNetworkReply::NoError ? 0 : 1);
        QCOMPARE(ofManager.count(), 1);
        QCOMPARE(ofManager.first().first().value<QNetworkReply *>(), reply);
    }

    std::unique_ptr<QNetworkReply> get(const QByteArray &target) { return get(QNetworkRequest(m_server->url(target))); }

}

std::unique_ptr<QNetworkReply>
get(const QByteArray &target);
// Sent at once, one behind the other; the manager owns them.
std::vector<QNetworkReply *> getMany(std::size_t count, const QByteArray &target)
{
    std::vector<QNetworkReply *> replies(count);
    for (QNetworkReply *&reply : replies)
        reply = m_manager->get(QNetworkRequest(m_server->url(target)));
    return replies;
}

[[nodiscard]] QNetworkRequest download(const QByteArray &target) const
{
    QNetworkRequest request(m_server->url(target));
    request.setAttribute(AccessManager::DownloadAttribute, true);
    return request;
}

[[nodiscard]] QNetworkRequest form(const QByteArray &target) const
{
    QNetworkRequest request(m_server->url(target));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/plain"));
    return request;
}

std::unique_ptr<LoopbackServer> m_server;
std::unique_ptr<AccessManager> m_manager;
std::chrono::steady_clock::time_point m_now;
}
;

QTEST_GUILESS_MAIN(tst_AccessManager)
#include "tst_accessmanager.moc"
