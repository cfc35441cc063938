// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "ui/Legibility.h"

#include <QImage>

namespace {

const QColor lightGround(0xff, 0xff, 0xff);
const QColor darkGround(0x23, 0x26, 0x29);
const QColor highlightGround(0x2e, 0x6f, 0xe4);

QImage picture(const QString &name)
{
    return QImage(":/img/%1.png"_s.arg(name));
}

bool isInk(const QImage &image, int x, int y)
{
    return image.valid(x, y) && qAlpha(image.pixel(x, y)) >= 128;
}

// The colours along the outline, where the picture meets whatever lies behind it.
QVector<QColor> outline(const QImage &image)
{
    QVector<QColor> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isInside =
                isInk(image, x - 1, y) && isInk(image, x + 1, y) && isInk(image, x, y - 1) && isInk(image, x, y + 1);
            if (isInk(image, x, y) && !isInside)
                colours.append(QColor::fromRgb(image.pixel(x, y)));
        }
    }
    return colours;
}

// What is left of a sign without its colours: '.' nothing, '#' colour, 'o' the white drawn on it.
QByteArray shape(const QString &name)
{
    const QImage image = picture(name);
    QByteArray pixels;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels.append(!isInk(image, x, y)                                       ? '.'
                          : Legibility::contrast(image.pixel(x, y), Qt::black) > 11 ? 'o'
                                                                                    : '#');
    return pixels;
}

} // namespace

class tst_Pictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(pictures); }

    void picturesAreSharpAndReadable_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QVector<QColor>>("grounds");
        const auto add = [](int side, const QVector<QColor> &grounds, const char *names) {
            for (const QByteArray &name : QByteArray(names).split(' '))
                addRow(name.constData(), side, grounds);
        };
        const QVector<QColor> both = {lightGround, darkGround};
        add(96, both, "empty-list");
        add(64, both, "main-icon");
        add(44, both, "no-coverart");
        add(24, both, "toolbar_add_file toolbar_add_folder gear_small facebook twitter");
        add(16, both, "greenLight yellowLight redLight artist title locate play pause exclamation home browser");
        add(16, both, "edit_small save_small save_cancel_small search_small clipboard_small");
        add(16, both, "font_size_decrease font_size_increase proxy_idle proxy_working proxy_error proxy_success");
        add(16, {highlightGround}, "artist_on_highlight title_on_highlight locate_on_highlight");
        add(16, {highlightGround}, "play_on_highlight pause_on_highlight");
    }

    void picturesAreSharpAndReadable()
    {
        QFETCH(int, side);
        QFETCH(QVector<QColor>, grounds);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        for (const int scale : {1, 2, 4}) {
            const QImage image = picture(scale == 1 ? name : "%1@%2x"_s.arg(name).arg(scale));
            QCOMPARE(image.size(), QSize(side, side) * scale);
            QCOMPARE(image.devicePixelRatio(), double(scale));
            const QVector<QColor> colours = outline(image);
            QVERIFY2(colours.size() > side, "the picture is as good as empty");
            for (const QColor &ground : grounds)
                for (const QColor &colour : colours)
                    QVERIFY2(Legibility::contrast(colour, ground) >= 3, qPrintable(colour.name()));
        }
    }

    void signsAreToldApartWithoutColours()
    {
        const QStringList signs{"greenLight"_s, "yellowLight"_s, "redLight"_s, "proxy_idle"_s, "exclamation"_s};
        for (const QString &first : signs) {
            for (const QString &second : signs)
                QVERIFY2(first == second || areToldApart(shape(first), shape(second)), qPrintable(first + second));
        }
    }

private:
    static bool areToldApart(const QByteArray &one, const QByteArray &other)
    {
        int inked = 0;
        int different = 0;
        for (int i = 0; i < one.size(); ++i) {
            inked += one.at(i) != '.' || other.at(i) != '.';
            different += one.at(i) != other.at(i);
        }
        return different * 3 > inked;
    }
};

QTEST_GUILESS_MAIN(tst_Pictures)
#include "tst_pictures.moc"
