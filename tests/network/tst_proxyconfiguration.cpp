// SPDX-License-Identifier: MIT
#include "network/ProxyConfiguration.h"
#include "support/TestTable.h"

Q_DECLARE_METATYPE(ProxyConfiguration)

class tst_ProxyConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void aProxyIsMadeOfWhatIsSaid_data()
    {
        QTest::addColumn<ProxyConfiguration>("said");
        QTest::addColumn<QNetworkProxy>("expected");
        const QString host = "proxy.example"_s;
        const QString user = "nora"_s;
        const QString word = "swordfish"_s;
        const QNetworkProxy socks(QNetworkProxy::Socks5Proxy, host, 1080);
        const QNetworkProxy http(QNetworkProxy::HttpProxy, host, 65535, user, word);
        addRow("nothing", ProxyConfiguration(), QNetworkProxy(QNetworkProxy::NoProxy));
        addRow("SOCKS5", ProxyConfiguration{1, host, 1080, false, {}, {}}, socks);
        addRow("HTTP with a log-in", ProxyConfiguration{2, host, 65535, true, user, word}, http);
        addRow("credentials that are not to be sent", ProxyConfiguration{1, host, 1080, false, user, word}, socks);
        addRow("a password without a user name", ProxyConfiguration{1, host, 1080, true, {}, word}, socks);
        addRow("SOCKS5 without an address", ProxyConfiguration{1, {}, 1080, true, user, word}, QNetworkProxy());
        addRow("a type without a meaning", ProxyConfiguration{3, host, 0, false, {}, {}},
               QNetworkProxy(QNetworkProxy::NoProxy, host));
    }

    void aProxyIsMadeOfWhatIsSaid()
    {
        QFETCH(ProxyConfiguration, said);
        QFETCH(QNetworkProxy, expected);
        QVERIFY(said.toProxy() == expected);
    }
};

QTEST_GUILESS_MAIN(tst_ProxyConfiguration)
#include "tst_proxyconfiguration.moc"
