// SPDX-License-Identifier: MIT
#include "network/RetryAfter.h"

#include <QtTest>

class tst_RetryAfter : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<int>("seconds"); // 0: no pause

        // It is Sunday, 1994-11-06 08:49:37 UTC.
        QTest::newRow("seconds") << QByteArray("120") << 120;
        QTest::newRow("blank space around them") << QByteArray(" 5 ") << 5;
        QTest::newRow("ten minutes at most") << QByteArray("601") << 600;
        QTest::newRow("more than a number holds") << QByteArray("99999999999999999999") << 600;
        QTest::newRow("zero") << QByteArray("0") << 0;
        QTest::newRow("negative") << QByteArray("-30") << 0;
        QTest::newRow("fraction") << QByteArray("1.5") << 0;
        QTest::newRow("missing") << QByteArray() << 0;
        QTest::newRow("words") << QByteArray("soon") << 0;
        QTest::newRow("date") << QByteArray("Sun, 06 Nov 1994 08:50:07 GMT") << 30;
        QTest::newRow("RFC 850 date") << QByteArray("Sunday, 06-Nov-94 08:50:07 GMT") << 30;
        QTest::newRow("asctime date") << QByteArray("Sun Nov  6 08:50:07 1994") << 30;
        QTest::newRow("far date") << QByteArray("Mon, 06 Nov 1995 08:49:37 GMT") << 600;
        QTest::newRow("RFC 850 date in the next century") << QByteArray("Monday, 06-Nov-30 08:49:37 GMT") << 600;
        QTest::newRow("past date") << QByteArray("Sun, 06 Nov 1994 08:49:36 GMT") << 0;
        QTest::newRow("a day that does not exist") << QByteArray("Thu, 31 Nov 1994 08:50:07 GMT") << 0;
    }

    void reads()
    {
        QFETCH(QByteArray, header);
        QFETCH(int, seconds);
        const QDateTime now({1994, 11, 6}, {8, 49, 37}, Qt::UTC);
        QCOMPARE(retryAfter(header, now).value_or(std::chrono::seconds(0)).count(), std::chrono::seconds::rep(seconds));
    }
};

QTEST_GUILESS_MAIN(tst_RetryAfter)
#include "tst_retryafter.moc"
