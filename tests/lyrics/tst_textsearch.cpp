// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "SitePages.h"
#include "lyrics/providers/TextSearch.h"
#include "support/TestTable.h"

#include <QTest>

class tst_TextSearch : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatPlainSearchFinds()
    {
        RandomText texts("a b ab aab ы 🎵"_s.split(QLatin1Char(' ')));
        for (int i = 0; i < 3000; ++i) {
            const QString text = texts.next(20);
            const QString part = texts.next(4);
            QVERIFY2(holdsText(text, part) == text.contains(part), qPrintable(text + QLatin1Char('|') + part));
            if (!part.isEmpty())
                QCOMPARE(withoutText(text, part), QString(text).replace(part, QString()));
        }
    }

    void copesWithTextsThatNearlyMatchEverywhere_data()
    {
        QTest::addColumn<QString>("part");
        const QString most = repeated("a", hostileSize / 3);
        addRow("but for the first character", QLatin1Char('b') + most);
        addRow("but for the last character", most + QLatin1Char('b'));
        addRow("but for the middle", most + QLatin1Char('b') + most);
    }

    // A search that compares anew at each place takes minutes for these.
    void copesWithTextsThatNearlyMatchEverywhere()
    {
        QFETCH(QString, part);
        const QString text = repeated("a");
        QVERIFY(!holdsText(text, part));
        QCOMPARE(withoutText(text, part), text);
        QCOMPARE(withoutText(text + part + text, part).size(), 2 * text.size());
    }
};

QTEST_APPLESS_MAIN(tst_TextSearch)
#include "tst_textsearch.moc"
