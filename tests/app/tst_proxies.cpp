// SPDX-License-Identifier: MIT
#include "app/Stage.h"

#include "support/LoopbackServer.h"
#include "support/ProxyServer.h"
#include "support/TestTable.h"

#include <QTcpSocket>

Q_DECLARE_METATYPE(QNetworkProxy::ProxyType)

namespace {

const QString user = QStringLiteral("nora");
const QString password = QStringLiteral("swordfish");

// A lyrics site that knows every song, on "localhost": the name has to be resolved by somebody. It takes the place of
// all sites of the application that is there.
class Site
{
public:
    explicit Site(const QString &scheme = QStringLiteral("http"))
    {
        for (const Endpoint endpoint : allEndpoints())
            QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(endpoint),
                                 QString(scheme + QStringLiteral("://") + address()));
        reloadEndpoints();
        m_server.route(QStringLiteral("/search.php"), [](const LoopbackRequest &request) {
            const QByteArray title = request.query.queryItemValue(QStringLiteral("q")).toUtf8();
            return LoopbackResponse::page(
                "<div class=\"list-row\" data-sorting-artist=\"Nora Vale\" data-sorting-song=\"" + title +
                "\">\n<a href=\"/song.html\" class=\"song\">x</a>\n</div>");
        });
        m_server.route(QStringLiteral("/song.html"),
                       LoopbackResponse::page("<div class=\"lyrics\" id=\"content\">la la la</div>"));
    }
    [[nodiscard]] QString address() const { return QStringLiteral("localhost:%1").arg(QUrl(m_server.base()).port()); }
    [[nodiscard]] int requests() const { return m_server.requests().size(); }
    [[nodiscard]] LoopbackServer &server() { return m_server; }

private:
    LoopbackServer m_server;
};

void setProxy(Settings *settings, QNetworkProxy::ProxyType type, quint16 port)
{
    settings->setProxyAddress(QStringLiteral("127.0.0.1"));
    settings->setProxyPort(port);
    settings->setProxyType(type == QNetworkProxy::Socks5Proxy ? 1 : 2);
}

void setLogin(Settings *settings, const QString &word)
{
    settings->setProxyAuthentication(true);
    settings->setProxyUsername(user);
    settings->setProxyPassword(word);
}

} // namespace

class tst_Proxies : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void searchesGoThroughTheProxy_data();
    void searchesGoThroughTheProxy();
    void httpsGoesThroughTheProxyWithItsLogin();
    void anHttpProxyIsGivenTheLoginInUtf8();
    void aSiteOutOfReachIsNoFaultOfTheProxy_data();
    void aSiteOutOfReachIsNoFaultOfTheProxy();
    void aRefusedLoginIsNotTriedAgain_data();
    void aRefusedLoginIsNotTriedAgain();
    void anOpenProxyIsGivenNoLogin();
    void theLoginIsForTheProxyAlone();
    void aDeadProxyLosesNothing_data();
    void aDeadProxyLosesNothing();

private:
    void addSongs(MainModel *model, int count);

    std::unique_ptr<QTemporaryDir> m_music;
};

void tst_Proxies::init()
{
    m_music = std::make_unique<QTemporaryDir>();
}

// Songs without lyrics, told apart by their names.
void tst_Proxies::addSongs(MainModel *model, int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString path = m_music->filePath(QStringLiteral("Nora Vale - Song %1.mp3").arg(i));
        QVERIFY(QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), path));
        urls.append(QUrl::fromLocalFile(path));
    }
    model->add(urls);
}

void tst_Proxies::searchesGoThroughTheProxy_data()
{
    QTest::addColumn<QNetworkProxy::ProxyType>("type");
    addTextColumns("word");
    QTest::newRow("SOCKS5") << QNetworkProxy::Socks5Proxy << QString();
    QTest::newRow("SOCKS5 with a log-in") << QNetworkProxy::Socks5Proxy << "Größe+日本"_s;
    QTest::newRow("HTTP") << QNetworkProxy::HttpProxy << QString();
    QTest::newRow("HTTP with a log-in") << QNetworkProxy::HttpProxy << password;
}

void tst_Proxies::searchesGoThroughTheProxy()
{
    QFETCH(QNetworkProxy::ProxyType, type);
    QFETCH(QString, word);
    Stage app;
    const Site site;
    ProxyServer proxy(type, word.isEmpty() ? QString() : user, word);
    QVERIFY(proxy.isReady());
    if (!word.isEmpty())
        setLogin(app->settings(), word);
    setProxy(app->settings(), type, proxy.port());
    addSongs(app->mainModel(), 1);
    QTRY_COMPARE(app->mainModel()->itemAt(0)->lyricsTag(), QStringLiteral("la la la"));
    QTRY_VERIFY2(proxy.log().contains(site.address().section(QLatin1Char(':'), 0, 0).toLatin1()),
                 proxy.log().constData());
    // The proxy was given the name, and each request went to it.
    QVERIFY(proxy.received().join().count("GET ") >= site.requests());
    const int before = site.requests();
    app->settings()->setProxyType(0);
    app->mainModel()->startSearch(app->mainModel()->itemAt(0)->id());
    const int passed = proxy.received().join().size();
    QTRY_VERIFY(site.requests() > before);
    QCOMPARE(proxy.received().join().size(), passed);
}

// The site speaks http only, so that it is enough that it is reached.
void tst_Proxies::httpsGoesThroughTheProxyWithItsLogin()
{
    Stage app;
    Site site(QStringLiteral("https"));
    ProxyServer proxy(QNetworkProxy::HttpProxy, user, password);
    QVERIFY(proxy.isReady());
    setLogin(app->settings(), password);
    setProxy(app->settings(), QNetworkProxy::HttpProxy, proxy.port());
    addSongs(app->mainModel(), 1);
    QTRY_VERIFY(site.server().mostConnections() > 0);
    QVERIFY(proxy.received().join().contains("CONNECT " + site.address().toLatin1()));
}

// RFC 7617, section 2.1; the proxies that can be started here take plain letters only.
void tst_Proxies::anHttpProxyIsGivenTheLoginInUtf8()
{
    Stage app;
    const Site site;
    const QByteArray login = "Basic " + QByteArray("nora:Größe+日本").toBase64();
    LoopbackServer proxy;
    proxy.routeOthers([&login](const LoopbackRequest &request) {
        return request.header("Proxy-Authorization") == login
                   ? LoopbackResponse::error(404)
                   : LoopbackResponse::error(407).with("Proxy-Authenticate", "Basic realm=\"x\"");
    });
    setLogin(app->settings(), "Größe+日本"_s);
    setProxy(app->settings(), QNetworkProxy::HttpProxy, static_cast<quint16>(QUrl(proxy.base()).port()));
    addSongs(app->mainModel(), 1);
    QTRY_COMPARE(app->mainModel()->itemAt(0)->processState(), ModelItem::ProcessComplete);
    QVERIFY(!app->mainModel()->itemAt(0)->errorString().contains("proxy"_s));
}

void tst_Proxies::aSiteOutOfReachIsNoFaultOfTheProxy_data()
{
    addTextColumns("error");
    QTest::addColumn<char>("reply"); // RFC 1928, section 6
    addRow("no network", "Network unreachable", '\3');
    addRow("too far", "TTL expired", '\6');
}

void tst_Proxies::aSiteOutOfReachIsNoFaultOfTheProxy()
{
    QFETCH(char, reply);
    Stage app;
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
    setProxy(app->settings(), QNetworkProxy::Socks5Proxy, proxy.serverPort());
    addSongs(app->mainModel(), 1);
    QTRY_COMPARE(app->mainModel()->activeCount(), 0);
    QTEST(app->mainModel()->itemAt(0)->errorString(), "error");
}

void tst_Proxies::aRefusedLoginIsNotTriedAgain_data()
{
    QTest::addColumn<QNetworkProxy::ProxyType>("type");
    QTest::addColumn<QString>("scheme");
    QTest::newRow("SOCKS5") << QNetworkProxy::Socks5Proxy << "http";
    QTest::newRow("HTTP") << QNetworkProxy::HttpProxy << "http";
    QTest::newRow("HTTP, for https") << QNetworkProxy::HttpProxy << "https";
}

void tst_Proxies::aRefusedLoginIsNotTriedAgain()
{
    constexpr int songs = 30;
    constexpr int inFlight = 6; // connections to one site
    QFETCH(QNetworkProxy::ProxyType, type);
    QFETCH(QString, scheme);
    Stage app;
    const Site site(scheme);
    ProxyServer proxy(type, user, password);
    QVERIFY(proxy.isReady());
    setLogin(app->settings(), QStringLiteral("wrong"));
    setProxy(app->settings(), type, proxy.port());
    addSongs(app->mainModel(), songs);
    QTRY_COMPARE_WITH_TIMEOUT(app->mainModel()->activeCount(), 0, 20000);
    for (int row = 0; row < songs; ++row)
        QCOMPARE(app->mainModel()->itemAt(row)->errorString(),
                 QStringLiteral("The proxy refuses the user name or the password."));
    const int attempts = proxy.logins("nora", "wrong");
    QVERIFY2(attempts >= 1 && attempts <= inFlight, QByteArray::number(attempts).constData());
    QCOMPARE(site.requests(), 0);
    if (scheme == QLatin1String("https"))
        return; // the site speaks http only

    app->settings()->setProxyPassword(password);
    app->mainModel()->startSearch(app->mainModel()->itemAt(0)->id());
    QTRY_COMPARE(app->mainModel()->itemAt(0)->lyricsTag(), QStringLiteral("la la la"));
    QCOMPARE(proxy.logins("nora", "wrong"), attempts);
}

void tst_Proxies::anOpenProxyIsGivenNoLogin()
{
    Stage app;
    Site site;
    ProxyServer proxy(QNetworkProxy::HttpProxy);
    QVERIFY(proxy.isReady());
    setLogin(app->settings(), password);
    setProxy(app->settings(), QNetworkProxy::HttpProxy, proxy.port());
    addSongs(app->mainModel(), 1);
    QTRY_COMPARE(app->mainModel()->itemAt(0)->lyricsTag(), QStringLiteral("la la la"));
    // A site that takes the proxy's part is not given one either.
    LoopbackResponse asking = LoopbackResponse::error(407).with("Proxy-Authenticate", "Basic realm=\"Tinyproxy\"");
    site.server().route(QStringLiteral("/song.html"), asking);
    app->mainModel()->startSearch(app->mainModel()->itemAt(0)->id());
    QTRY_COMPARE(app->mainModel()->activeCount(), 0);
    QVERIFY(site.requests() > 2);
    QVERIFY(!proxy.received().join().contains("Authorization"));
}

// A site that asks for a log-in, under the name under which the proxy does.
void tst_Proxies::theLoginIsForTheProxyAlone()
{
    Stage app;
    Site site;
    ProxyServer proxy(QNetworkProxy::HttpProxy, user, password);
    QVERIFY(proxy.isReady());
    setLogin(app->settings(), password);
    setProxy(app->settings(), QNetworkProxy::HttpProxy, proxy.port());
    addSongs(app->mainModel(), 1);
    QTRY_COMPARE(app->mainModel()->itemAt(0)->lyricsTag(), QStringLiteral("la la la"));
    site.server().routeOthers([](const LoopbackRequest &) {
        return LoopbackResponse::error(401).with("WWW-Authenticate", "Basic realm=\"Tinyproxy\"");
    });
    LoopbackResponse elsewhere = LoopbackResponse::redirect(301, "/members.html");
    elsewhere.untilClose = true; // tinyproxy hands on unread whatever follows on an open connection
    site.server().route(QStringLiteral("/song.html"), elsewhere);
    app->mainModel()->startSearch(app->mainModel()->itemAt(0)->id());
    QTRY_COMPARE(app->mainModel()->itemAt(0)->errorString(),
                 QStringLiteral("The server refuses to answer (HTTP 401)."));
    QVERIFY(site.server().requestCount(QStringLiteral("/members.html")) > 0);
    for (const LoopbackRequest &request : site.server().requests())
        QCOMPARE(request.header("Authorization") + request.header("Proxy-Authorization"), QByteArray());
}

void tst_Proxies::aDeadProxyLosesNothing_data()
{
    QTest::addColumn<QNetworkProxy::ProxyType>("type");
    QTest::newRow("SOCKS5") << QNetworkProxy::Socks5Proxy;
    QTest::newRow("HTTP") << QNetworkProxy::HttpProxy;
}

void tst_Proxies::aDeadProxyLosesNothing()
{
    QFETCH(QNetworkProxy::ProxyType, type);
    Stage app;
    const Site site;
    QTcpServer gone;
    QVERIFY(gone.listen(QHostAddress::LocalHost));
    const quint16 port = gone.serverPort();
    gone.close();
    setProxy(app->settings(), type, port);
    addSongs(app->mainModel(), 3);
    QTRY_COMPARE(app->mainModel()->activeCount(), 0);
    for (int row = 0; row < 3; ++row) {
        ModelItem *item = app->mainModel()->itemAt(row);
        QCOMPARE(item->errorString(), QStringLiteral("The proxy does not take the connection."));
        app->mainModel()->startSearch(item->id());
    }
    QCOMPARE(site.requests(), 0);
    app->settings()->setProxyType(0);
    QTRY_COMPARE(app->mainModel()->activeCount(), 0);
    app->mainModel()->startSearch(app->mainModel()->itemAt(2)->id());
    QTRY_COMPARE(app->mainModel()->itemAt(2)->lyricsTag(), QStringLiteral("la la la"));
}

QTEST_APPLESS_MAIN(tst_Proxies)
#include "tst_proxies.moc"
