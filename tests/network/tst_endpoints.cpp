// SPDX-License-Identifier: MIT
#include "network/Endpoints.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QRegularExpression>
#include <QSettings>

class tst_Endpoints : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_folder.holdSettings(); }

    void defaultsAreUsable()
    {
        QSet<QString> keys;
        for (const Endpoint endpoint : allEndpoints()) {
            const QUrl base = endpointBase(endpoint);
            keys.insert(endpointKey(endpoint));
            QVERIFY2(base.scheme().startsWith("http"_s) && !base.host().isEmpty() && base.path().isEmpty(),
                     qPrintable(endpointKey(endpoint)));
            QCOMPARE(endpointExists(endpoint), endpoint != Endpoint::Maker && endpoint != Endpoint::Collector);
        }
        QCOMPARE(keys.size(), 15);
        QCOMPARE(endpointBase(Endpoint::ProxyTest), QUrl("http://example.com"_s));
    }

    void override_data()
    {
        QTest::addColumn<QVariant>("value");
        addTextColumns("expected"); // empty: the default, with a warning
        addRow("a list", QVariant(QStringList{"http://a.org"_s, "http://b.org"_s}), "");
        addRow("trailing slashes", QVariant(" https://x.org:8080// "_s), "https://x.org:8080");
        addRow("path of its own", QVariant("http://x.org/genius/"_s), "http://x.org/genius");
        for (const char *bad : {"", "file:///etc/passwd", "x.org", "http://", "http://x.org/?a=b", "http://x.org:no"})
            addRow(bad, QVariant(QString::fromLatin1(bad)), "");
    }

    void override()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        QSettings().clear();
        reloadEndpoints();
        const QUrl defaultBase = endpointBase(Endpoint::Genius);
        if (expected.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("endpoints/Genius"_s));
        write(value);
        QCOMPARE(endpointBase(Endpoint::Genius), expected.isEmpty() ? defaultBase : QUrl(expected));
    }

    void url_data()
    {
        addTextColumns("target", "expected");
        addRow("nothing", "", "http://h:1/base");
        addRow("path and query", "/p?q=a%20b#3", "http://h:1/base/p?q=a%20b#3");
        addRow("query only", "?q=1", "http://h:1/base?q=1");
        addRow("would change the host", "@evil.org/", "http://h:1/base/@evil.org/");
        addRow("an address", "http://evil.org/", "http://h:1/base/http://evil.org/");
    }

    void url()
    {
        QFETCH(QString, target);
        write("http://h:1/base"_s);
        QTEST(QString::fromLatin1(endpointUrl(Endpoint::Genius, target).toEncoded()), "expected");
    }

private:
    static void write(const QVariant &value)
    {
        QSettings().setValue("endpoints/Genius"_s, value);
        reloadEndpoints();
    }

    TestFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_Endpoints)
#include "tst_endpoints.moc"
