// SPDX-License-Identifier: MIT
#include "ui/MenuStyle.h"

#include "support/TestTable.h"
#include "ui/Legibility.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOption>

namespace {

const QColor lightGround(0xef, 0xf0, 0xf1);
const QColor darkGround(0x2b, 0x2b, 0x2b);

// The area that the arrow upwards of a spin box covers.
int arrowInk(QSpinBox &box)
{
    QStyleOptionSpinBox option;
    option.initFrom(&box);
    option.subControls = QStyle::SC_All;
    const QRect up = box.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &box);
    const QImage picture = box.grab(up.adjusted(2, 2, -2, -2)).toImage();
    int ink = 0;
    for (int place = 0; place < picture.width() * picture.height(); ++place)
        ink += picture.pixelColor(place % picture.width(), place / picture.width()).lightness() < 130;
    return ink;
}

} // namespace

class tst_MenuStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setStyle("fusion"_s);
        MenuStyle::install();
    }

    void linesAreSeen_data()
    {
        QTest::addColumn<QColor>("ground");
        addRow("light", lightGround);
        addRow("dark", darkGround);
    }

    // A menu that is shown takes the next palette, too.
    void linesAreSeen()
    {
        QFETCH(QColor, ground);
        QMenu menu;
        menu.addAction("above"_s);
        QAction *separator = menu.addSeparator();
        menu.addAction("below"_s);
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

    // Without a theme links are of a pure blue on any ground.
    void linksAreRead()
    {
        for (const QColor &ground : {lightGround, darkGround, QColor(Qt::black)}) {
            QPalette palette(ground);
            QApplication::style()->polish(palette);
            for (const auto role : {QPalette::Base, QPalette::Window})
                QVERIFY(Legibility::contrast(palette.color(QPalette::Link), palette.color(role)) >= 4.5);
        }
        QPalette light(lightGround);
        const QColor blue = light.color(QPalette::Link);
        QApplication::style()->polish(light);
        QCOMPARE(light.color(QPalette::Link), blue); // it could be read
    }

    void outlinesAreSeenInBlackAndWhite_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QColor>("ground");
        addRow("white on black", QColor(Qt::white), QColor(Qt::black));
        addRow("black on white", QColor(Qt::black), QColor(Qt::white));
    }

    void outlinesAreSeenInBlackAndWhite()
    {
        QFETCH(QColor, ink);
        QFETCH(QColor, ground);
        QPalette palette(ink, ground, ink, ground, ground, ink, ink, ground, ground);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, ground);
        QApplication::style()->polish(palette);
        QVERIFY(Legibility::contrast(palette.color(QPalette::Disabled, QPalette::WindowText), ground) >= 3);
        QCheckBox box;
        QLineEdit field;
        QPushButton button;
        for (QWidget *widget :
             {static_cast<QWidget *>(&box), static_cast<QWidget *>(&field), static_cast<QWidget *>(&button)}) {
            widget->setPalette(palette);
            widget->resize(widget->sizeHint());
            QStyleOptionButton option;
            option.initFrom(widget);
            const QRect area = widget == &box ? box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box)
                                              : widget->rect();
            const QColor edge = widget->grab().toImage().pixelColor(area.left(), area.center().y());
            QVERIFY2(Legibility::contrast(edge, ground) >= 3, widget->metaObject()->className());
        }
    }

    // Fusion has them in one size.
    void boxesAndArrowsGrowWithTheText()
    {
        QApplication::setAttribute(Qt::AA_Use96Dpi, false); // as in the program; tests have it
        QApplication::setPalette(QPalette(lightGround));
        QFont font = QApplication::font();
        int usualInk = 0;
        for (const int scale : {1, 2}) {
            font.setPixelSize(12 * scale);
            QApplication::setFont(font);
            QSpinBox box;
            box.setMaximum(200);
            box.resize(box.sizeHint());
            for (const auto metric : {QStyle::PM_IndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight})
                QCOMPARE(QApplication::style()->pixelMetric(metric), 14 * scale);
            const int ink = arrowInk(box);
            QVERIFY2(scale == 1 ? ink > 0 : ink > 3 * usualInk, qPrintable(QString::number(ink)));
            usualInk = ink;
            const auto *field = box.findChild<QLineEdit *>();
            QVERIFY(field->width() >= field->fontMetrics().horizontalAdvance("200"_s));
        }
    }
};

QTEST_MAIN(tst_MenuStyle)
#include "tst_menustyle.moc"
