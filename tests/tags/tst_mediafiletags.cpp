// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"
#include "tags/SongFiles.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <sys/stat.h>

using Values = QMap<QString, QString>;
using tags::ReadFailure;

namespace {

Values valuesOf(const MediaFileTags &tags)
{
    Values values;
    for (const QLatin1String key : tags::allKeys) {
        if (!tags.value(key).isEmpty())
            values.insert(key, tags.value(key));
    }
    return values;
}

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
        QTest::addColumn<QSize>("picture");
        const Values names{{"title"_s, "The Song"_s}, {"artist"_s, "The Artist"_s}, {"album"_s, "The Album"_s}};
        const Values basics = with(names, {{"year"_s, "2001"_s}, {"genre"_s, "Rock"_s}});
        const Values track = with(basics, {{"track"_s, "3/9"_s}});
        const Values composer{
            {"composer"_s, "The Composer"_s}, {"albumArtist"_s, "Album Artist"_s}, {"bpm"_s, "120"_s}};
        const Values full = with(with(track, composer), {{"disc"_s, "1/2"_s}});
        const Values comment{{"comment"_s, "old"_s}};
        const Values words{{"lyrics"_s, "Old words\nof café"_s}};
        const QSize wide(60, 40);
        const QSize none;

        addRow("plain-v23.mp3", full, none);
        addRow("plain-v24.mp3", full, none);
        addRow("v1-only.mp3", with(basics, comment), none);
        addRow("v1-fills-v2.mp3", with(with(track, comment), {{"title"_s, "Title Of One"_s}}), none);
        addRow("untagged.mp3", Values(), none);
        addRow("apev2.mp3", track, none);
        addRow("cover.mp3", track, QSize(100, 400));
        addRow("two-artists.mp3", with(track, {{"artist"_s, "First Artist Second Artist"_s}}), none);
        addRow("lyrics.mp3", with(track, {{"lyrics"_s, "Alte Worte"_s}}), none);
        addRow("rated.mp3", with(track, {{"rating"_s, "4"_s}}), none);
        addRow("plain.flac", with(full, {{"disc"_s, "1"_s}, {"rating"_s, "4"_s}}), none);
        addRow("id3.flac", track, none);
        addRow("block-cover.flac", track, wide);
        addRow("comment-cover.flac", track, wide);
        addRow("cover.ogg", track, wide);
        addRow("lyrics.ogg", with(track, words), none);
        addRow("plain.opus", track, none);
        addRow("rich.m4a", with(with(full, words), {{"disc"_s, "1"_s}, {"rating"_s, "5"_s}}), wide);
        addRow("lyrics.wma", with(with(with(basics, composer), words), {{"track"_s, "3"_s}, {"rating"_s, "4"_s}}),
               wide);
        addRow("plain.aiff", track, none);
        // Of the chunk in a WAV file basic values are taken alone; TagLib carries the number of the track over with
        // them.
        addRow("id3.wav", with(basics, {{"track"_s, "3"_s}}), none);
        addRow("info.wav", names, none);
        addRow("plain.ape", basics, none);
        addRow("plain.wv", basics, none);
    }

    void songsAreRead()
    {
        QFETCH(Values, expected);
        QFETCH(QSize, picture);
        const SongFiles files;
        const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
        const QByteArray before = files.read(path);
        MediaFileTags tags;
        QVERIFY(tags.read(path));
        QCOMPARE(valuesOf(tags), expected);
        QCOMPARE(tags.duration(), 2);
        QCOMPARE(tags.pictureCount(), picture.isValid() ? 1 : 0);
        QCOMPARE(tags.image(0).size(), picture.isValid() ? picture : QSize(0, 0));
        QVERIFY(tags.image(-1).isNull() && tags.image(1).isNull() && tags.thumbnail().isNull());
        tags.makeThumbnail();
        QCOMPARE(tags.thumbnail().isNull(), !picture.isValid());
        QCOMPARE(files.read(path), before);
        // A copy has a tag of its own.
        const MediaFileTags copy = MediaFileTags(tags);
        tags.setValue("title"_s, "new"_s);
        tags = MediaFileTags();
        QCOMPARE(valuesOf(copy), expected);
    }

    void otherFilesGiveEmptyRecords()
    {
        const SongFiles files;
        QCOMPARE(::mkfifo(QFile::encodeName(files.path("fifo.mp3"_s)).constData(), 0666), 0);
        // An MPEG file needs no header, so anything under such a name opens; it has no playing time.
        const QString list = files.write("text.mp3"_s, "a shopping list\n");
        for (const QString &path : {files.path("vanished.mp3"_s), files.path("fifo.mp3"_s), "/dev/zero"_s, list}) {
            const bool isRegular = path.startsWith(files.path()) && !path.contains("fifo"_s);
            MediaFileTags tags;
            tags.setValue("title"_s, "of an earlier file"_s);
            QCOMPARE(tags.read(path), path == list);
            QCOMPARE(tags.readFailure(), isRegular ? ReadFailure::None : ReadFailure::NotRegular);
            QCOMPARE(valuesOf(tags), Values());
            QCOMPARE(tags.duration() + tags.pictureCount(), 0);
        }
    }

    void recordsAreSaved_data()
    {
        QTest::addColumn<QStringList>("lost");
        for (const char *name : {"rich.mp3", "v1-only.mp3", "block-cover.flac", "cover.ogg", "rich.m4a", "plain.aiff"})
            addRow(name, QStringList());
        addRow("plain.wma", QStringList{"disc"_s});
        addRow("plain.ape", "rating bpm track disc composer albumArtist lyrics"_s.split(QLatin1Char(' ')));
    }

    void recordsAreSaved()
    {
        QFETCH(QStringList, lost);
        const SongFiles files;
        const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
        const QByteArray audio = files.audioDigest(path);
        const QJsonArray pictures = SongFiles::tagsOf(path).value("pictures"_s).toArray();
        Values values{{"title"_s, "Ночь"_s},     {"artist"_s, "Someone"_s}, {"album"_s, "Elsewhere"_s},
                      {"year"_s, "1984"_s},      {"genre"_s, "Jazz"_s},     {"comment"_s, "heard live"_s},
                      {"rating"_s, "3"_s},       {"bpm"_s, "99"_s},         {"track"_s, "5/6"_s},
                      {"disc"_s, "2/3"_s},       {"composer"_s, "C"_s},     {"albumArtist"_s, "𝄞"_s},
                      {"lyrics"_s, "one\r\nб"_s}};
        MediaFileTags tags;
        QVERIFY(tags.read(path));
        for (auto it = values.begin(); it != values.end(); ++it)
            tags.setValue(it.key(), it.value());
        QVERIFY(tags.save(path));
        MediaFileTags reread;
        QVERIFY(reread.read(path));
        for (const QString &key : lost)
            values.remove(key);
        QCOMPARE(valuesOf(reread), values);
        const QJsonObject seen = SongFiles::tagsOf(path);
        QCOMPARE(seen.value("title"_s).toString(), "Ночь"_s);
        QVERIFY(seen.value("pictures"_s).toArray().contains(pictures.first()) || pictures.isEmpty());
        QCOMPARE(files.audioDigest(path), audio);
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
        QCOMPARE(files.names(), QStringList());
        const QString path = files.copy("plain.ogg"_s);
        QVERIFY(tags.save(path));
        QCOMPARE(SongFiles::tagsOf(path).value("artists"_s).toArray(), QJsonArray{"A"_s});
        QCOMPARE(SongFiles::tagsOf(path).value("title"_s).toString(), "The Song"_s);
    }
};

QTEST_GUILESS_MAIN(tst_MediaFileTags)
#include "tst_mediafiletags.moc"
