// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"
#include "tags/SongFiles.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <sys/stat.h>

using Values = QMap<QString, QString>;

namespace {

const QStringList allKeys{"title"_s, "artist"_s, "album"_s, "year"_s,     "genre"_s,       "comment"_s, "rating"_s,
                          "bpm"_s,   "track"_s,  "disc"_s,  "composer"_s, "albumArtist"_s, "lyrics"_s};

Values valuesOf(const MediaFileTags &tags)
{
    Values values;
    for (const QString &key : allKeys) {
        if (!tags.value(key).isEmpty())
            values.insert(key, tags.value(key));
    }
    return values;
}

const Values basics{{"title"_s, "The Song"_s},
                    {"artist"_s, "The Artist"_s},
                    {"album"_s, "The Album"_s},
                    {"year"_s, "2001"_s},
                    {"genre"_s, "Rock"_s}};

Values with(Values values, const Values &more)
{
    for (auto it = more.begin(); it != more.end(); ++it)
        values.insert(it.key(), it.value());
    return values;
}

} // namespace

class tst_MediaFileTags : public QObject
{
    Q_OBJECT

private slots:
    void songsAreRead_data()
    {
        QTest::addColumn<Values>("expected");
        const Values track{{"track"_s, "3/9"_s}};
        const Values full = with(with(basics, track), {{"disc"_s, "1/2"_s},
                                                       {"bpm"_s, "120"_s},
                                                       {"composer"_s, "The Composer"_s},
                                                       {"albumArtist"_s, "Album Artist"_s}});
        const Values words{{"lyrics"_s, "Old words\nof café"_s}};
        const Values comment{{"comment"_s, "old"_s}};

        addRow("plain-v23.mp3", full);
        addRow("plain-v24.mp3", full);
        addRow("v1-only.mp3", with(basics, comment));
        addRow("v1-fills-v2.mp3", with(with(with(basics, track), comment), {{"title"_s, "Title Of One"_s}}));
        addRow("untagged.mp3", Values());
        addRow("apev2.mp3", with(basics, track));
        addRow("two-artists.mp3", with(with(basics, track), {{"artist"_s, "First Artist Second Artist"_s}}));
        addRow("lyrics.mp3", with(with(basics, track), {{"lyrics"_s, "Alte Worte"_s}}));
        addRow("rated.mp3", with(with(basics, track), {{"rating"_s, "4"_s}}));
        addRow("plain.flac", with(full, {{"disc"_s, "1"_s}, {"rating"_s, "4"_s}}));
        addRow("id3.flac", with(basics, track));
        addRow("plain.ogg", with(basics, track));
        addRow("lyrics.ogg", with(with(basics, track), words));
        addRow("plain.opus", with(basics, track));
        addRow("rich.m4a", with(with(full, words), {{"disc"_s, "1"_s}, {"rating"_s, "5"_s}}));
        Values wma = with(with(full, words), {{"track"_s, "3"_s}, {"rating"_s, "4"_s}});
        wma.remove("disc"_s);
        addRow("lyrics.wma", wma);
        addRow("plain.aiff", with(basics, track));
        // Of the chunk in a WAV file basic values are taken alone; TagLib carries the number of the track over with
        // them.
        addRow("id3.wav", with(basics, {{"track"_s, "3"_s}}));
        Values info = basics;
        info.remove("year"_s);
        info.remove("genre"_s);
        addRow("info.wav", info);
        addRow("plain.ape", basics);
        addRow("plain.wv", basics);
    }

    void songsAreRead()
    {
        QFETCH(Values, expected);
        const SongFiles files;
        const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
        const QByteArray before = SongFiles::bytes(path);
        MediaFileTags tags;
        QVERIFY(tags.read(path));
        QCOMPARE(valuesOf(tags), expected);
        QCOMPARE(tags.duration(), 2);
        const MediaFileTags copy = MediaFileTags(tags);
        tags = MediaFileTags();
        QCOMPARE(valuesOf(copy), expected);
        QCOMPARE(SongFiles::bytes(path), before);
    }

    void copiesAreIndependent()
    {
        const SongFiles files;
        MediaFileTags tags;
        QVERIFY(tags.read(files.copy("lyrics.mp3"_s)));
        MediaFileTags copy = tags;
        copy.setValue("lyrics"_s, "new"_s);
        QCOMPARE(tags.value("lyrics"_s), "Alte Worte"_s);
        tags = copy;
        copy = MediaFileTags();
        QCOMPARE(tags.value("lyrics"_s), "new"_s);
        QCOMPARE(copy.value("lyrics"_s), QString());
    }

    void picturesAreFound_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("thumbnail");
        const QSize wide(60, 40);
        const QSize wideThumbnail(50, 33);
        addRow("cover.mp3", 1, QSize(100, 400), QSize(13, 50));
        addRow("rich.mp3", 1, wide, wideThumbnail);
        addRow("block-cover.flac", 1, wide, wideThumbnail);
        addRow("comment-cover.flac", 1, wide, wideThumbnail);
        addRow("cover.ogg", 1, wide, wideThumbnail);
        addRow("rich.m4a", 1, wide, wideThumbnail);
        addRow("plain.wma", 1, wide, wideThumbnail);
        addRow("plain.mp3 without any", 0, QSize(), QSize());
    }

    void picturesAreFound()
    {
        QFETCH(int, count);
        const SongFiles files;
        const QString sample = count > 0 ? QString::fromLatin1(QTest::currentDataTag()) : "plain-v23.mp3"_s;
        MediaFileTags tags;
        QVERIFY(tags.read(files.copy(sample)));
        QCOMPARE(tags.pictureCount(), count);
        QVERIFY(tags.thumbnail().isNull());
        tags.makeThumbnail();
        QVERIFY(tags.image(-1).isNull());
        QVERIFY(tags.image(count).isNull());
        if (count > 0) {
            QTEST(tags.image(0).size(), "size");
            QTEST(tags.thumbnail().size(), "thumbnail");
        }
    }

    void otherFilesGiveEmptyRecords_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("opens");
        for (const char *name : {"vanished.mp3", "fifo.mp3", "directory.mp3", "unreadable.mp3", "/dev/zero", ""})
            addRow(name[0] ? name : "no name", QString::fromLatin1(name), false);
        addRow("text named .flac", "text.flac"_s, false);
        addRow("empty .ogg", "empty.ogg"_s, false);
        // An MPEG file needs no header, so anything under such a name opens; it has no playing time.
        addRow("text named .mp3", "text.mp3"_s, true);
        addRow("empty .mp3", "empty.mp3"_s, true);
    }

    void otherFilesGiveEmptyRecords()
    {
        QFETCH(QString, name);
        QFETCH(bool, opens);
        const SongFiles files;
        const QString path = name.startsWith(QLatin1Char('/')) || name.isEmpty() ? name : files.path(name);
        if (name.startsWith(QLatin1String("text")) || name.startsWith(QLatin1String("empty")))
            QCOMPARE(files.write(name, name.startsWith(QLatin1String("text")) ? "a shopping list\n" : ""), path);
        else if (name == QLatin1String("fifo.mp3"))
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0666), 0);
        else if (name == QLatin1String("directory.mp3"))
            QCOMPARE(::mkdir(QFile::encodeName(path).constData(), 0777), 0);
        else if (name == QLatin1String("unreadable.mp3"))
            QVERIFY(QFile::setPermissions(files.copy("rich.mp3"_s, name), QFile::WriteOwner));
        const AsOrdinaryUser user;
        MediaFileTags tags;
        tags.setValue("title"_s, "of an earlier file"_s);
        QCOMPARE(tags.read(path), opens);
        const bool isNoFile = name == QLatin1String("fifo.mp3") || name == QLatin1String("directory.mp3") ||
                              name == QLatin1String("/dev/zero");
        QCOMPARE(tags.readFailure(), isNoFile ? tags::ReadFailure::NotRegular : tags::ReadFailure::None);
        QCOMPARE(valuesOf(tags), Values());
        QCOMPARE(tags.duration(), 0);
        QCOMPARE(tags.pictureCount(), 0);
    }

    void recordsAreSaved_data()
    {
        QTest::addColumn<QStringList>("lost");
        const QStringList basicOnly = allKeys.mid(6);
        addRow("rich.mp3", QStringList());
        addRow("v1-only.mp3", QStringList());
        addRow("block-cover.flac", QStringList());
        addRow("cover.ogg", QStringList());
        addRow("rich.m4a", QStringList());
        addRow("plain.wma", QStringList{"disc"_s});
        addRow("plain.aiff", QStringList());
        addRow("plain.ape", basicOnly);
    }

    void recordsAreSaved()
    {
        QFETCH(QStringList, lost);
        const SongFiles files;
        const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
        const QByteArray audio = SongFiles::audioDigest(path);
        const QJsonArray pictures = SongFiles::tagsOf(path).value("pictures"_s).toArray();
        const Values values{{"title"_s, "Ночь"_s},       {"artist"_s, "Someone"_s}, {"album"_s, "Elsewhere"_s},
                            {"year"_s, "1984"_s},        {"genre"_s, "Jazz"_s},     {"comment"_s, "heard live"_s},
                            {"rating"_s, "3"_s},         {"bpm"_s, "99"_s},         {"track"_s, "5/6"_s},
                            {"disc"_s, "2/3"_s},         {"composer"_s, "C"_s},     {"albumArtist"_s, "AA"_s},
                            {"lyrics"_s, "one\r\ntwo"_s}};
        MediaFileTags tags;
        QVERIFY(tags.read(path));
        for (auto it = values.begin(); it != values.end(); ++it)
            tags.setValue(it.key(), it.value());
        QVERIFY(tags.save(path));

        MediaFileTags reread;
        QVERIFY(reread.read(path));
        Values expected = values;
        for (const QString &key : lost)
            expected.remove(key);
        QCOMPARE(valuesOf(reread), expected);
        const QJsonObject seen = SongFiles::tagsOf(path);
        QCOMPARE(seen.value("title"_s).toString(), values.value("title"_s));
        QVERIFY(seen.value("pictures"_s).toArray().contains(pictures.first()) || pictures.isEmpty());
        QCOMPARE(SongFiles::audioDigest(path), audio);
    }

    void plainFieldsServeWithoutTag()
    {
        MediaFileTags tags;
        tags.setValue("artist"_s, "A"_s);
        tags.setValue("track"_s, "3 / 9"_s);
        tags.setValue("lyrics"_s, "nowhere to go"_s);
        QCOMPARE(valuesOf(tags), (Values{{"artist"_s, "A"_s}, {"track"_s, "3"_s}}));
        const SongFiles files;
        QVERIFY(!tags.save(files.path("vanished.mp3"_s)));
        QVERIFY(!QFile::exists(files.path("vanished.mp3"_s)));
        const QString path = files.copy("plain.ogg"_s);
        QVERIFY(tags.save(path));
        QCOMPARE(SongFiles::tagsOf(path).value("artists"_s).toArray(), QJsonArray{"A"_s});
        QCOMPARE(SongFiles::tagsOf(path).value("title"_s).toString(), "The Song"_s);
    }
};

QTEST_GUILESS_MAIN(tst_MediaFileTags)
#include "tst_mediafiletags.moc"
