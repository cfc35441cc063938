// SPDX-License-Identifier: MIT
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastContrast = 3.0;
const QColor lightGround(0xff, 0xff, 0xff);
const QColor darkGround(0x23, 0x26, 0x29);
const QColor highlightGround(0x2e, 0x6f, 0xe4);

QImage picture(const QString &name)
{
    return QImage(QStringLiteral(":/img/%1.png").arg(name));
}

// Relative luminance and contrast ratio as defined by WCAG 2.1.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &first, const QColor &second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
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
            pixels.append(!isInk(image, x, y) ? '.' : luminance(QColor(image.pixel(x, y))) > 0.5 ? 'o' : '#');
    return pixels;
}

} // namespace

class tst_Pictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void picturesAreSharpAndReadable_data();
    void picturesAreSharpAndReadable();
    void signsAreToldApartWithoutColours();
};

void tst_Pictures::initTestCase()
{
    Q_INIT_RESOURCE(pictures);
}

void tst_Pictures::picturesAreSharpAndReadable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("side");
    QTest::addColumn<QVector<QColor>>("grounds");
    const auto add = [](int side, const QVector<QColor> &grounds, const QString &names) {
        for (const QString &name : names.split(QLatin1Char(' ')))
            QTest::newRow(qPrintable(name)) << name << side << grounds;
    };
    const QVector<QColor> both = {lightGround, darkGround};
    add(96, both, QStringLiteral("empty-list"));
    add(64, both, QStringLiteral("main-icon"));
    add(44, both, QStringLiteral("no-coverart"));
    add(24, both, QStringLiteral("toolbar_add_file toolbar_add_folder gear_small facebook twitter"));
    add(16, both, QStringLiteral("greenLight yellowLight redLight artist title locate play pause"));
    add(16, both, QStringLiteral("edit_small save_small save_cancel_small search_small clipboard_small browser"));
    add(16, both, QStringLiteral("font_size_decrease font_size_increase exclamation home"));
    add(16, both, QStringLiteral("proxy_idle proxy_working proxy_error proxy_success"));
    add(16, {highlightGround}, QStringLiteral("artist_on_highlight title_on_highlight locate_on_highlight"));
    add(16, {highlightGround}, QStringLiteral("play_on_highlight pause_on_highlight"));
}

void tst_Pictures::picturesAreSharpAndReadable()
{
    QFETCH(QString, name);
    QFETCH(int, side);
    QFETCH(QVector<QColor>, grounds);
    for (const int scale : {1, 2, 4}) {
        const QImage image = picture(scale == 1 ? name : QStringLiteral("%1@%2x").arg(name).arg(scale));
        QCOMPARE(image.size(), QSize(side, side) * scale);
        QCOMPARE(image.devicePixelRatio(), double(scale));
        const QVector<QColor> colours = outline(image);
        QVERIFY2(colours.size() > side, "the picture is as good as empty");
        for (const QColor &ground : grounds)
            for (const QColor &colour : colours)
                QVERIFY2(contrast(colour, ground) >= leastContrast,
                         qPrintable(colour.name() + QLatin1String(" on ") + ground.name()));
    }
}

void tst_Pictures::signsAreToldApartWithoutColours()
{
    const QStringList signs = {QStringLiteral("greenLight"), QStringLiteral("yellowLight"), QStringLiteral("redLight"),
                               QStringLiteral("proxy_idle"), QStringLiteral("exclamation")};
    for (const QString &first : signs) {
        for (const QString &second : signs) {
            const QByteArray one = shape(first);
            const QByteArray other = shape(second);
            int inked = 0;
            int different = 0;
            for (int i = 0; i < one.size(); ++i) {
                inked += one.at(i) != '.' || other.at(i) != '.';
                different += one.at(i) != other.at(i);
            }
            QVERIFY2(first == second || different * 3 > inked,
                     qPrintable(QStringLiteral("%1 and %2 differ in %3 of %4 pixels")
                                    .arg(first, second)
                                    .arg(different)
                                    .arg(inked)));
        }
    }
}

QTEST_GUILESS_MAIN(tst_Pictures)
#include "tst_pictures.moc"
