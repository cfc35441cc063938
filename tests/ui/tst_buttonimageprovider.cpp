// SPDX-License-Identifier: MIT
#include "ui/ButtonImageProvider.h"

#include "support/TestTable.h"

class tst_ButtonImageProvider : public QObject
{
    Q_OBJECT

private slots:
    void picturesAreChosenByTheScreen_data()
    {
        const QSize none(0, 0);
        const QSize usual(4, 3);
        const QSize large(8, 6);
        addTextColumns("id");
        QTest::addColumn<QSize>("pixels");
        QTest::addColumn<QSize>("requested");
        addRow("a plain screen", "probe/1/#333333", usual, QSize());
        addRow("just not dense enough", "probe/1.95/red", usual, QSize());
        addRow("just dense enough", "probe/1.96/red", large, QSize());
        addRow("a ratio that is no number", "probe/x/red", usual, QSize());
        addRow("two parts", "probe/1", none, QSize());
        addRow("four parts", "probe/1/red/x", none, QSize());
        addRow("no such picture", "nothing/1/red", none, large);
        addRow("text of 150 %", "probe/1/red", QSize(6, 5), QSize(6, 5));
        addRow("larger than all there are", "probe/1/red", large, QSize(16, 12));
        addRow("out of the folder", "..%2Fprobe/1/red", none, QSize());
    }

    void picturesAreChosenByTheScreen()
    {
        QFETCH(QString, id);
        QFETCH(QSize, pixels);
        QFETCH(QSize, requested);
        ButtonImageProvider provider;
        QSize size;
        QCOMPARE(provider.requestPixmap(id, &size, requested).size(), pixels);
        QVERIFY(pixels.isEmpty() || size == QSize(4, 3));
    }
};

QTEST_MAIN(tst_ButtonImageProvider)
#include "tst_buttonimageprovider.moc"
