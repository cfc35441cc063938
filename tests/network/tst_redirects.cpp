// SPDX-License-Identifier: MIT
#include "network/Redirects.h"

#include <QtTest>

class tst_Redirects : public QObject
{
    Q_OBJECT

private slots:
    void target_data()
    {
        QTest::addColumn<QByteArray>("asked");
        QTest::addColumn<QByteArray>("location");
        QTest::addColumn<QByteArray>("expected");

        const QByteArray page = "http://site.example/a/b?q=1";
        QTest::newRow("absolute") << page << QByteArray("https://other.example/x")
                                  << QByteArray("https://other.example/x");
        QTest::newRow("host-relative") << page << QByteArray("/x?y=1") << QByteArray("http://site.example/x?y=1");
        QTest::newRow("path-relative") << page << QByteArray("../x") << QByteArray("http://site.example/x");
        QTest::newRow("scheme-relative") << page << QByteArray("//other.example/")
                                         << QByteArray("http://other.example/");
        QTest::newRow("upper-case scheme")
            << page << QByteArray("HTTP://other.example/") << QByteArray("http://other.example/");
        QTest::newRow("blank space around it") << page << QByteArray(" /x ") << QByteArray("http://site.example/x");
        QTest::newRow("a space and raw UTF-8")
            << page << QByteArray("/a b\xc3\xa9") << QByteArray("http://site.example/a%20b%C3%A9");
        QTest::newRow("fragment is inherited")
            << page + "#3" << QByteArray("/x") << QByteArray("http://site.example/x#3");
        QTest::newRow("encoded fragment is inherited as it is")
            << page + "#a%23b%25" << QByteArray("/x") << QByteArray("http://site.example/x#a%23b%25");
        QTest::newRow("fragment of its own")
            << page + "#3" << QByteArray("/x#4") << QByteArray("http://site.example/x#4");
        QTest::newRow("missing") << page << QByteArray() << QByteArray();
        QTest::newRow("only blank") << page << QByteArray("  ") << QByteArray();
        QTest::newRow("file") << page << QByteArray("file:///etc/passwd") << QByteArray();
        QTest::newRow("data") << page << QByteArray("data:text/html,x") << QByteArray();
        QTest::newRow("script") << page << QByteArray("javascript:alert(1)") << QByteArray();
        QTest::newRow("no host") << page << QByteArray("http:///x") << QByteArray();
        QTest::newRow("port out of range") << page << QByteArray("http://site.example:99999/") << QByteArray();
    }

    void target()
    {
        QFETCH(QByteArray, asked);
        QFETCH(QByteArray, location);
        QFETCH(QByteArray, expected);
        QCOMPARE(redirectTarget(QUrl::fromEncoded(asked), location).toEncoded(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_Redirects)
#include "tst_redirects.moc"
