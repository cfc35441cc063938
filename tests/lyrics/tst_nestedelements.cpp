// SPDX-License-Identifier: MIT
#include "PlainElements.h"
#include "RandomText.h"
#include "lyrics/NestedElements.h"
#include "support/TestTable.h"

#include <QTest>

class tst_NestedElements : public QObject
{
    Q_OBJECT

private slots:
    void countsLikeThePlainExpression()
    {
        RandomText pages("<div </div < > </ <DIV </span> x"_s.split(QLatin1Char(' ')));
        for (int i = 0; i < 3000; ++i) {
            const QString page = pages.next(30);
            const NestedElements divs(page, "div"_s);
            for (int at = 0; at < page.size(); ++at)
                QVERIFY2(divs.closingTag(at) == countedClosingTag(page, "div"_s, at), qPrintable(page));
        }
    }
};

QTEST_APPLESS_MAIN(tst_NestedElements)
#include "tst_nestedelements.moc"
