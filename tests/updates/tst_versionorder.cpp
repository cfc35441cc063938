// SPDX-License-Identifier: MIT
#include "updates/VersionOrder.h"

#include "support/TestTable.h"

#include <QtTest>

class tst_VersionOrder : public QObject
{
    Q_OBJECT

private slots:
    void oneIsNewer_data()
    {
        addTextColumns("newer", "older");
        addRow("numbers, not texts", "1.10"_s, "1.9"_s);
        addRow("the first part decides", "2.0"_s, "1.9.9"_s);
        addRow("one that goes on", "1.2.0"_s, "1.2"_s);
        addRow("parts above 127", "1.200"_s, "1.100"_s);
        addRow("parts count modulo 256", "1.5"_s, "1.260"_s);
        addRow("however long", "1.1"_s, "1.79228162514264337593543950336"_s);
        addRow("an empty part is a part", "1..1"_s, "1.0.0"_s);
        addRow("nonsense is zero", "1.1"_s, "1.x"_s);
    }

    void oneIsNewer()
    {
        QFETCH(QString, newer);
        QFETCH(QString, older);
        QVERIFY(isNewerVersion(newer, older));
        QVERIFY(!isNewerVersion(older, newer));
        QVERIFY(!isNewerVersion(newer, newer));
    }

    void aNameHoldsAVersion()
    {
        QCOMPARE(versionInName("versewell_2.0.1-3.4.deb.part"_s), "2.0.1"_s); // the first of two
        QCOMPARE(versionInName("versewell2.deb"_s), ""_s);
    }
};

QTEST_GUILESS_MAIN(tst_VersionOrder)
#include "tst_versionorder.moc"
