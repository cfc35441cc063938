// SPDX-License-Identifier: MIT
#include "network/Redirects.h"
#include "support/TestTable.h"

#include <QUrl>

class tst_Redirects : public QObject
{
    Q_OBJECT

private slots:
    // The page that was asked for is http://site.example/a/b?q=1 with this fragment.
    void target_data()
    {
        addTextColumns("fragment", "location", "expected");
        addRow("absolute", "", "https://other.example/x", "https://other.example/x");
        addRow("host-relative", "", "/x?y=1", "http://site.example/x?y=1");
        addRow("path-relative", "", "../x", "http://site.example/x");
        addRow("scheme-relative", "", "//other.example/", "http://other.example/");
        addRow("upper-case scheme", "", "HTTP://other.example/", "http://other.example/");
        addRow("blank space around it", "", " /x ", "http://site.example/x");
        addRow("a space and raw UTF-8", "", "/a b\xc3\xa9", "http://site.example/a%20b%C3%A9");
        addRow("fragment is inherited as it is", "#a%23b%25", "/x", "http://site.example/x#a%23b%25");
        addRow("fragment of its own", "#3", "/x#4", "http://site.example/x#4");
        for (const char *none : {"", "  ", "file:///etc/passwd", "data:text/html,x", "javascript:alert(1)", "http:///x",
                                 "http://site.example:99999/"})
            addRow(none, "", none, "");
    }

    void target()
    {
        QFETCH(QString, fragment);
        QFETCH(QString, location);
        const QUrl asked = QUrl::fromEncoded("http://site.example/a/b?q=1" + fragment.toLatin1());
        QTEST(QString::fromLatin1(redirectTarget(asked, location.toUtf8()).toEncoded()), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_Redirects)
#include "tst_redirects.moc"
