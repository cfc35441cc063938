// SPDX-License-Identifier: MIT
#include "tags/MediaFileTags.h"
#include "tags/SongFiles.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

#include <sys/stat.h>

using Values = QMap<QString, QString>;

namespace {

const QStringList allKeys{QStringLiteral("title"),  QStringLiteral("artist"),   QStringLiteral("album"),
                          QStringLiteral("year"),   QStringLiteral("genre"),    QStringLiteral("comment"),
                          QStringLiteral("rating"), QStringLiteral("bpm"),      QStringLiteral("track"),
                          QStringLiteral("disc"),   QStringLiteral("composer"), QStringLiteral("albumArtist"),
                          QStringLiteral("lyrics")};

Values valuesOf(const MediaFileTags &tags)
{
    Values values;
    for (const QString &key : allKeys) {
        if (!tags.value(key).isEmpty())
            values.insert(key, tags.value(key));
    }
    return values;
}

const Values basics{{QStringLiteral("title"), QStringLiteral("The Song")},
                    {QStringLiteral("artist"), QStringLiteral("The Artist")},
                    {QStringLiteral("album"), QStringLiteral("The Album")},
                    {QStringLiteral("year"), QStringLiteral("2001")},
                    {QStringLiteral("genre"), QStringLiteral("Rock")}};

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
    void songsAreRead_data();
    void songsAreRead();
    void copiesAreIndependent();
    void picturesAreFound_data();
    void picturesAreFound();
    void otherFilesGiveEmptyRecords_data();
    void otherFilesGiveEmptyRecords();
    void recordsAreSaved_data();
    void recordsAreSaved();
    void plainFieldsServeWithoutTag();
};

void tst_MediaFileTags::songsAreRead_data()
{
    QTest::addColumn<Values>("expected");
    const Values track{{QStringLiteral("track"), QStringLiteral("3/9")}};
    const Values full = with(with(basics, track), {{QStringLiteral("disc"), QStringLiteral("1/2")},
                                                   {QStringLiteral("bpm"), QStringLiteral("120")},
                                                   {QStringLiteral("composer"), QStringLiteral("The Composer")},
                                                   {QStringLiteral("albumArtist"), QStringLiteral("Album Artist")}});
    const Values words{{QStringLiteral("lyrics"), QStringLiteral("Old words\nof café")}};
    const Values comment{{QStringLiteral("comment"), QStringLiteral("old")}};

    QTest::newRow("plain-v23.mp3") << full;
    QTest::newRow("plain-v24.mp3") << full;
    QTest::newRow("v1-only.mp3") << with(basics, comment);
    QTest::newRow("v1-fills-v2.mp3") << with(with(with(basics, track), comment),
                                             {{QStringLiteral("title"), QStringLiteral("Title Of One")}});
    QTest::newRow("untagged.mp3") << Values();
    QTest::newRow("apev2.mp3") << with(basics, track);
    QTest::newRow("two-artists.mp3") << with(
        with(basics, track), {{QStringLiteral("artist"), QStringLiteral("First Artist Second Artist")}});
    QTest::newRow("lyrics.mp3") << with(with(basics, track),
                                        {{QStringLiteral("lyrics"), QStringLiteral("Alte Worte")}});
    QTest::newRow("rated.mp3") << with(with(basics, track), {{QStringLiteral("rating"), QStringLiteral("4")}});
    QTest::newRow("plain.flac") << with(
        full, {{QStringLiteral("disc"), QStringLiteral("1")}, {QStringLiteral("rating"), QStringLiteral("4")}});
    QTest::newRow("id3.flac") << with(basics, track);
    QTest::newRow("plain.ogg") << with(basics, track);
    QTest::newRow("lyrics.ogg") << with(with(basics, track), words);
    QTest::newRow("plain.opus") << with(basics, track);
    QTest::newRow("rich.m4a") << with(with(full, words), {{QStringLiteral("disc"), QStringLiteral("1")},
                                                          {QStringLiteral("rating"), QStringLiteral("5")}});
    Values wma = with(with(full, words), {{QStringLiteral("track"), QStringLiteral("3")},
                                          {QStringLiteral("rating"), QStringLiteral("4")}});
    wma.remove(QStringLiteral("disc"));
    QTest::newRow("lyrics.wma") << wma;
    QTest::newRow("plain.aiff") << with(basics, track);
    // Of the chunk in a WAV file basic values are taken alone; TagLib carries the number of the track over with them.
    QTest::newRow("id3.wav") << with(basics, {{QStringLiteral("track"), QStringLiteral("3")}});
    Values info = basics;
    info.remove(QStringLiteral("year"));
    info.remove(QStringLiteral("genre"));
    QTest::newRow("info.wav") << info;
    QTest::newRow("plain.ape") << basics;
    QTest::newRow("plain.wv") << basics;
}

void tst_MediaFileTags::songsAreRead()
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

void tst_MediaFileTags::copiesAreIndependent()
{
    const SongFiles files;
    MediaFileTags tags;
    QVERIFY(tags.read(files.copy(QStringLiteral("lyrics.mp3"))));
    MediaFileTags copy = tags;
    copy.setValue(QStringLiteral("lyrics"), QStringLiteral("new"));
    QCOMPARE(tags.value(QStringLiteral("lyrics")), QStringLiteral("Alte Worte"));
    tags = copy;
    copy = MediaFileTags();
    QCOMPARE(tags.value(QStringLiteral("lyrics")), QStringLiteral("new"));
    QCOMPARE(copy.value(QStringLiteral("lyrics")), QString());
}

void tst_MediaFileTags::picturesAreFound_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("thumbnail");
    const QSize wide(60, 40);
    const QSize wideThumbnail(50, 33);
    QTest::newRow("cover.mp3") << 1 << QSize(100, 400) << QSize(13, 50);
    QTest::newRow("rich.mp3") << 1 << wide << wideThumbnail;
    QTest::newRow("block-cover.flac") << 1 << wide << wideThumbnail;
    QTest::newRow("comment-cover.flac") << 1 << wide << wideThumbnail;
    QTest::newRow("cover.ogg") << 1 << wide << wideThumbnail;
    QTest::newRow("rich.m4a") << 1 << wide << wideThumbnail;
    QTest::newRow("plain.wma") << 1 << wide << wideThumbnail;
    QTest::newRow("plain.mp3 without any") << 0 << QSize() << QSize();
}

void tst_MediaFileTags::picturesAreFound()
{
    QFETCH(int, count);
    const SongFiles files;
    const QString sample = count > 0 ? QString::fromLatin1(QTest::currentDataTag()) : QStringLiteral("plain-v23.mp3");
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

void tst_MediaFileTags::otherFilesGiveEmptyRecords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("opens");
    for (const char *name : {"vanished.mp3", "fifo.mp3", "directory.mp3", "unreadable.mp3", "/dev/zero", ""})
        QTest::newRow(name[0] ? name : "no name") << QString::fromLatin1(name) << false;
    QTest::newRow("text named .flac") << QStringLiteral("text.flac") << false;
    QTest::newRow("empty .ogg") << QStringLiteral("empty.ogg") << false;
    // An MPEG file needs no header, so anything under such a name opens; it has no playing time.
    QTest::newRow("text named .mp3") << QStringLiteral("text.mp3") << true;
    QTest::newRow("empty .mp3") << QStringLiteral("empty.mp3") << true;
}

void tst_MediaFileTags::otherFilesGiveEmptyRecords()
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
        QVERIFY(QFile::setPermissions(files.copy(QStringLiteral("rich.mp3"), name), QFile::WriteOwner));
    const AsOrdinaryUser user;
    MediaFileTags tags;
    tags.setValue(QStringLiteral("title"), QStringLiteral("of an earlier file"));
    QCOMPARE(tags.read(path), opens);
    const bool isNoFile = name == QLatin1String("fifo.mp3") || name == QLatin1String("directory.mp3") ||
                          name == QLatin1String("/dev/zero");
    QCOMPARE(tags.readFailure(), isNoFile ? tags::ReadFailure::NotRegular : tags::ReadFailure::None);
    QCOMPARE(valuesOf(tags), Values());
    QCOMPARE(tags.duration(), 0);
    QCOMPARE(tags.pictureCount(), 0);
}

void tst_MediaFileTags::recordsAreSaved_data()
{
    QTest::addColumn<QStringList>("lost");
    const QStringList basicOnly = allKeys.mid(6);
    QTest::newRow("rich.mp3") << QStringList();
    QTest::newRow("v1-only.mp3") << QStringList();
    QTest::newRow("block-cover.flac") << QStringList();
    QTest::newRow("cover.ogg") << QStringList();
    QTest::newRow("rich.m4a") << QStringList();
    QTest::newRow("plain.wma") << QStringList{QStringLiteral("disc")};
    QTest::newRow("plain.aiff") << QStringList();
    QTest::newRow("plain.ape") << basicOnly;
}

void tst_MediaFileTags::recordsAreSaved()
{
    QFETCH(QStringList, lost);
    const SongFiles files;
    const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
    const QByteArray audio = SongFiles::audioDigest(path);
    const QJsonArray pictures = SongFiles::tagsOf(path).value(QStringLiteral("pictures")).toArray();
    const Values values{{QStringLiteral("title"), QStringLiteral("Ночь")},
                        {QStringLiteral("artist"), QStringLiteral("Someone")},
                        {QStringLiteral("album"), QStringLiteral("Elsewhere")},
                        {QStringLiteral("year"), QStringLiteral("1984")},
                        {QStringLiteral("genre"), QStringLiteral("Jazz")},
                        {QStringLiteral("comment"), QStringLiteral("heard live")},
                        {QStringLiteral("rating"), QStringLiteral("3")},
                        {QStringLiteral("bpm"), QStringLiteral("99")},
                        {QStringLiteral("track"), QStringLiteral("5/6")},
                        {QStringLiteral("disc"), QStringLiteral("2/3")},
                        {QStringLiteral("composer"), QStringLiteral("C")},
                        {QStringLiteral("albumArtist"), QStringLiteral("AA")},
                        {QStringLiteral("lyrics"), QStringLiteral("one\r\ntwo")}};
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
    QCOMPARE(seen.value(QStringLiteral("title")).toString(), values.value(QStringLiteral("title")));
    QVERIFY(seen.value(QStringLiteral("pictures")).toArray().contains(pictures.first()) || pictures.isEmpty());
    QCOMPARE(SongFiles::audioDigest(path), audio);
}

void tst_MediaFileTags::plainFieldsServeWithoutTag()
{
    MediaFileTags tags;
    tags.setValue(QStringLiteral("artist"), QStringLiteral("A"));
    tags.setValue(QStringLiteral("track"), QStringLiteral("3 / 9"));
    tags.setValue(QStringLiteral("lyrics"), QStringLiteral("nowhere to go"));
    QCOMPARE(valuesOf(tags),
             (Values{{QStringLiteral("artist"), QStringLiteral("A")}, {QStringLiteral("track"), QStringLiteral("3")}}));
    const SongFiles files;
    QVERIFY(!tags.save(files.path(QStringLiteral("vanished.mp3"))));
    QVERIFY(!QFile::exists(files.path(QStringLiteral("vanished.mp3"))));
    const QString path = files.copy(QStringLiteral("plain.ogg"));
    QVERIFY(tags.save(path));
    QCOMPARE(SongFiles::tagsOf(path).value(QStringLiteral("artists")).toArray(), QJsonArray{QStringLiteral("A")});
    QCOMPARE(SongFiles::tagsOf(path).value(QStringLiteral("title")).toString(), QStringLiteral("The Song"));
}

QTEST_GUILESS_MAIN(tst_MediaFileTags)
#include "tst_mediafiletags.moc"
