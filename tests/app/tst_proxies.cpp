// SPDX-License-Identifier: MIT
#include "app/Stage.h"

#include "support/LoopbackServer.h"
#include "support/ProxyServer.h"
#include "support/TestTable.h"
#include "support/TlsFront.h"

#include <QTcpSocket>

#include <optional>

Q_DECLARE_METATYPE(QNetworkProxy::ProxyType)

namespace {

const QString password = QStringLiteral("swordfish");
const QString words = QStringLiteral("la la la");
constexpr auto socks = QNetworkProxy::Socks5Proxy;
constexpr auto http = QNetworkProxy::HttpProxy;

// A lyrics site that knows every song, on "localhost": the name has to be resolved by somebody. It takes the place of
// all sites of the application that is there.
class Site : public LoopbackServer
{
public:
    explicit Site(const QString &scheme = "http"_s, TlsFront::Trust trust = TlsFront::Trusted)
    {
        quint16 port = portOf(*this);
        if (scheme == "https"_s)
            port = m_front.emplace(port, trust).serverPort();
        address = "localhost:%1"_s.arg(port);
        for (const Endpoint endpoint : allEndpoints())
            QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(endpoint),
                                 scheme + "://"_s + address);
        reloadEndpoints();
        route("/search.php"_s, [](const LoopbackRequest &request) {
            const QByteArray title = request.query.queryItemValue("q"_s).toUtf8();
            return LoopbackResponse::page(
                "<div class=\"list-row\" data-sorting-artist=\"Nora Vale\" data-sorting-song=\"" + title +
                "\">\n<a href=\"/song.html\" class=\"song\">x</a>\n</div>");
        });
        route("/song.html"_s, songPage());
    }
    static LoopbackResponse songPage()
    {
        return LoopbackResponse::page("<div class=\"lyrics\" id=\"content\">" + words.toUtf8() + "</div>");
    }
    static quint16 portOf(const LoopbackServer &server) { return static_cast<quint16>(QUrl(server.base()).port()); }

    QString address;

private:
    std::optional<TlsFront> m_front;
};

} // namespace

// The program with a list of songs without lyrics, behind proxies.
class tst_Proxies : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_app = std::make_unique<Stage>(); }
    void cleanup() { m_app.reset(); }

    void searchesGoThroughTheProxy_data()
    {
        QTest::addColumn<QNetworkProxy::ProxyType>("type");
        addTextColumns("scheme", "login");
        addRow("SOCKS5", socks, "http", "");
        addRow("SOCKS5 with a log-in", socks, "http", "Größe+日本"_s);
        addRow("SOCKS5 with a log-in, https", socks, "https", password);
        addRow("HTTP", http, "http", "");
        addRow("HTTP with a log-in", http, "http", password);
        addRow("HTTP with a log-in, https", http, "https", password);
    }

    void searchesGoThroughTheProxy()
    {
        QFETCH(QNetworkProxy::ProxyType, type);
        QFETCH(QString, scheme);
        QFETCH(QString, login);
        const Site site(scheme);
        ProxyServer proxy(type, login.isEmpty() ? QString() : m_user, login);
        QVERIFY(proxy.isReady());
        useProxy(type, proxy.port(), login);
        addSongs(1);
        QTRY_COMPARE(song()->lyricsTag(), words);
        QTRY_VERIFY2(proxy.log().contains("localhost"), proxy.log().constData()); // it was given the name
        // All went to it, and what is meant for the site alone it could not read.
        const QByteArray passed = proxy.received().join();
        QVERIFY(scheme == "https"_s || passed.count("GET ") >= site.requests().size());
        QVERIFY(scheme == "http"_s || !passed.contains("/search.php"));
        settings()->setProxyType(0);
        const int before = site.requests().size();
        model()->startSearch(song()->id());
        QTRY_VERIFY(site.requests().size() > before);
        QCOMPARE(proxy.received().join().size(), passed.size());
    }

    void aSiteWhoseCertificateNobodyTrustsIsToldNothing()
    {
        const Site site("https"_s, TlsFront::Unknown);
        addSongs(1);
        QTRY_COMPARE(model()->activeCount(), 0);
        QCOMPARE(song()->errorString(), "The site's certificate is not trusted."_s);
        QCOMPARE(site.requests().size(), 0);
    }

    // RFC 7617, section 2.1; the proxies that can be started here take plain letters only.
    void anHttpProxyIsGivenTheLoginInUtf8()
    {
        const Site site;
        const QByteArray login = "Basic " + QByteArray("nora:Größe+日本").toBase64();
        LoopbackServer proxy;
        proxy.routeOthers([&login](const LoopbackRequest &request) {
            return request.header("Proxy-Authorization") == login
                       ? LoopbackResponse::error(404)
                       : LoopbackResponse::error(407).with("Proxy-Authenticate", "Basic realm=\"x\"");
        });
        useProxy(http, Site::portOf(proxy), "Größe+日本"_s);
        addSongs(1);
        QTRY_COMPARE(song()->processState(), ModelItem::ProcessComplete);
        QVERIFY(!song()->errorString().contains("proxy"_s));
    }

    void aSiteOutOfReachIsNoFaultOfTheProxy_data()
    {
        addTextColumns("error");
        QTest::addColumn<char>("reply"); // RFC 1928, section 6
        addRow("no network", "Network unreachable", '\3');
        addRow("too far", "TTL expired", '\6');
    }

    void aSiteOutOfReachIsNoFaultOfTheProxy()
    {
        QFETCH(char, reply);
        const Site site;
        QTcpServer proxy;
        QVERIFY(proxy.listen(QHostAddress::LocalHost));
        connect(&proxy, &QTcpServer::newConnection, &proxy, [&proxy, reply] {
            QTcpSocket *client = proxy.nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [client, reply] {
                const bool isGreeting = client->readAll().size() < 5;
                client->write(isGreeting ? QByteArray("\5\0", 2)
                                         : QByteArray("\5", 1) + reply + QByteArray("\0\1\0\0\0\0\0\0", 8));
            });
        });
        useProxy(socks, proxy.serverPort());
        addSongs(1);
        QTRY_COMPARE(model()->activeCount(), 0);
        QTEST(song()->errorString(), "error");
    }

    void aRefusedLoginIsNotTriedAgain_data()
    {
        QTest::addColumn<QNetworkProxy::ProxyType>("type");
        addTextColumns("scheme", "login");
        addRow("SOCKS5", socks, "http", "wrong");
        addRow("HTTP", http, "http", "wrong");
        addRow("HTTP, for https", http, "https", "wrong");
        addRow("HTTP, none at all", http, "http", "");
        addRow("HTTP, none at all, for https", http, "https", "");
    }

    void aRefusedLoginIsNotTriedAgain()
    {
        constexpr int songs = 30;
        QFETCH(QNetworkProxy::ProxyType, type);
        QFETCH(QString, scheme);
        QFETCH(QString, login);
        const int attempts = login.isEmpty() ? 0 : 1;
        const Site site(scheme);
        ProxyServer proxy(type, m_user, password);
        QVERIFY(proxy.isReady());
        useProxy(type, proxy.port(), login);
        addSongs(songs);
        QTRY_COMPARE_WITH_TIMEOUT(model()->activeCount(), 0, 20000);
        for (int row = 0; row < songs; ++row)
            QCOMPARE(song(row)->errorString(), "The proxy refuses the user name or the password."_s);
        (*m_app)->updater()->check(); // which has an access manager of its own
        QTRY_VERIFY((*m_app)->updater()->checker()->state() != UpdateChecker::Checking);
        QCOMPARE(proxy.logins("nora", "wrong"), attempts);
        QCOMPARE(site.requests().size(), 0);
        settings()->setProxyPassword(password);
        settings()->setProxyAuthentication(true);
        model()->startSearch(song()->id());
        QTRY_COMPARE(song()->lyricsTag(), words);
        QCOMPARE(proxy.logins("nora", "wrong"), attempts);
    }

    void anOpenProxyIsGivenNoLogin()
    {
        Site site;
        ProxyServer proxy(http);
        QVERIFY(proxy.isReady());
        useProxy(http, proxy.port(), password);
        addSongs(1);
        QTRY_COMPARE(song()->lyricsTag(), words);
        // A site that takes the proxy's part is not given one either.
        site.route("/song.html"_s,
                   LoopbackResponse::error(407).with("Proxy-Authenticate", "Basic realm=\"Tinyproxy\""));
        model()->startSearch(song()->id());
        QTRY_COMPARE(model()->activeCount(), 0);
        QVERIFY(site.requests().size() > 2);
        QVERIFY(!proxy.received().join().contains("Authorization"));
    }

    void aSiteThatTakesTheProxysPartStopsNoOtherSearch_data()
    {
        QTest::addColumn<QNetworkProxy::ProxyType>("type");
        addTextColumns("scheme", "login");
        addRow("SOCKS5", socks, "http", "");
        addRow("HTTP", http, "http", "");
        addRow("HTTP with a log-in", http, "http", password);
        addRow("HTTP, for https", http, "https", "");
    }

    void aSiteThatTakesTheProxysPartStopsNoOtherSearch()
    {
        QFETCH(QNetworkProxy::ProxyType, type);
        QFETCH(QString, scheme);
        QFETCH(QString, login);
        Site site(scheme);
        ProxyServer proxy(type, login.isEmpty() ? QString() : m_user, login);
        QVERIFY(proxy.isReady());
        useProxy(type, proxy.port(), login);
        bool isLying = true;
        site.route("/song.html"_s, [&isLying](const LoopbackRequest &) {
            return isLying ? LoopbackResponse::error(407).with("Proxy-Authenticate", "Basic realm=\"Tinyproxy\"")
                           : Site::songPage();
        });
        addSongs(1);
        QTRY_COMPARE(model()->activeCount(), 0);
        QVERIFY2(!song()->errorString().contains("proxy"_s), qPrintable(song()->errorString()));
        isLying = false;
        model()->startSearch(song()->id());
        QTRY_COMPARE(song()->lyricsTag(), words);
    }

    // A site that asks for a log-in, under the name under which the proxy does.
    void theLoginIsForTheProxyAlone()
    {
        Site site;
        ProxyServer proxy(http, m_user, password);
        QVERIFY(proxy.isReady());
        useProxy(http, proxy.port(), password);
        site.routeOthers([](const LoopbackRequest &) {
            return LoopbackResponse::error(401).with("WWW-Authenticate", "Basic realm=\"Tinyproxy\"");
        });
        LoopbackResponse elsewhere = LoopbackResponse::redirect(301, "/members.html");
        elsewhere.untilClose = true; // tinyproxy hands on unread whatever follows on an open connection
        site.route("/song.html"_s, elsewhere);
        addSongs(1);
        QTRY_COMPARE(song()->errorString(), "The server refuses to answer (HTTP 401)."_s);
        QVERIFY(site.requestCount("/members.html"_s) > 0);
        for (const LoopbackRequest &request : site.requests())
            QCOMPARE(request.header("Authorization") + request.header("Proxy-Authorization"), QByteArray());
    }

    void aDeadProxyLosesNothing_data()
    {
        QTest::addColumn<QNetworkProxy::ProxyType>("type");
        addRow("SOCKS5", socks);
        addRow("HTTP", http);
    }

    void aDeadProxyLosesNothing()
    {
        QFETCH(QNetworkProxy::ProxyType, type);
        const Site site;
        LoopbackServer gone;
        gone.stop();
        useProxy(type, Site::portOf(gone));
        addSongs(3);
        QTRY_COMPARE(model()->activeCount(), 0);
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(song(row)->errorString(), "The proxy does not take the connection."_s);
            model()->startSearch(song(row)->id());
        }
        QCOMPARE(site.requests().size(), 0);
        settings()->setProxyType(0);
        QTRY_COMPARE(model()->activeCount(), 0);
        model()->startSearch(song(2)->id());
        QTRY_COMPARE(song(2)->lyricsTag(), words);
    }

private:
    Settings *settings() const { return (*m_app)->settings(); }
    MainModel *model() const { return (*m_app)->mainModel(); }
    ModelItem *song(int row = 0) const { return model()->itemAt(row); }

    void useProxy(QNetworkProxy::ProxyType type, quint16 port, const QString &login = {})
    {
        settings()->setProxyAuthentication(!login.isEmpty());
        settings()->setProxyUsername(m_user);
        settings()->setProxyPassword(login);
        settings()->setProxyAddress("127.0.0.1"_s);
        settings()->setProxyPort(port);
        settings()->setProxyType(type == socks ? 1 : 2);
    }

    // Told apart by their names.
    void addSongs(int count)
    {
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i) {
            urls.append(m_app->folder.url("Nora Vale - Song %1.mp3"_s.arg(i)));
            QVERIFY(QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), urls.last().toLocalFile()));
        }
        model()->add(urls);
    }

    const QString m_user = QStringLiteral("nora");
    std::unique_ptr<Stage> m_app;
};

QTEST_APPLESS_MAIN(tst_Proxies)
#include "tst_proxies.moc"
