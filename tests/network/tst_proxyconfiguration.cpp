// SPDX-License-Identifier: MIT
#include "network/ProxyConfiguration.h"

#include <QTest>

Q_DECLARE_METATYPE(ProxyConfiguration)

class tst_ProxyConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void aProxyIsMadeOfWhatIsSaid_data()
    {
        QTest::addColumn<ProxyConfiguration>("said");
        QTest::addColumn<QNetworkProxy>("expected");
        const QString host = QStringLiteral("proxy.example");
        const QString user = QStringLiteral("nora");
        const QString word = QStringLiteral("swordfish");
        const QNetworkProxy none(QNetworkProxy::NoProxy);
        const QNetworkProxy socks(QNetworkProxy::Socks5Proxy, host, 1080);
        QTest::newRow("nothing") << ProxyConfiguration() << none;
        QTest::newRow("none, though an address is there")
            << ProxyConfiguration{0, host, 1080, false, {}, {}} << QNetworkProxy(QNetworkProxy::NoProxy, host, 1080);
        QTest::newRow("SOCKS5") << ProxyConfiguration{1, host, 1080, false, {}, {}} << socks;
        QTest::newRow("HTTP with a log-in") << ProxyConfiguration{2, host, 65535, true, user, word}
                                            << QNetworkProxy(QNetworkProxy::HttpProxy, host, 65535, user, word);
        QTest::newRow("credentials that are not to be sent")
            << ProxyConfiguration{1, host, 1080, false, user, word} << socks;
        QTest::newRow("a password without a user name") << ProxyConfiguration{1, host, 1080, true, {}, word} << socks;
        QTest::newRow("a user name without a password") << ProxyConfiguration{1, host, 1080, true, user, {}}
                                                        << QNetworkProxy(QNetworkProxy::Socks5Proxy, host, 1080, user);
        for (const int type : {1, 2})
            QTest::addRow("type %d without an address", type)
                << ProxyConfiguration{type, {}, 1080, true, user, word} << QNetworkProxy();
        for (const int type : {-1, 3, 2147483647})
            QTest::addRow("type %d without a meaning", type)
                << ProxyConfiguration{type, {}, 0, true, user, word}
                << QNetworkProxy(QNetworkProxy::NoProxy, {}, 0, user, word);
    }

    void aProxyIsMadeOfWhatIsSaid()
    {
        QFETCH(ProxyConfiguration, said);
        QFETCH(QNetworkProxy, expected);
        const QNetworkProxy made = said.toProxy();
        QCOMPARE(made.type(), expected.type());
        QCOMPARE(made.hostName(), expected.hostName());
        QCOMPARE(made.port(), expected.port());
        QCOMPARE(made.user(), expected.user());
        QCOMPARE(made.password(), expected.password());
    }
};

QTEST_GUILESS_MAIN(tst_ProxyConfiguration)
#include "tst_proxyconfiguration.moc"
