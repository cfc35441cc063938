// SPDX-License-Identifier: MIT
#include "ui/ButtonImageProvider.h"

#include <QTest>

class tst_ButtonImageProvider : public QObject
{
    Q_OBJECT

private slots:
    void picturesAreChosenByTheScreen_data();
    void picturesAreChosenByTheScreen();
};

void tst_ButtonImageProvider::picturesAreChosenByTheScreen_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QSize>("requested");
    QTest::newRow("a plain screen") << "probe/1/#333333" << QSize(4, 3) << QSize();
    QTest::newRow("a little dense") << "probe/1.5/#333333" << QSize(4, 3) << QSize();
    QTest::newRow("just not dense enough") << "probe/1.95/red" << QSize(4, 3) << QSize();
    QTest::newRow("just dense enough") << "probe/1.96/red" << QSize(8, 6) << QSize();
    QTest::newRow("dense") << "probe/2/" << QSize(8, 6) << QSize();
    QTest::newRow("a ratio that is no number") << "probe/x/red" << QSize(4, 3) << QSize();
    QTest::newRow("two parts") << "probe/1" << QSize(0, 0) << QSize();
    QTest::newRow("four parts") << "probe/1/red/x" << QSize(0, 0) << QSize();
    QTest::newRow("no such picture") << "nothing/1/red" << QSize(0, 0) << QSize();
    QTest::newRow("text of 150 %") << "probe/1/red" << QSize(6, 5) << QSize(6, 5);
    QTest::newRow("text of 200 %") << "probe/1/red" << QSize(8, 6) << QSize(8, 6);
    QTest::newRow("larger than all there are") << "probe/1/red" << QSize(8, 6) << QSize(16, 12);
    QTest::newRow("no such picture in any size") << "nothing/1/red" << QSize(0, 0) << QSize(8, 6);
    QTest::newRow("out of the folder") << "..%2Fprobe/1/red" << QSize(0, 0) << QSize();
}

void tst_ButtonImageProvider::picturesAreChosenByTheScreen()
{
    QFETCH(QString, id);
    QFETCH(QSize, pixels);
    QFETCH(QSize, requested);
    ButtonImageProvider provider;
    QSize size;
    const QPixmap picture = provider.requestPixmap(id, &size, requested);
    QCOMPARE(picture.size(), pixels);
    QCOMPARE(size, pixels.isEmpty() ? size : QSize(4, 3));
}

QTEST_MAIN(tst_ButtonImageProvider)
#include "tst_buttonimageprovider.moc"
