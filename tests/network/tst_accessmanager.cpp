// SPDX-License-Identifier: MIT
#include "network/AccessManager.h"
#include "support/LoopbackServer.h"
#include "support/TestTable.h"

#include <QBuffer>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QPointer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>
#include <vector>
#include <zlib.h>

using namespace std::chrono_literals;

namespace {

constexpr int limitBytes = 1024 * 1024;
constexpr int gzipWindow = 15 + 16;
constexpr int zlibWindow = 15;
constexpr int bareWindow = -15;

QByteArray deflated(const QByteArray &plain, int window)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, window, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(static_cast<int>(deflateBound(&stream, static_cast<uLong>(plain.size()))) + 64, '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(plain.constData()));
    stream.avail_in = static_cast<uInt>(plain.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

LoopbackResponse coded(const QByteArray &coding, const QByteArray &body)
{
    return LoopbackResponse::page(body).with("Content-Encoding", coding);
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

LoopbackResponse chunked(const QByteArray &chunks)
{
    return untilClose(LoopbackResponse::page(chunks).with("Transfer-Encoding", "chunked"));
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

        const auto row = [](const char *name, const LoopbackResponse &response, const QByteArray &body) {
            addRow(name, response, QNetworkReply::NoError, body);
        };
        const auto failing = [](const char *name, const LoopbackResponse &response, QNetworkReply::NetworkError error) {
            addRow(name, response, error, QByteArray());
        };
        const QByteArray song = QByteArrayLiteral("<div>la\xc3\xa9\0la</div>");
        const QByteArray full(limitBytes, 'x');
        const LoopbackResponse gzip = coded("gzip", deflated(song, gzipWindow));

        row("page without a length", untilClose(LoopbackResponse::page(song)), song);
        row("gzip, byte by byte", dripped(gzip, 1ms), song);
        row("gzip in two members", coded("gzip", gzip.body + gzip.body), song + song);
        row("gzip with junk behind", coded("gzip", gzip.body + "junk"), song);
        row("gzip said, nothing sent", coded("gzip", {}), {});
        row("deflate", coded("deflate", deflated(song, zlibWindow)), song);
        row("bare deflate", coded("deflate", deflated(song, bareWindow)), song);
        row("chunks", chunked("2\r\nla\r\n2\r\nlu\r\n0\r\n\r\n"), "lalu");
        row("redirect, which is not followed", LoopbackResponse::redirect(302, "/elsewhere"), {});
        row("as large as allowed", LoopbackResponse::page(full), full);
        row("gzip as large as allowed", coded("gzip", deflated(full, gzipWindow)), full);
        const auto unknown = QNetworkReply::UnknownContentError;
        failing("a byte too large", LoopbackResponse::page(full + 'x'), unknown);
        failing("far too large, no length", untilClose(LoopbackResponse::page(full.repeated(8))), unknown);
        failing("gzip a byte too large", coded("gzip", deflated(full + 'x', gzipWindow)), unknown);
        const QByteArray nothing = deflated({}, gzipWindow);
        failing("endless members of nothing", untilClose(coded("gzip", nothing.repeated(100000))), unknown);
        LoopbackResponse damaged = gzip;
        damaged.body[gzip.body.size() - 6] = '?';
        failing("gzip with a wrong checksum", damaged, unknown);
        failing("gzip that is none", coded("gzip", "<html>no</html>"), unknown);
        failing("unknown coding", coded("br", "x"), unknown);
        const auto cutShort = QNetworkReply::RemoteHostClosedError;
        failing("gzip without its end", untilClose(coded("gzip", gzip.body.left(gzip.body.size() - 9))), cutShort);
        LoopbackResponse cut = LoopbackResponse::page(song);
        cut.cutAfter = 5;
        failing("cut body", cut, cutShort);
        const QByteArray begun = "9\r\n" + gzip.body.left(9) + "\r\n";
        failing("chunks of gzip without an end", chunked(begun).with("Content-Encoding", "gzip"), cutShort);
        failing("404", LoopbackResponse::error(404), QNetworkReply::ContentNotFoundError);
        failing("500", LoopbackResponse::error(500), QNetworkReply::InternalServerError);
    }

    void answers()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(QNetworkReply::NetworkError, error);
        QFETCH(QByteArray, body);
        m_server->route("/page"_s, response);

        const auto reply = get("/page");
        QCOMPARE(reply->error(), error);
        QCOMPARE(reply->bytesAvailable(), qint64(body.size()));
        QCOMPARE(reply->readAll(), body);
        QCOMPARE(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), response.status);
        if (response.status / 100 == 3)
            QCOMPARE(m_server->requests().size(), 1); // not followed
        if (response.status >= 400)
            QVERIFY2(reply->errorString().contains(QString::number(response.status)), qPrintable(reply->errorString()));
    }

    void headersTellOfThePageThatIsRead()
    {
        m_server->route("/page"_s, coded("gzip", deflated("song", gzipWindow)).with("Set-Cookie", "a=b"));
        const auto page = get("/page?q=1");
        QCOMPARE(page->url(), m_server->url("/page?q=1"));
        QVERIFY(!page->hasRawHeader("Content-Encoding") && !page->hasRawHeader("Content-Length"));
        QCOMPARE(page->read(2) + page->readAll(), QByteArray("song"));

        QNetworkRequest request = form("/page?v=1");
        request.setRawHeader("User-Agent", "Versewell");
        const std::unique_ptr<QNetworkReply> posted(m_manager->post(request, "body"));
        waitFor(posted.get());
        const LoopbackRequest &seen = m_server->requests().last();
        QCOMPARE(seen.method + ' ' + seen.target + ' ' + seen.body, QByteArray("POST /page?v=1 body"));
        QCOMPARE(seen.header("User-Agent"), QByteArray("Versewell"));
        QCOMPARE(seen.header("Accept-Encoding"), QByteArray("gzip, deflate"));
        QCOMPARE(seen.header("Cookie"), QByteArray("a=b"));
        QCOMPARE(posted->request(), request);

        LoopbackResponse setup;
        setup.headers = {{"Content-Length", "987654321"}, {"Content-Encoding", "gzip"}};
        m_server->route("/setup"_s, setup);
        const std::unique_ptr<QNetworkReply> head(m_manager->head(QNetworkRequest(m_server->url("/setup"))));
        waitFor(head.get());
        QVERIFY2(head->error() == QNetworkReply::NoError, qPrintable(head->errorString()));
        QCOMPARE(head->header(QNetworkRequest::ContentLengthHeader).toLongLong(), 987654321LL);
    }

    void onlyWebAddresses()
    {
        for (const char *address : {"file:///etc/passwd", "http:///song", "/etc/passwd"}) {
            const auto reply = get(QNetworkRequest(QUrl(QString::fromLatin1(address))));
            QCOMPARE(reply->error(), QNetworkReply::ProtocolUnknownError);
            QVERIFY(reply->errorString().contains(QLatin1String(address)) && reply->readAll().isEmpty());
        }
    }

    void timeLimits_data()
    {
        QTest::addColumn<LoopbackResponse>("response");
        QTest::addColumn<RequestLimits>("limits");
        QTest::addColumn<bool>("isDownload");
        addTextColumns("text");
        // Only one of the two limits is in reach, so that a machine that stands still for a moment changes nothing.
        const RequestLimits noSilence{500ms, 1h, limitBytes};
        const LoopbackResponse page = LoopbackResponse::page(QByteArray(100000, 'x'));
        addRow("hangs", LoopbackResponse::hanging(), noSilence, false, "silent for 1 seconds");
        addRow("stalls in the body", dripped(page, 1h), noSilence, false, "silent for 1 seconds");
        addRow("drips", dripped(page, 20ms), RequestLimits{1h, 1100ms, limitBytes}, false, "longer than 2 seconds");
        addRow("a download hangs", LoopbackResponse::hanging(), RequestLimits{300ms, 1ms, 10}, true, "silent for 1");
    }

    void timeLimits()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(RequestLimits, limits);
        QFETCH(bool, isDownload);
        QFETCH(QString, text);
        m_manager->setLimits(limits);
        m_server->route("/page"_s, response);
        const auto reply = isDownload ? get(download("/page")) : get("/page");
        QCOMPARE(reply->error(), QNetworkReply::TimeoutError);
        QVERIFY2(reply->errorString().contains(text), qPrintable(reply->errorString()));
        QVERIFY(reply->readAll().isEmpty());
    }

    void downloadIsStreamedWhole()
    {
        // It takes longer than a page may take in all.
        const QByteArray packed = deflated(QByteArray(2000, 'x'), gzipWindow);
        m_manager->setLimits({1h, 1ms, 10});
        m_server->route("/setup"_s, dripped(coded("gzip", packed), std::chrono::milliseconds(800 / packed.size())));

        const std::unique_ptr<QNetworkReply> reply(m_manager->get(download("/setup")));
        QByteArray early;
        connect(reply.get(), &QNetworkReply::readyRead, this, [&] { early += reply->read(3); });
        waitFor(reply.get());
        QVERIFY2(reply->error() == QNetworkReply::NoError, qPrintable(reply->errorString()));
        QVERIFY(!early.isEmpty());
        QCOMPARE(early + reply->readAll(), packed);
        QCOMPARE(m_server->requests().first().header("Accept-Encoding"), QByteArray("identity"));
    }

    void pauses_data()
    {
        QTest::addColumn<LoopbackResponse>("response");
        QTest::addColumn<int>("pauseSeconds");
        const auto row = [](const char *name, int status, const char *wish, int pauseSeconds) {
            const LoopbackResponse response = LoopbackResponse::error(status);
            addRow(name, wish ? response.with("Retry-After", wish) : response, pauseSeconds);
        };
        row("429 with seconds", 429, "30", 30);
        row("503 with a far date", 503, "Fri, 31 Dec 2999 23:59:59 GMT", 600);
        row("429 without a wish", 429, nullptr, 0);
        row("500 with a wish", 500, "30", 0);
        row("200 with a wish", 200, "30", 0);
    }

    void pauses()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(int, pauseSeconds);
        m_server->route("/page"_s, response);
        get("/page");
        m_now += std::chrono::seconds(pauseSeconds) - 1ms;
        const auto early = get("/other");
        QCOMPARE(early->error() == QNetworkReply::ServiceUnavailableError, pauseSeconds > 0);
        QCOMPARE(early->errorString().contains("again in 1 s"_s), pauseSeconds > 0);
        QCOMPARE(m_server->requestCount("/other"_s), pauseSeconds > 0 ? 0 : 1);
        LoopbackServer another; // has said nothing
        get(QNetworkRequest(another.url("/page")));
        QCOMPARE(another.requests().size(), 1);
        m_now += 1ms;
        get("/late");
        QCOMPARE(m_server->requestCount("/late"_s), 1);
    }

    void waitingCostsNoTime()
    {
        // The seventh is answered after 1.2 s.
        m_manager->setLimits({1s, 1s, limitBytes});
        LoopbackResponse slow = LoopbackResponse::page("song");
        slow.delay = 600ms;
        m_server->route("/page"_s, slow);

        const std::vector<QNetworkReply *> replies = getMany(7, "/page");
        QTRY_VERIFY(replies.back()->isFinished());
        for (const QNetworkReply *reply : replies)
            QVERIFY2(reply->error() == QNetworkReply::NoError, qPrintable(reply->errorString()));
        QCOMPARE(m_server->mostConnections(), 6);
    }

    void aPauseHoldsForWhatWaits()
    {
        m_server->route("/page"_s, LoopbackResponse::error(429).with("Retry-After", "30"));
        const std::vector<QNetworkReply *> replies = getMany(20, "/page");
        for (QNetworkReply *reply : replies)
            QTRY_VERIFY(reply->isFinished());
        QCOMPARE(m_server->requests().size(), 6);
        QCOMPARE(replies[6]->error(), QNetworkReply::ServiceUnavailableError);
        QVERIFY2(replies[6]->errorString().contains("again in 30 s"_s), qPrintable(replies[6]->errorString()));
    }

    void aServerThatTimesOutAgainAndAgainIsLeftAlone()
    {
        m_manager->setLimits({50ms, 1s, limitBytes});
        m_server->route("/silent"_s, LoopbackResponse::hanging());
        m_server->route("/page"_s, LoopbackResponse::page("song"));
        for (const char *target : {"/silent", "/silent", "/page", "/silent", "/silent", "/page", "/silent", "/silent"})
            QCOMPARE(get(target)->error() == QNetworkReply::NoError, qstrcmp(target, "/page") == 0);
        get("/silent");
        const auto refused = get("/page");
        QCOMPARE(refused->error(), QNetworkReply::TimeoutError);
        QVERIFY2(refused->errorString().contains("silent"_s), qPrintable(refused->errorString()));
        QCOMPARE(m_server->requestCount("/page"_s), 2);
        m_now += RestingHosts::pauseOfSilence;
        QCOMPARE(get("/page")->error(), QNetworkReply::NoError);
    }

    void aPauseHoldsForTheStartOfItsChainToo()
    {
        LoopbackServer another;
        another.route("/page"_s, LoopbackResponse::error(429).with("Retry-After", "30"));
        QNetworkRequest request(another.url("/page"));
        request.setAttribute(AccessManager::ChainStartAttribute, m_server->url("/start"));
        get(request);
        QCOMPARE(get("/start")->error(), QNetworkReply::ServiceUnavailableError);
        m_manager->useProxy(QNetworkProxy::NoProxy); // as before
        QCOMPARE(get("/start")->error(), QNetworkReply::ServiceUnavailableError);
        m_manager->useProxy({QNetworkProxy::HttpProxy, "127.0.0.1"_s, 9});
        m_manager->useProxy(QNetworkProxy::NoProxy);
        QCOMPARE(get("/start")->error(), QNetworkReply::ContentNotFoundError);
    }

    // The server plays the proxy.
    void aProxyThatWantsAnotherLoginGetsNoneAndBlocksNothing()
    {
        m_server->routeOthers([](const LoopbackRequest &) {
            return LoopbackResponse::error(407).with("Proxy-Authenticate",
                                                     "Digest realm=\"Basic, Basic \", nonce=\"b\"");
        });
        m_manager->useProxy(
            {QNetworkProxy::HttpProxy, "127.0.0.1"_s, quint16(QUrl(m_server->base()).port()), "nora"_s, "word"_s});
        const QNetworkRequest request(QUrl("http://page.example/"_s));
        get(request);
        QVERIFY(get(request)->errorString().contains("of a kind that is not known"_s));
        QCOMPARE(m_server->requests().size(), 2);
        for (const LoopbackRequest &sent : m_server->requests())
            QCOMPARE(sent.header("Proxy-Authorization"), QByteArray());
    }

    void aSocksProxyIsGivenAWrongLoginOnce_data()
    {
        QTest::addColumn<QByteArray>("answer");
        addRow("it says so", QByteArray("\1\1"));
        addRow("it hangs up", QByteArray());
    }

    void aSocksProxyIsGivenAWrongLoginOnce()
    {
        QFETCH(QByteArray, answer);
        QTcpServer proxy;
        QVERIFY(proxy.listen(QHostAddress::LocalHost));
        int logins = 0;
        connect(&proxy, &QTcpServer::newConnection, &proxy, [&] {
            QTcpSocket *client = proxy.nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [&logins, client, answer] {
                const bool isGreeting = client->readAll().startsWith('\5');
                logins += isGreeting ? 0 : 1;
                client->write(isGreeting ? QByteArray("\5\2") : answer);
                if (!isGreeting && answer.isEmpty())
                    client->disconnectFromHost();
            });
        });
        m_manager->useProxy({QNetworkProxy::Socks5Proxy, "127.0.0.1"_s, proxy.serverPort(), "nora"_s, "word"_s});
        const std::vector<QNetworkReply *> replies = getMany(9, "/page");
        for (QNetworkReply *reply : replies) {
            QTRY_VERIFY(reply->isFinished());
            QCOMPARE(reply->error(), QNetworkReply::ProxyAuthenticationRequiredError);
        }
        QCOMPARE(logins, 1);
    }

    void waitingRequestsGoOutInOrder()
    {
        m_server->route("/hang"_s, LoopbackResponse::hanging());
        const std::vector<QNetworkReply *> hanging = getMany(6, "/hang");
        m_manager->post(form("/first"), "body");
        const std::vector<QNetworkReply *> given = getMany(2, "/never");
        auto data = std::make_unique<QBuffer>();
        QVERIFY(data->open(QIODevice::ReadOnly));
        const QNetworkReply *withoutData = m_manager->post(form("/never"), data.get());
        data.reset();
        const QNetworkReply *last = start("/last");

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
        QCOMPARE(m_server->requests().at(7).path, "/last"_s);
    }

    void downloadsLeavePlacesForPages()
    {
        m_server->route("/setup"_s, LoopbackResponse::hanging());
        QNetworkReply *first = m_manager->get(download("/setup"));
        for (int i = 0; i < 7; ++i)
            m_manager->get(download("/setup"));
        QCOMPARE(get("/page")->error(), QNetworkReply::ContentNotFoundError);
        QCOMPARE(m_server->requestCount("/setup"_s), 3);
        first->abort();
        QTRY_COMPARE(m_server->requestCount("/setup"_s), 4);
    }

    void repliesEndMidway()
    {
        m_server->route("/page"_s, dripped(LoopbackResponse::page(QByteArray(100000, 'x')), 1ms));
        const std::unique_ptr<QNetworkReply> aborted(start("/page"));
        QVERIFY(QSignalSpy(aborted.get(), &QNetworkReply::downloadProgress).wait());
        aborted->abort();
        aborted->abort();
        waitFor(aborted.get());
        QCOMPARE(aborted->error(), QNetworkReply::OperationCanceledError);
        QVERIFY(aborted->readAll().isEmpty());
        const QPointer<QNetworkReply> deleted(start("/page"));
        connect(deleted, &QNetworkReply::downloadProgress, this, [deleted] { delete deleted.data(); });
        const QPointer<QNetworkReply> upload(m_manager->post(form("/form"), QByteArray(32 * limitBytes, 'x')));
        connect(upload, &QNetworkReply::uploadProgress, this, [upload] { delete upload.data(); });
        QTRY_VERIFY(!deleted && !upload);
        QTRY_COMPARE(m_server->openConnections(), 0);
        QCOMPARE(get("/other")->error(), QNetworkReply::ContentNotFoundError);
    }

    // One reply under way, one aborted, one refused and one that waits: the manager takes its own along, and ends those
    // that belong to somebody else.
    void managerDeletedBeforeItsReplies()
    {
        for (const bool areOwned : {true, false}) {
            m_server->route("/hang"_s, LoopbackResponse::hanging());
            const QPointer<QNetworkReply> underWay(start("/hang"));
            const QPointer<QNetworkReply> aborted(start("/hang"));
            QTRY_COMPARE(m_server->requests().size(), 2);
            getMany(4, "/hang");
            const QPointer<QNetworkReply> waiting(start("/hang"));
            aborted->abort();
            const QPointer<QNetworkReply> refused(m_manager->get(QNetworkRequest(QUrl("file:///x"_s))));
            const std::vector<QPointer<QNetworkReply>> replies{underWay, aborted, waiting, refused};
            for (const auto &reply : replies)
                reply->setParent(areOwned ? reply->parent() : nullptr);
            m_manager.reset();
            for (const auto &reply : replies) {
                QCOMPARE(reply.isNull(), areOwned);
                QTRY_VERIFY(areOwned || reply->isFinished());
                const std::unique_ptr<QNetworkReply> ended(reply.data());
                QVERIFY(areOwned || reply == refused || reply->error() == QNetworkReply::OperationCanceledError);
            }
            QTRY_COMPARE(m_server->openConnections(), 0);
            cleanup();
            init();
        }
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

    std::unique_ptr<QNetworkReply> get(const QNetworkRequest &request)
    {
        std::unique_ptr<QNetworkReply> reply(m_manager->get(request));
        waitFor(reply.get());
        return reply;
    }

    std::unique_ptr<QNetworkReply> get(const QByteArray &target) { return get(QNetworkRequest(m_server->url(target))); }

    QNetworkReply *start(const QByteArray &target) { return m_manager->get(QNetworkRequest(m_server->url(target))); }

    // Sent at once, one behind the other; the manager owns them.
    std::vector<QNetworkReply *> getMany(std::size_t count, const QByteArray &target)
    {
        std::vector<QNetworkReply *> replies(count);
        for (QNetworkReply *&reply : replies)
            reply = start(target);
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
        request.setHeader(QNetworkRequest::ContentTypeHeader, "text/plain"_s);
        return request;
    }

    std::unique_ptr<LoopbackServer> m_server;
    std::unique_ptr<AccessManager> m_manager;
    std::chrono::steady_clock::time_point m_now;
};

QTEST_GUILESS_MAIN(tst_AccessManager)
#include "tst_accessmanager.moc"
