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
    QTest::newRow("a plain screen") << "probe/1/#333333" << QSize(4, 3);
    QTest::newRow("a little dense") << "probe/1.5/#333333" << QSize(4, 3);
    QTest::newRow("just not dense enough") << "probe/1.95/red" << QSize(4, 3);
    QTest::newRow("just dense enough") << "probe/1.96/red" << QSize(8, 6);
    QTest::newRow("dense") << "probe/2/" << QSize(8, 6);
    QTest::newRow("a ratio that is no number") << "probe/x/red" << QSize(4, 3);
    QTest::newRow("two parts") << "probe/1" << QSize(0, 0);
    QTest::newRow("four parts") << "probe/1/red/x" << QSize(0, 0);
    QTest::newRow("no such picture") << "nothing/1/red" << QSize(0, 0);
    QTest::newRow("out of the folder") << "..%2Fprobe/1/red" << QSize(0, 0);
}

void tst_ButtonImageProvider::picturesAreChosenByTheScreen()
{
    QFETCH(QString, id);
    QFETCH(QSize, pixels);
    ButtonImageProvider provider;
    QSize size;
    const QPixmap picture = provider.requestPixmap(id, &size, QSize());
    QCOMPARE(picture.size(), pixels);
    QCOMPARE(size, pixels.isEmpty() ? size : QSize(4, 3));
}

QTEST_MAIN(tst_ButtonImageProvider)
#include "tst_buttonimageprovider.moc"
