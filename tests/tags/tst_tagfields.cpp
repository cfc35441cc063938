// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
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
    void valuesAreConverted_data()
    {
        using MpItem = TagLib::MP4::Item;
        using AsfItem = TagLib::ASF::Attribute;
        QTest::addColumn<TagPointer>("tag");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const TagPointer &tag, const char *key, const char *expected) {
            addRow(name, tag, QString::fromLatin1(key), QString::fromLatin1(expected));
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

    void valuesAreConverted()
    {
        QFETCH(TagPointer, tag);
        QFETCH(QString, key);
        QTEST(tags::value(*tag, key), "expected");
    }

    void valuesComeBack_data()
    {
        QTest::addColumn<TagPointer>("tag");
        addRow("id3v2", id3v2({}));
        addRow("mp4", made<TagLib::MP4::Tag>([](auto &) {}));
        addRow("asf", made<TagLib::ASF::Tag>([](auto &) {}));
        addRow("xiph", xiph({}));
    }

    void valuesComeBack()
    {
        QFETCH(TagPointer, tag);
        const bool isAsf = qstrcmp(QTest::currentDataTag(), "asf") == 0;
        const QVector<QPair<QString, QString>> values{
            {"title"_s, "Größe 歌"_s}, {"year"_s, "1999"_s},     {"rating"_s, "4"_s},
            {"bpm"_s, "128"_s},        {"track"_s, "12/34"_s},   {"disc"_s, "1/2"_s},
            {"composer"_s, "Ж"_s},     {"albumArtist"_s, "𝄞"_s}, {"lyrics"_s, "a\r\nб"_s}};
        for (const auto &[key, value] : values)
            tags::setValue(*tag, key, value);
        for (const auto &[key, value] : values)
            QCOMPARE(tags::value(*tag, key), isAsf && key == QLatin1String("disc") ? QString() : value);
        for (const auto &[key, value] : values)
            tags::setValue(*tag, key, QString());
        QCOMPARE(tags::value(*tag, "lyrics"_s), QString());
        QCOMPARE(tags::value(*tag, "year"_s), QString());
        QCOMPARE(tags::value(*tag, "composer"_s), QString());
    }

    void everyValueIsDumped()
    {
        const QString rule = "----------------"_s;
        QCOMPARE(tags::dumpOf(*xiph({{"B", "2"}, {"A", "1"}, {"A", "3"}})).split(QLatin1Char('\n')),
                 (QStringList{rule, "ogg_debugTags"_s, "A = 1"_s, "A = 3"_s, "B = 2"_s, rule}));
        QVERIFY(tags::dumpOf(*id3v2({{"x", 9}})).contains(QLatin1String("id3v2_debugTags\nPOPM = x rating=9")));
        QVERIFY(
            tags::dumpOf(*asf("Mood", TagLib::String("calm"))).contains(QLatin1String("asf_debugTags\nMood = calm")));
    }

    void bytesBecomeStars()
    {
        QVector<int> stars;
        for (const int byte : {-1, 0, 1, 63, 64, 127, 128, 195, 196, 254, 255, 300})
            stars.append(tags::starsFromByte(byte));
        QCOMPARE(stars, (QVector<int>{0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5}));
    }

    void textsAreCleaned()
    {
        QCOMPARE(tags::cleanedText("a\tb\r\nc\n"_s, 10), "a\tb\r\nc\n"_s);
        QCOMPARE(tags::cleanedText("a\u0001b\u001b[0mc\u007f\u0085d"_s + QChar(QChar::Null), 10), "ab[0mcd"_s);
        QCOMPARE(tags::cleanedText("12345678901"_s, 10), "1234567890"_s);
        QCOMPARE(tags::cleanedText("123456789𝄞"_s, 10), "123456789"_s); // never half a pair
    }

    void thumbnailSizes_data()
    {
        QTest::addColumn<QSize>("original");
        QTest::addColumn<QSize>("expected");
        addRow("small enough", QSize(40, 30), QSize(40, 30));
        addRow("just small enough", QSize(50, 50), QSize(50, 50));
        addRow("tall", QSize(100, 400), QSize(13, 50));
        addRow("wide", QSize(400, 100), QSize(50, 13));
        addRow("narrow but high", QSize(10, 51), QSize(10, 50));
        addRow("a line", QSize(8000, 1), QSize(50, 1));
    }

    void thumbnailSizes()
    {
        QFETCH(QSize, original);
        QFETCH(QSize, expected);
        QCOMPARE(thumbnailSize(original), expected);
        if (original.height() > 1)
            QCOMPARE(decodeThumbnail(png(original.width(), original.height())).size(), expected);
    }

    void coversAreRefused_data()
    {
        QTest::addColumn<QByteArray>("data");
        addRow("nothing", QByteArray());
        addRow("no picture", QByteArray("\xff\xd8 this is no picture"));
        addRow("cut", png(100, 100).left(60));
        addRow("too wide", png(8193, 10));
        addRow("too high", png(10, 8193));
        addRow("too many bytes", png(10, 10) + QByteArray(32 * 1024 * 1024, '\0'));
        QTest::newRow("a drawing program") << QByteArray(
            "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>");
    }

    void coversAreRefused()
    {
        QFETCH(QByteArray, data);
        QVERIFY(decodeThumbnail(data).isNull());
        QVERIFY(decodeCover(data).isNull());
        QVERIFY(!decodeCover(png(8192, 10)).isNull());
    }
};

QTEST_GUILESS_MAIN(tst_TagFields)
#include "tst_tagfields.moc"
