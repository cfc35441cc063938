// SPDX-License-Identifier: MIT
#include "updates/UpdateInformation.h"

#include "support/TestTable.h"

#include <QtTest>

namespace {

QByteArray version(const QByteArray &number, const QByteArray &more = {})
{
    return "<VersionInfo><current>" + number + "</current>" + more + "</VersionInfo>";
}

QByteArray document(const QByteArray &inside)
{
    return "<?xml version=\"1.0\"?><UpdateInfo>" + inside + "</UpdateInfo>";
}

QByteArray nested(const QByteArray &name, int depth)
{
    return ('<' + name + '>').repeated(depth) + ("</" + name + '>').repeated(depth);
}

QByteArray manyAttributes(int count)
{
    QByteArray tag = "<current";
    for (int i = 0; i < count; ++i)
        tag += " a" + QByteArray::number(i) + " =\n'1'";
    return tag + ">2.0</current>";
}

QStringList numbers(const ReleasedVersions &versions)
{
    QStringList found;
    for (const ReleasedVersion &one : versions)
        found.append(one.version);
    return found;
}

} // namespace

class tst_UpdateInformation : public QObject
{
    Q_OBJECT

private slots:
    void allOfAVersionIsRead()
    {
        const ReleasedVersions versions = readUpdateInformation(document(version(
            " 2.0\n", "<url>\nhttps://a.example/b?c=1&amp;d<mac>x</mac></url><changes>- <b>one</b>\n- &lt;two&gt; "
                      "</changes><new><current>9.9</current></new><date>24/12/2026</date><signature>\n ab+/=\n"
                      "</signature>")));
        QCOMPARE(versions.size(), 1);
        const ReleasedVersion &read = versions.first();
        QCOMPARE(read.version, "2.0"_s);
        QCOMPARE(read.url, "https://a.example/b?c=1&d"_s);
        QCOMPARE(read.changes, "- one\n- <two> "_s);
        QCOMPARE(read.date, QDate(2026, 12, 24));
        QCOMPARE(read.signature, QByteArray("ab+/="));
    }

    void versionsAreFound_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("found");
        const QByteArray three = version("1.10") + version("1.9") + version("1.2.0");
        const QByteArray entities = "<!DOCTYPE a [<!ENTITY b \"2\"><!ENTITY c \"&b;&b;&b;\">]>";
        addRow("sorted, the newest last", document(three), QStringList{"1.2.0"_s, "1.9"_s, "1.10"_s});
        addRow("without a root", three, QStringList{"1.2.0"_s, "1.9"_s, "1.10"_s});
        addRow("what is no version is left out", document(version("2.<b/>0") + version("<i>3</i>") + version("2 beta")),
               QStringList{"2.0"_s});
        addRow("what is unknown is left out", document("<Ad x='1'>" + version("9.9") + "</Ad>text" + version("2.0")),
               QStringList{"2.0"_s});
        addRow("lines of equals signs", document(version("2.0", "<changes>" + QByteArray(500, '=') + "</changes>")),
               QStringList{"2.0"_s});
        addRow("64 attributes", document("<VersionInfo>" + manyAttributes(64) + "</VersionInfo>"),
               QStringList{"2.0"_s});
        addRow("65 attributes", document("<VersionInfo>" + manyAttributes(65) + "</VersionInfo>"), QStringList());
        addRow("nested deeply", document(version("2.0", "<changes>" + nested("a", 100000) + "</changes>")),
               QStringList{"2.0"_s});
        addRow("more than a thousand",
               document(version("3.0") + version("1.0").repeated(999) + version("0.9").repeated(9)),
               QStringList(QVector<QString>(999, "1.0"_s).toList()) << "3.0"_s);
        addRow("empty", QByteArray(), QStringList());
        addRow("a page", QByteArray("<html><body>404</body></html>"), QStringList());
        addRow("cut off", document(three).chopped(5), QStringList());
        addRow("something behind the root", document(three) + "<more/>", QStringList());
        addRow("entities of its own", entities + document(version("&c;.0")).mid(21), QStringList());
        addRow("a document type in the middle", document(three + "<!DOCTYPE a>"), QStringList());
    }

    void versionsAreFound()
    {
        QFETCH(QByteArray, text);
        QTEST(numbers(readUpdateInformation(text)), "found");
    }
};

QTEST_GUILESS_MAIN(tst_UpdateInformation)
#include "tst_updateinformation.moc"
