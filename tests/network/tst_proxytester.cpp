// SPDX-License-Identifier: MIT
#include "network/ProxyTester.h"
#include "support/LoopbackServer.h"
#include "support/TestTable.h"

#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(ProxyTester::State)

namespace {

const QUrl page("http://page.example/hello"_s);

QNetworkProxy proxyAt(const LoopbackServer &server)
{
    return {QNetworkProxy::HttpProxy, "127.0.0.1"_s, quint16(QUrl(server.base()).port())};
}

} // namespace

class tst_ProxyTester : public QObject
{
    Q_OBJECT

private slots:
    // The server plays the proxy.
    void theOutcomeIsTold_data()
    {
        QTest::addColumn<LoopbackResponse>("answer");
        QTest::addColumn<ProxyTester::State>("outcome");
        const auto wantsLogin = [](int status, const char *header) {
            return LoopbackResponse::error(status).with(header, "Basic realm=\"a\"");
        };
        addRow("the page comes", LoopbackResponse::page("hello"), ProxyTester::Success);
        addRow("the page is elsewhere", LoopbackResponse::redirect(301, "/b"), ProxyTester::Success);
        addRow("the page is out of order", LoopbackResponse::error(500), ProxyTester::Error);
        addRow("the page wants a pause", LoopbackResponse::error(503).with("Retry-After", "60"), ProxyTester::Error);
        addRow("the page wants a log-in", wantsLogin(401, "WWW-Authenticate"), ProxyTester::Error);
        addRow("the proxy wants a log-in", wantsLogin(407, "Proxy-Authenticate"), ProxyTester::Error);
        addRow("nothing comes until the time is over", LoopbackResponse::hanging(), ProxyTester::Success);
    }

    void theOutcomeIsTold()
    {
        QFETCH(LoopbackResponse, answer);
        LoopbackServer server;
        server.routeOthers([&answer](const LoopbackRequest &) { return answer; });
        ProxyTester tester(page);
        tester.setTimeoutSeconds(1);
        QVector<ProxyTester::State> states;
        connect(&tester, &ProxyTester::stateChanged, this, [&] { states.append(tester.state()); });
        // A second time as well: an outcome is not remembered.
        for (int round = 1; round <= 2; ++round) {
            QVERIFY(tester.start(proxyAt(server)));
            QVERIFY(!tester.start(proxyAt(server)));
            QTRY_VERIFY(tester.state() != ProxyTester::Working);
            QTEST(tester.state(), "outcome");
            QCOMPARE(server.requestCount(page.path()), round);
        }
        QFETCH(ProxyTester::State, outcome);
        QCOMPARE(states, (QVector<ProxyTester::State>{ProxyTester::Working, outcome, ProxyTester::Working, outcome}));
        QCOMPARE(server.requests().first().target, page.toEncoded());
    }

    void aDeadProxyIsAnError()
    {
        LoopbackServer server;
        server.stop();
        ProxyTester tester(page);
        for (const auto type : {QNetworkProxy::HttpProxy, QNetworkProxy::Socks5Proxy}) {
            QNetworkProxy proxy = proxyAt(server);
            proxy.setType(type);
            QVERIFY(tester.start(proxy));
            QTRY_COMPARE(tester.state(), ProxyTester::Error);
        }
    }

    void aTestCanBeStoppedAndRepeated()
    {
        LoopbackServer server;
        server.routeOthers([](const LoopbackRequest &) { return LoopbackResponse::hanging(); });
        ProxyTester tester(page);
        QSignalSpy changes(&tester, &ProxyTester::stateChanged);
        tester.stop();
        QVERIFY(!tester.start(QNetworkProxy(QNetworkProxy::NoProxy)) && !ProxyTester(QUrl()).start(proxyAt(server)));
        QVERIFY2(changes.isEmpty(), "nothing was begun, and there was nothing to stop");
        QVERIFY(tester.start(proxyAt(server)));
        QTRY_COMPARE(server.requests().size(), 1);
        tester.stop();
        QCOMPARE(tester.state(), ProxyTester::Idle);
        QTRY_COMPARE(server.openConnections(), 0);
        server.routeOthers([](const LoopbackRequest &) { return LoopbackResponse::page("hello"); });
        QVERIFY(tester.start(proxyAt(server)));
        QTRY_COMPARE(tester.state(), ProxyTester::Success);
        QCOMPARE(changes.size(), 4);
    }
};

QTEST_GUILESS_MAIN(tst_ProxyTester)
#include "tst_proxytester.moc"
