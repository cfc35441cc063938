// SPDX-License-Identifier: MIT
#include "tags/CoverImage.h"
#include "tags/TagDump.h"
#include "tags/TagFields.h"
#include "tags/TagRating.h"
#include "tags/TagText.h"

#include <taglib/asftag.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4tag.h>
#include <taglib/popularimeterframe.h>
#include <taglib/xiphcomment.h>

#include <QBuffer>
#include <QTest>

#include <functional>
#include <memory>

using TagPointer = std::shared_ptr<TagLib::Tag>;
Q_DECLARE_METATYPE(TagPointer)

namespace {

template<typename Format>
TagPointer made(const std::function<void(Format &)> &fill)
{
    auto tag = std::make_shared<Format>();
    fill(*tag);
    return tag;
}

TagPointer xiph(std::initializer_list<std::pair<const char *, const char *>> fields)
{
    return made<TagLib::Ogg::XiphComment>([&](auto &tag) {
        for (const auto &[name, text] : fields)
            tag.addField(name, text, false);
    });
}

TagPointer mp4(const char *name, const TagLib::MP4::Item &item)
{
    return made<TagLib::MP4::Tag>([&](auto &tag) { tag.setItem(name, item); });
}

TagPointer asf(const char *name, const TagLib::ASF::Attribute &attribute)
{
    return made<TagLib::ASF::Tag>([&](auto &tag) { tag.setAttribute(name, attribute); });
}

TagPointer id3v2(std::initializer_list<std::pair<const char *, int>> ratings)
{
    return made<TagLib::ID3v2::Tag>([&](auto &tag) {
        for (const auto &[email, byte] : ratings) {
            auto frame = std::make_unique<TagLib::ID3v2::PopularimeterFrame>();
            frame->setEmail(email);
            frame->setRating(byte);
            tag.addFrame(frame.release());
        }
    });
}

QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "png");
    return buffer.data();
}

} // namespace

class tst_TagFields : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreConverted_data();
    void valuesAreConverted();
    void valuesComeBack_data();
    void valuesComeBack();
    void everyValueIsDumped();
    void starsOfBytes_data();
    void starsOfBytes();
    void textsAreCleaned_data();
    void textsAreCleaned();
    void thumbnailSizes_data();
    void thumbnailSizes();
    void coversAreRefused_data();
    void coversAreRefused();
};

void tst_TagFields::valuesAreConverted_data()
{
    using MpItem = TagLib::MP4::Item;
    using AsfItem = TagLib::ASF::Attribute;
    QTest::addColumn<TagPointer>("tag");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const TagPointer &tag, const char *key, const char *expected) {
        QTest::newRow(name) << tag << QString::fromLatin1(key) << QString::fromLatin1(expected);
    };

    row("xiph: number with total", xiph({{"TRACKNUMBER", "3"}, {"TRACKTOTAL", "9"}}), "track", "3/9");
    row("xiph: older name of the number", xiph({{"DISC", "2"}, {"DISCTOTAL", "4"}}), "disc", "2/4");
    row("xiph: total without number", xiph({{"TRACKTOTAL", "9"}}), "track", "");
    row("xiph: rating in stars", xiph({{"RATING", "5"}}), "rating", "5");
    row("xiph: rating in percent", xiph({{"RATING", "50"}}), "rating", "3");
    row("xiph: rating beyond all percents", xiph({{"RATING", "2000000000"}}), "rating", "5");
    row("xiph: rating that is no number", xiph({{"RATING", "good"}}), "rating", "");
    row("xiph: empty lyrics before others", xiph({{"LYRICS", ""}, {"LYRICS", "words"}}), "lyrics", "words");
    row("xiph: cue sheet", xiph({{"CUESHEET", "FILE x"}}), "cuesheet", "FILE x");

    row("mp4: number and total", mp4("trkn", MpItem(3, 9)), "track", "3/9");
    row("mp4: number without total", mp4("disk", MpItem(2, 0)), "disc", "2");
    row("mp4: total without number", mp4("trkn", MpItem(0, 9)), "track", "");
    row("mp4: rating 100", mp4("rate", MpItem(TagLib::StringList("100"))), "rating", "5");
    row("mp4: rating 0", mp4("rate", MpItem(TagLib::StringList("0"))), "rating", "0");
    row("mp4: rating 39", mp4("rate", MpItem(TagLib::StringList("39"))), "rating", "1");
    row("mp4: rating out of range", mp4("rate", MpItem(TagLib::StringList("999"))), "rating", "5");
    row("mp4: rating of the wrong type", mp4("rate", MpItem(7)), "rating", "");
    row("mp4: lyrics", mp4("\251lyr", MpItem(TagLib::StringList("words"))), "lyrics", "words");

    row("asf: track as text", asf("WM/TrackNumber", AsfItem(TagLib::String("3/9"))), "track", "3/9");
    row("asf: track as number", asf("WM/TrackNumber", AsfItem(7U)), "track", "7");
    row("asf: older track", asf("WM/Track", AsfItem(2000U)), "track", "2000");
    row("asf: older track, too large", asf("WM/Track", AsfItem(2001U)), "track", "");
    row("asf: older track, zero", asf("WM/Track", AsfItem(0U)), "track", "");
    row("asf: disc is written, not read", asf("WM/PartOfSet", AsfItem(TagLib::String("1/2"))), "disc", "");
    row("asf: unset rating", asf("WM/SharedUserRating", AsfItem(0U)), "rating", "1");
    row("asf: rating 99", asf("WM/SharedUserRating", AsfItem(99U)), "rating", "5");
    row("asf: rating 25", asf("WM/SharedUserRating", AsfItem(25U)), "rating", "2");
    row("asf: rating over 100", asf("WM/SharedUserRating", AsfItem(101U)), "rating", "");
    row("asf: rating of the content description first", made<TagLib::ASF::Tag>([](auto &tag) {
            tag.setRating("4");
            tag.setAttribute("WM/SharedUserRating", AsfItem(1U));
        }),
        "rating", "4");

    row("id3v2: no rating", id3v2({}), "rating", "");
    row("id3v2: first rating of unknown players", id3v2({{"a", 10}, {"b", 255}}), "rating", "1");
    row("id3v2: Windows Media before others", id3v2({{"a", 10}, {"Windows Media Player 9 Series", 255}}), "rating",
        "5");
    row("id3v2: Winamp before others", id3v2({{"a", 10}, {"rating@winamp.com", 128}}), "rating", "3");
    row("id3v1: no place for lyrics", std::make_shared<TagLib::ID3v1::Tag>(), "lyrics", "");
}

void tst_TagFields::valuesAreConverted()
{
    QFETCH(TagPointer, tag);
    QFETCH(QString, key);
    QTEST(tags::value(*tag, key), "expected");
}

void tst_TagFields::valuesComeBack_data()
{
    QTest::addColumn<TagPointer>("tag");
    QTest::newRow("id3v2") << TagPointer(new TagLib::ID3v2::Tag);
    QTest::newRow("mp4") << TagPointer(new TagLib::MP4::Tag);
    QTest::newRow("asf") << TagPointer(new TagLib::ASF::Tag);
    QTest::newRow("xiph") << TagPointer(new TagLib::Ogg::XiphComment);
}

void tst_TagFields::valuesComeBack()
{
    QFETCH(TagPointer, tag);
    const bool isAsf = qstrcmp(QTest::currentDataTag(), "asf") == 0;
    const QVector<QPair<QString, QString>> values{
        {QStringLiteral("title"), QStringLiteral("Größe 歌")}, {QStringLiteral("year"), QStringLiteral("1999")},
        {QStringLiteral("rating"), QStringLiteral("4")},       {QStringLiteral("bpm"), QStringLiteral("128")},
        {QStringLiteral("track"), QStringLiteral("12/34")},    {QStringLiteral("disc"), QStringLiteral("1/2")},
        {QStringLiteral("composer"), QStringLiteral("Ж")},     {QStringLiteral("albumArtist"), QStringLiteral("𝄞")},
        {QStringLiteral("lyrics"), QStringLiteral("a\r\nб")}};
    for (const auto &[key, value] : values)
        tags::setValue(*tag, key, value);
    for (const auto &[key, value] : values)
        QCOMPARE(tags::value(*tag, key), isAsf && key == QLatin1String("disc") ? QString() : value);
    for (const auto &[key, value] : values)
        tags::setValue(*tag, key, QString());
    QCOMPARE(tags::value(*tag, QStringLiteral("lyrics")), QString());
    QCOMPARE(tags::value(*tag, QStringLiteral("year")), QString());
    QCOMPARE(tags::value(*tag, QStringLiteral("composer")), QString());
}

void tst_TagFields::everyValueIsDumped()
{
    const QString rule = QStringLiteral("----------------");
    QCOMPARE(tags::dumpOf(*xiph({{"B", "2"}, {"A", "1"}, {"A", "3"}})).split(QLatin1Char('\n')),
             (QStringList{rule, QStringLiteral("ogg_debugTags"), QStringLiteral("A = 1"), QStringLiteral("A = 3"),
                          QStringLiteral("B = 2"), rule}));
    QVERIFY(tags::dumpOf(*id3v2({{"x", 9}})).contains(QLatin1String("id3v2_debugTags\nPOPM = x rating=9")));
    QVERIFY(tags::dumpOf(*asf("Mood", TagLib::String("calm"))).contains(QLatin1String("asf_debugTags\nMood = calm")));
}

void tst_TagFields::starsOfBytes_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("stars");
    for (const auto &[byte, stars] : {std::pair{0, 0},
                                      {1, 1},
                                      {63, 1},
                                      {64, 2},
                                      {127, 2},
                                      {128, 3},
                                      {195, 3},
                                      {196, 4},
                                      {254, 4},
                                      {255, 5},
                                      {-1, 0},
                                      {300, 5}})
        QTest::addRow("%d", byte) << byte << stars;
}

void tst_TagFields::starsOfBytes()
{
    QFETCH(int, byte);
    QTEST(tags::starsFromByte(byte), "stars");
}

void tst_TagFields::textsAreCleaned_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("line breaks and tabs stay") << QStringLiteral("a\tb\r\nc\n") << QStringLiteral("a\tb\r\nc\n");
    QTest::newRow("control characters go")
        << QStringLiteral("a\u0001b\u001b[0mc\u007f\u0085d") << QStringLiteral("ab[0mcd");
    QTest::newRow("NUL goes") << QString(QChar(0)) + QStringLiteral("a") << QStringLiteral("a");
    QTest::newRow("too long") << QStringLiteral("12345678901") << QStringLiteral("1234567890");
    QTest::newRow("never half a pair") << QStringLiteral("123456789𝄞") << QStringLiteral("123456789");
}

void tst_TagFields::textsAreCleaned()
{
    QFETCH(QString, text);
    QTEST(tags::cleanedText(text, 10), "expected");
}

void tst_TagFields::thumbnailSizes_data()
{
    QTest::addColumn<QSize>("original");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("small enough") << QSize(40, 30) << QSize(40, 30);
    QTest::newRow("just small enough") << QSize(50, 50) << QSize(50, 50);
    QTest::newRow("tall") << QSize(100, 400) << QSize(13, 50);
    QTest::newRow("wide") << QSize(400, 100) << QSize(50, 13);
    QTest::newRow("narrow but high") << QSize(10, 51) << QSize(10, 50);
    QTest::newRow("a line") << QSize(8000, 1) << QSize(50, 1);
}

void tst_TagFields::thumbnailSizes()
{
    QFETCH(QSize, original);
    QFETCH(QSize, expected);
    QCOMPARE(thumbnailSize(original), expected);
    if (original.height() > 1)
        QCOMPARE(decodeThumbnail(png(original.width(), original.height())).size(), expected);
}

void tst_TagFields::coversAreRefused_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no picture") << QByteArray("\xff\xd8 this is no picture");
    QTest::newRow("cut") << png(100, 100).left(60);
    QTest::newRow("too wide") << png(8193, 10);
    QTest::newRow("too high") << png(10, 8193);
    QTest::newRow("too many bytes") << png(10, 10) + QByteArray(32 * 1024 * 1024, '\0');
    QTest::newRow("a drawing program") << QByteArray(
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>");
}

void tst_TagFields::coversAreRefused()
{
    QFETCH(QByteArray, data);
    QVERIFY(decodeThumbnail(data).isNull());
    QVERIFY(decodeCover(data).isNull());
    QVERIFY(!decodeCover(png(8192, 10)).isNull());
}

QTEST_GUILESS_MAIN(tst_TagFields)
#include "tst_tagfields.moc"
