// SPDX-License-Identifier: MIT
#include "network/Endpoints.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class tst_Endpoints : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_settingsFolder.isValid());
        QCoreApplication::setOrganizationName(QStringLiteral("VersewellTest"));
        QCoreApplication::setApplicationName(QStringLiteral("Endpoints"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder.path());
    }

    void init()
    {
        QSettings().clear();
        reloadEndpoints();
    }

    void defaultsAreUsable()
    {
        QSet<QString> keys;
        for (int i = 0; i <= static_cast<int>(Endpoint::Yandex); ++i) {
            const auto endpoint = static_cast<Endpoint>(i);
            const QUrl base = endpointBase(endpoint);
            keys.insert(endpointKey(endpoint));
            QVERIFY2(base.scheme().startsWith(QLatin1String("http")) && !base.host().isEmpty() && base.path().isEmpty(),
                     qPrintable(endpointKey(endpoint)));
            QCOMPARE(endpointExists(endpoint), endpoint != Endpoint::Maker && endpoint != Endpoint::Collector);
        }
        QCOMPARE(keys.size(), 15);
        QCOMPARE(endpointBase(Endpoint::ProxyTest), QUrl(QStringLiteral("http://example.com")));
    }

    void override_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("expected"); // empty: the default, with a warning

        QTest::newRow("loopback") << QVariant(QStringLiteral("http://127.0.0.1:8080")) << "http://127.0.0.1:8080";
        QTest::newRow("trailing slashes") << QVariant(QStringLiteral(" https://x.org// ")) << "https://x.org";
        QTest::newRow("path of its own") << QVariant(QStringLiteral("http://x.org/genius/")) << "http://x.org/genius";
        QTest::newRow("empty") << QVariant(QString()) << QString();
        QTest::newRow("file") << QVariant(QStringLiteral("file:///etc/passwd")) << QString();
        QTest::newRow("no scheme") << QVariant(QStringLiteral("x.org")) << QString();
        QTest::newRow("no host") << QVariant(QStringLiteral("http://")) << QString();
        QTest::newRow("query") << QVariant(QStringLiteral("http://x.org/?a=b")) << QString();
        QTest::newRow("bad port") << QVariant(QStringLiteral("http://x.org:banana")) << QString();
        QTest::newRow("a list") << QVariant(QStringList{QStringLiteral("http://a.org"), QStringLiteral("http://b.org")})
                                << QString();
    }

    void override()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        const QUrl defaultBase = endpointBase(Endpoint::Genius);
        if (expected.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("endpoints/Genius")));
        write(value);
        QCOMPARE(endpointBase(Endpoint::Genius), expected.isEmpty() ? defaultBase : QUrl(expected));
    }

    void url_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("nothing") << QString() << QByteArray("http://h:1/base");
        QTest::newRow("path and query") << "/p?q=a%20b#3" << QByteArray("http://h:1/base/p?q=a%20b#3");
        QTest::newRow("query only") << "?q=1" << QByteArray("http://h:1/base?q=1");
        QTest::newRow("missing slash") << "p" << QByteArray("http://h:1/base/p");
        QTest::newRow("would change the host") << "@evil.org/" << QByteArray("http://h:1/base/@evil.org/");
        QTest::newRow("an address") << "http://evil.org/" << QByteArray("http://h:1/base/http://evil.org/");
    }

    void url()
    {
        QFETCH(QString, target);
        QFETCH(QByteArray, expected);
        write(QStringLiteral("http://h:1/base"));
        QCOMPARE(endpointUrl(Endpoint::Genius, target).toEncoded(), expected);
    }

private:
    static void write(const QVariant &value)
    {
        QSettings().setValue(QStringLiteral("endpoints/Genius"), value);
        reloadEndpoints();
    }

    QTemporaryDir m_settingsFolder;
};

QTEST_GUILESS_MAIN(tst_Endpoints)
#include "tst_endpoints.moc"
