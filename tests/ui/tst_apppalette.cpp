// SPDX-License-Identifier: MIT
#include "ui/AppPalette.h"

#include <QSignalSpy>
#include <QTest>

class tst_AppPalette : public QObject
{
    Q_OBJECT

private slots:
    void coloursFollowThePalette();
    void theGroupCountsFromTheNextPaletteOn();
    void coloursAreMixed_data();
    void coloursAreMixed();
};

void tst_AppPalette::coloursFollowThePalette()
{
    AppPalette colours;
    QCOMPARE(colours.keys().size(), 43);
    QCOMPARE(colours.colorGroup(), int(QPalette::Active));
    QSignalSpy themes(&colours, &AppPalette::themeChanged);
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, QColor(200, 100, 50));
    dark.setColor(QPalette::Mid, Qt::green);
    colours.setPalette(dark);
    colours.setTheme(QStringLiteral("dark"));
    QCOMPARE(colours.value(QStringLiteral("listBackground")).value<QColor>(), QColor(Qt::black));
    QCOMPARE(colours.value(QStringLiteral("placeholderText")).value<QColor>(), QColor(Qt::green));
    QCOMPARE(colours.value(QStringLiteral("label")).value<QColor>(), QColor(120, 60, 30));
    QCOMPARE(colours.theme(), QStringLiteral("system"));
    QCOMPARE(themes.count(), 0);
    const AppPalette copy(colours);
    QCOMPARE(copy.value(QStringLiteral("label")), colours.value(QStringLiteral("label")));
}

void tst_AppPalette::theGroupCountsFromTheNextPaletteOn()
{
    QPalette palette(Qt::lightGray);
    palette.setColor(QPalette::Active, QPalette::Text, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::blue);
    AppPalette colours;
    colours.setPalette(palette);
    QSignalSpy groups(&colours, &AppPalette::colorGroupChanged);
    colours.setColorGroup(QPalette::Disabled);
    colours.setColorGroup(QPalette::Disabled);
    QCOMPARE(groups.count(), 1);
    QCOMPARE(colours.value(QStringLiteral("text")).value<QColor>(), QColor(Qt::red));
    colours.updateColorProperties();
    QCOMPARE(colours.value(QStringLiteral("text")).value<QColor>(), QColor(Qt::blue));
}

void tst_AppPalette::coloursAreMixed_data()
{
    QTest::addColumn<double>("q");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("within the range") << 0.6 << QColor(153, 153, 153);
    QTest::newRow("all of the first") << 1.0 << QColor(Qt::white);
    QTest::newRow("all of the second") << 0.0 << QColor(Qt::black);
    QTest::newRow("above the range") << 1.5 << QColor(Qt::black);
    QTest::newRow("below the range") << -0.5 << QColor(Qt::white);
}

void tst_AppPalette::coloursAreMixed()
{
    QFETCH(double, q);
    QTEST(AppPalette::mixedColor(Qt::white, Qt::black, q), "expected");
}

QTEST_MAIN(tst_AppPalette)
#include "tst_apppalette.moc"
