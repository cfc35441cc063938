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
        addTextColumns("key", "expected");
        addRow("xiph: older name of the number", xiph({{"DISC", "2"}, {"DISCTOTAL", "4"}}), "disc", "2/4");
        addRow("xiph: total without number", xiph({{"TRACKTOTAL", "9"}}), "track", "");
        addRow("xiph: rating in stars", xiph({{"RATING", "5"}}), "rating", "5");
        addRow("xiph: rating in percent", xiph({{"RATING", "50"}}), "rating", "3");
        addRow("xiph: rating beyond all percents", xiph({{"RATING", "2000000000"}}), "rating", "5");
        addRow("xiph: empty lyrics before others", xiph({{"LYRICS", ""}, {"LYRICS", "words"}}), "lyrics", "words");
        addRow("xiph: cue sheet", xiph({{"CUESHEET", "FILE x"}}), "cuesheet", "FILE x");

        addRow("mp4: number without total", mp4("disk", MpItem(2, 0)), "disc", "2");
        addRow("mp4: total without number", mp4("trkn", MpItem(0, 9)), "track", "");
        addRow("mp4: rating 0", mp4("rate", MpItem(TagLib::StringList("0"))), "rating", "0");
        addRow("mp4: rating 39", mp4("rate", MpItem(TagLib::StringList("39"))), "rating", "1");
        addRow("mp4: rating of the wrong type", mp4("rate", MpItem(7)), "rating", "");

        addRow("asf: older track", asf("WM/Track", AsfItem(2000U)), "track", "2000");
        addRow("asf: older track, too large", asf("WM/Track", AsfItem(2001U)), "track", "");
        addRow("asf: unset rating", asf("WM/SharedUserRating", AsfItem(0U)), "rating", "1");
        addRow("asf: rating 25", asf("WM/SharedUserRating", AsfItem(25U)), "rating", "2");
        addRow("asf: rating over 100", asf("WM/SharedUserRating", AsfItem(101U)), "rating", "");
        addRow("asf: rating of the content description first", made<TagLib::ASF::Tag>([](auto &tag) {
                   tag.setRating("4");
                   tag.setAttribute("WM/SharedUserRating", AsfItem(1U));
               }),
               "rating", "4");

        addRow("id3v2: first rating of unknown players", id3v2({{"a", 10}, {"b", 255}}), "rating", "1");
        addRow("id3v2: Winamp before others", id3v2({{"a", 10}, {"rating@winamp.com", 128}}), "rating", "3");
        addRow("id3v1: no place for lyrics", TagPointer(std::make_shared<TagLib::ID3v1::Tag>()), "lyrics", "");
    }

    void valuesAreConverted()
    {
        QFETCH(TagPointer, tag);
        QFETCH(QString, key);
        QTEST(tags::value(*tag, key), "expected");
    }

    void everyValueIsDumped()
    {
        const QString rule = "----------------"_s;
        QCOMPARE(tags::dumpOf(*xiph({{"B", "2"}, {"A", "1"}, {"A", "3"}})),
                 QStringList({rule, "ogg_debugTags"_s, "A = 1"_s, "A = 3"_s, "B = 2"_s, rule}).join(QLatin1Char('\n')));
        QVERIFY(tags::dumpOf(*id3v2({{"x", 9}})).contains("id3v2_debugTags\nPOPM = x rating=9"_s));
        QVERIFY(tags::dumpOf(*asf("Mood", TagLib::String("calm"))).contains("asf_debugTags\nMood = calm"_s));
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

    void coversAreDecoded_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QSize>("thumbnail");
        addRow("just small enough", png(50, 50), QSize(50, 50));
        addRow("tall", png(100, 400), QSize(13, 50));
        addRow("wide", png(400, 100), QSize(50, 13));
        addRow("narrow but high", png(10, 51), QSize(10, 50));
        addRow("a line of the greatest width", png(8192, 10), QSize(50, 1));
        addRow("too wide", png(8193, 10), QSize(0, 0));
        addRow("too high", png(10, 8193), QSize(0, 0));
        addRow("nothing", QByteArray(), QSize(0, 0));
        addRow("no picture", QByteArray("\xff\xd8 this is no picture"), QSize(0, 0));
        addRow("cut", png(100, 100).left(60), QSize(0, 0));
        addRow("too many bytes", png(10, 10) + QByteArray(32 * 1024 * 1024, '\0'), QSize(0, 0));
        const QByteArray drawing("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><g/></svg>");
        addRow("a drawing program", drawing, QSize(0, 0));
    }

    void coversAreDecoded()
    {
        QFETCH(QByteArray, data);
        QFETCH(QSize, thumbnail);
        QCOMPARE(decodeThumbnail(data).size(), thumbnail);
        QCOMPARE(decodeCover(data).isNull(), thumbnail.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_TagFields)
#include "tst_tagfields.moc"
