// SPDX-License-Identifier: MIT
#include "ui/MenuStyle.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

class tst_MenuStyle : public QObject
{
    Q_OBJECT

private slots:
    void linesAreSeen_data();
    void linesAreSeen();
};

void tst_MenuStyle::linesAreSeen_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::newRow("light") << QColor(0xef, 0xf0, 0xf1);
    QTest::newRow("dark") << QColor(0x2b, 0x2b, 0x2b);
}

// A menu that is shown takes the next palette, too.
void tst_MenuStyle::linesAreSeen()
{
    QFETCH(QColor, ground);
    QApplication::setStyle(QStringLiteral("fusion"));
    MenuStyle::install();
    QMenu menu;
    menu.addAction(QStringLiteral("above"));
    QAction *separator = menu.addSeparator();
    menu.addAction(QStringLiteral("below"));
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    QApplication::setPalette(QPalette(ground));
    const QImage picture = menu.grab().toImage();
    const QRect place = menu.actionGeometry(separator);
    const auto distance = [&picture](QPoint first, QPoint second) {
        return qAbs(picture.pixelColor(first).lightness() - picture.pixelColor(second).lightness());
    };
    const QPoint inside(3, place.center().y()); // beside the separator
    QVERIFY(distance({0, inside.y()}, inside) > 40);
    QVERIFY(distance({picture.width() / 2, picture.height() - 1}, inside) > 40);
    QVERIFY(distance(place.center(), inside) > 30);
}

QTEST_MAIN(tst_MenuStyle)
#include "tst_menustyle.moc"
