// SPDX-License-Identifier: MIT
#include "ui/AppPalette.h"

#include "support/TestTable.h"

#include <QSignalSpy>

class tst_AppPalette : public QObject
{
    Q_OBJECT

private slots:
    void coloursFollowThePalette()
    {
        AppPalette colours;
        QSignalSpy themes(&colours, &AppPalette::themeChanged);
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, QColor(200, 100, 50));
        dark.setColor(QPalette::Mid, Qt::green);
        colours.setPalette(dark);
        colours.setTheme("dark"_s);
        QCOMPARE(color(colours, "listBackground"), QColor(Qt::black));
        QCOMPARE(color(colours, "placeholderText"), QColor(Qt::green));
        QCOMPARE(color(colours, "label"), QColor(120, 60, 30));
        QCOMPARE(colours.theme(), "system"_s);
        QCOMPARE(themes.count(), 0);
        const AppPalette copy(colours);
        QCOMPARE(color(copy, "label"), color(colours, "label"));
    }

    void theGroupCountsFromTheNextPaletteOn()
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
        QCOMPARE(color(colours, "text"), QColor(Qt::red));
        colours.updateColorProperties();
        QCOMPARE(color(colours, "text"), QColor(Qt::blue));
    }

    // Outside of 0 to 1 it is the other colour than one would think.
    void coloursAreMixed()
    {
        const QVector<std::pair<double, QColor>> mixtures = {
            {0.6, QColor(153, 153, 153)}, {1.0, Qt::white}, {0.0, Qt::black}, {1.5, Qt::black}, {-0.5, Qt::white}};
        for (const auto &[q, expected] : mixtures)
            QCOMPARE(AppPalette::mixedColor(Qt::white, Qt::black, q), expected);
    }

private:
    static QColor color(const AppPalette &colours, const char *name)
    {
        return colours.value(QLatin1String(name)).value<QColor>();
    }
};

QTEST_MAIN(tst_AppPalette)
#include "tst_apppalette.moc"
