// SPDX-License-Identifier: MIT
#include "network/Redirects.h"
#include "network/RetryAfter.h"
#include "support/TestTable.h"

#include <QDateTime>
#include <QUrl>

class tst_Headers : public QObject
{
    Q_OBJECT

private slots:
    // The page that was asked for is http://site.example/a/b?q=1 with this fragment.
    void location_data()
    {
        addTextColumns("fragment", "location", "expected");
        addRow("absolute", "", "HTTPS://other.example/x", "https://other.example/x");
        addRow("host-relative", "", " /x?y=1 ", "http://site.example/x?y=1");
        addRow("path-relative", "", "../x", "http://site.example/x");
        addRow("scheme-relative", "", "//other.example/", "http://other.example/");
        addRow("a space and raw UTF-8", "", "/a b\xc3\xa9", "http://site.example/a%20b%C3%A9");
        addRow("fragment is inherited as it is", "#a%23b%25", "/x", "http://site.example/x#a%23b%25");
        addRow("fragment of its own", "#3", "/x#4", "http://site.example/x#4");
        for (const char *none :
             {"  ", "file:///etc/passwd", "data:text/html,x", "http:///x", "http://a.example:99999/"})
            addRow(none, "", none, "");
    }

    void location()
    {
        QFETCH(QString, fragment);
        QFETCH(QString, location);
        const QUrl asked = QUrl::fromEncoded("http://site.example/a/b?q=1" + fragment.toLatin1());
        QTEST(QString::fromLatin1(redirectTarget(asked, location.toUtf8()).toEncoded()), "expected");
    }

    // It is Sunday, 1994-11-06 08:49:37 UTC. No pause is 0 seconds.
    void retryAfter_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<int>("seconds");
        const auto row = [](const char *name, const char *header, int seconds) {
            addRow(name, QByteArray(header), seconds);
        };
        row("seconds", " 120 ", 120);
        row("ten minutes at most", "601", 600);
        row("more than a number holds", "99999999999999999999", 600);
        for (const char *none : {"", "0", "-30", "1.5", "soon"})
            row(none, none, 0);
        row("date", "Sun, 06 Nov 1994 08:50:07 GMT", 30);
        row("RFC 850 date", "Sunday, 06-Nov-94 08:50:07 GMT", 30);
        row("asctime date", "Sun Nov  6 08:50:07 1994", 30);
        row("far date", "Mon, 06 Nov 1995 08:49:37 GMT", 600);
        row("RFC 850 date in the next century", "Monday, 06-Nov-30 08:49:37 GMT", 600);
        row("past date", "Sun, 06 Nov 1994 08:49:36 GMT", 0);
        row("a day that does not exist", "Thu, 31 Nov 1994 08:50:07 GMT", 0);
    }

    void retryAfter()
    {
        QFETCH(QByteArray, header);
        const QDateTime now({1994, 11, 6}, {8, 49, 37}, Qt::UTC);
        QTEST(static_cast<int>(::retryAfter(header, now).value_or(std::chrono::seconds(0)).count()), "seconds");
    }
};

QTEST_APPLESS_MAIN(tst_Headers)
#include "tst_headers.moc"
