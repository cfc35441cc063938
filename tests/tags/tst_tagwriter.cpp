// SPDX-License-Identifier: MIT
#include "tags/MediaFileTags.h"
#include "tags/SongFiles.h"
#include "tags/TagWriter.h"
#include "tags/WriterThread.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QtEndian>

#include <sys/stat.h>

using namespace std::chrono_literals;

class tst_TagWriter : public QObject
{
    Q_OBJECT

private slots:
    void lyricsAreStored_data();
    void lyricsAreStored();
    void usltFramesAreEncoded_data();
    void usltFramesAreEncoded();
    void namesAreStored_data();
    void namesAreStored();
    void nothingNewLeavesTheFileAlone_data();
    void nothingNewLeavesTheFileAlone();
    void emptyLyricsRemoveTheStored_data();
    void emptyLyricsRemoveTheStored();
    void lyricsNobodyEditedStay_data();
    void lyricsNobodyEditedStay();
    void editsReachEachTag_data();
    void editsReachEachTag();
    void otherTagsKeepTheirBytes_data();
    void otherTagsKeepTheirBytes();
    void formatsBesideId3v1TakeLyrics_data();
    void formatsBesideId3v1TakeLyrics();
    void chunksKeepTheirVersion_data();
    void chunksKeepTheirVersion();
    void riffInfoIsLeftAlone();
    void refusalsHaveAReason_data();
    void refusalsHaveAReason();
    void oddNamesAreWritten_data();
    void oddNamesAreWritten();
    void writesAreCountedAndOrdered();
    void aWriterThatDiesIsNotWaitedFor();
    void waitingGivesUpWithoutProgress();
    void slowWritesAreWaitedFor_data();
    void slowWritesAreWaitedFor();

private:
    struct Answer
    {
        QStringList reasons;
        int written = 0;
    };
    static Answer write(const QString &path, const QString &artist, const QString &title, const QString &lyrics);
    static QJsonObject without(QJsonObject tags, std::initializer_list<const char *> keys);
};

namespace {

const QString words = QStringLiteral("First line\nsecond line\n\nlast line");
const QString song = QStringLiteral("The Song");
const QString artist = QStringLiteral("The Artist");

QString lyricsSeen(const QJsonObject &tags)
{
    const QJsonArray lyrics = tags.value(QStringLiteral("lyrics")).toArray();
    return lyrics.size() == 1 ? lyrics.first().toString() : QStringLiteral("%1 lyrics").arg(lyrics.size());
}

constexpr int id3v1Size = 128;

QByteArray id3v1Tag(const QString &title, const QString &artistName)
{
    const auto field = [](const QString &text) {
        return text.toLatin1().leftJustified(30, '\0', true);
    };
    return "TAG" + field(title) + field(artistName) + field(QStringLiteral("The Album")) + "2001" + field({}) + '\x11';
}

QString id3v1Artist(const QString &path)
{
    const QByteArray tag = SongFiles::bytes(path).right(id3v1Size);
    return tag.startsWith("TAG") ? QString::fromLatin1(tag.mid(33, 30).constData()) : QString();
}

QByteArray littleEndian(int number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

// Version 2, with a footer alone.
QByteArray apeTag(const QVector<QPair<QByteArray, QByteArray>> &items)
{
    QByteArray content;
    for (const auto &[name, text] : items)
        content += littleEndian(text.size()) + littleEndian(0) + name + '\0' + text;
    return content + "APETAGEX" + littleEndian(2000) + littleEndian(content.size() + 32) + littleEndian(items.size()) +
           littleEndian(0) + QByteArray(8, '\0');
}

QByteArray withFormSize(QByteArray aiff)
{
    qToBigEndian(aiff.size() - 8, aiff.data() + 4);
    return aiff;
}

// Keeps the writer thread busy until it is released.
class BusyWriter
{
public:
    BusyWriter()
    {
        QMetaObject::invokeMethod(
            &m_writer, [this] { m_gate.acquire(); }, Qt::QueuedConnection);
    }
    ~BusyWriter()
    {
        release();
        TagWriter::waitForQueued(10s);
        QMetaObject::invokeMethod(
            &m_writer, [this, home = QThread::currentThread()] { m_writer.moveToThread(home); },
            Qt::BlockingQueuedConnection);
    }
    Q_DISABLE_COPY(BusyWriter)
    void release() { m_gate.release(); }

private:
    QSemaphore m_gate;
    TagWriter m_writer;
};

} // namespace

tst_TagWriter::Answer tst_TagWriter::write(const QString &path, const QString &artistName, const QString &title,
                                           const QString &lyrics)
{
    constexpr quint16 id = 65535;
    QPointer<TagWriter> writer = new TagWriter;
    QSignalSpy failed(writer, &TagWriter::failed);
    QSignalSpy written(writer, &TagWriter::written);
    Answer answer;
    QObject context; // its slots run here, so the order of the signals is seen as a user of the class sees it
    connect(writer, &TagWriter::failed, &context, [&answer](quint16 number, const QString &reason) {
        answer.reasons.append(number == id && answer.written == 0 ? reason : QStringLiteral("wrong id or order"));
    });
    connect(writer, &TagWriter::written, &context, [&answer](quint16 number) { answer.written += number == id; });
    writer->queueWrite(QUrl::fromLocalFile(path), id, artistName, title, lyrics);
    if (!QTest::qWaitFor([&answer] { return answer.written > 0; }, 20'000))
        return {{QStringLiteral("no answer")}, 0};
    writer->deleteLater();
    if (!QTest::qWaitFor([&writer] { return writer.isNull(); }, 20'000))
        return {{QStringLiteral("writer not deleted")}, 0};
    return answer;
}

QJsonObject tst_TagWriter::without(QJsonObject tags, std::initializer_list<const char *> keys)
{
    for (const char *key : keys)
        tags.remove(QString::fromLatin1(key));
    return tags;
}

void tst_TagWriter::lyricsAreStored_data()
{
    QTest::addColumn<QString>("id3");
    QTest::addColumn<bool>("readBack");
    QTest::newRow("plain-v23.mp3") << "2.3.0" << true;
    QTest::newRow("plain-v24.mp3") << "2.4.0" << true;
    QTest::newRow("untagged.mp3") << "2.3.0" << true;
    QTest::newRow("v1-only.mp3") << "2.3.0" << true;
    QTest::newRow("v1-and-v2.mp3") << "2.3.0" << true;
    QTest::newRow("v1-fills-v2.mp3") << "2.3.0" << true;
    QTest::newRow("apev2.mp3") << "2.3.0" << true;
    QTest::newRow("two-artists.mp3") << "2.4.0" << true;
    QTest::newRow("lyrics.mp3") << "2.4.0" << true;
    QTest::newRow("rated.mp3") << "2.3.0" << true;
    QTest::newRow("rich.mp3") << "2.4.0" << true;
    QTest::newRow("plain.aiff") << "2.4.0" << true;
    QTest::newRow("id3.wav") << "2.4.0" << false;
    QTest::newRow("info.wav") << "2.3.0" << false;
    for (const char *name : {"block-cover.flac", "comment-cover.flac", "plain.flac", "id3.flac", "cover.ogg",
                             "lyrics.ogg", "plain.opus", "plain.m4a", "rich.m4a", "plain.wma", "lyrics.wma"})
        QTest::newRow(name) << QString() << true;
    QTest::newRow("plain.ape") << QString() << false;
    QTest::newRow("plain.wv") << QString() << false;
}

void tst_TagWriter::lyricsAreStored()
{
    QFETCH(QString, id3);
    QFETCH(bool, readBack);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const SongFiles files;
    const QString path = files.copy(name);
    const QJsonObject before = SongFiles::tagsOf(path);
    const QByteArray audio = SongFiles::audioDigest(path);
    MediaFileTags tags;
    QVERIFY(tags.read(path));

    // As the program does it: with the names that it read.
    const Answer answer = write(path, tags.value(QStringLiteral("artist")), tags.value(QStringLiteral("title")), words);
    QCOMPARE(answer.reasons, QStringList());
    QCOMPARE(answer.written, 1);

    const QJsonObject after = SongFiles::tagsOf(path);
    const bool isId3 = !id3.isEmpty();
    QCOMPARE(lyricsSeen(after), isId3 ? QString(words).replace(QLatin1String("\n"), QLatin1String("\r\n")) : words);
    QCOMPARE(after.value(QStringLiteral("id3")).toString(), id3);
    QCOMPARE(SongFiles::audioDigest(path), audio);
    // A tag that is new takes over what the tags say that it hides from this reader.
    const bool newTag = name == QLatin1String("v1-only.mp3") || name == QLatin1String("info.wav");
    QJsonObject expected = before;
    for (const char *key : {"lyrics", "usltEncodings", "id3"})
        expected[QString::fromLatin1(key)] = after.value(QString::fromLatin1(key));
    for (const char *key : {"title", "artists", "others"}) {
        if (newTag)
            expected[QString::fromLatin1(key)] = after.value(QString::fromLatin1(key));
    }
    QCOMPARE(after, expected);
    MediaFileTags reread;
    QVERIFY(reread.read(path));
    for (const char *key : {"title", "artist", "album", "year", "genre", "rating", "bpm", "composer"})
        QCOMPARE(reread.value(QString::fromLatin1(key)), tags.value(QString::fromLatin1(key)));
    QCOMPARE(reread.value(QStringLiteral("lyrics")), readBack ? lyricsSeen(after) : QString());
}

void tst_TagWriter::usltFramesAreEncoded_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("lyrics");
    QTest::addColumn<int>("encoding");
    const QString v3 = QStringLiteral("plain-v23.mp3");
    const QString v4 = QStringLiteral("plain-v24.mp3");
    QTest::newRow("7-bit text is Latin-1 in 2.4") << v4 << QStringLiteral("plain~") << 0;
    QTest::newRow("7-bit text is Latin-1 in 2.3") << v3 << QStringLiteral("plain~") << 0;
    QTest::newRow("an accent makes it UTF-8 in 2.4") << v4 << QStringLiteral("café") << 3;
    // ID3v2.3 knows no UTF-8; TagLib stores UTF-16 instead.
    QTest::newRow("an accent makes it UTF-16 in 2.3") << v3 << QStringLiteral("café") << 1;
    QTest::newRow("the first character beyond") << v4 << QStringLiteral("\u0080x") << 3;
    QTest::newRow("beyond the basic plane") << v4 << QStringLiteral("𝄞 歌") << 3;
    QTest::newRow("beyond the basic plane in 2.3") << v3 << QStringLiteral("𝄞 歌") << 1;
}

void tst_TagWriter::usltFramesAreEncoded()
{
    QFETCH(QString, sample);
    QFETCH(int, encoding);
    QFETCH(QString, lyrics);
    const SongFiles files;
    const QString path = files.copy(sample);
    QCOMPARE(write(path, {}, {}, lyrics).reasons, QStringList());
    const QJsonObject tags = SongFiles::tagsOf(path);
    QCOMPARE(tags.value(QStringLiteral("usltEncodings")).toArray(), QJsonArray{encoding});
    QCOMPARE(lyricsSeen(tags), lyrics);
}

void tst_TagWriter::namesAreStored_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("newArtist");
    QTest::addColumn<QString>("newTitle");
    QTest::addColumn<QStringList>("artists");
    QTest::addColumn<QString>("title");
    const QString two = QStringLiteral("two-artists.mp3");
    const QStringList firstAndSecond{QStringLiteral("First Artist"), QStringLiteral("Second Artist")};
    QTest::newRow("two artists as they were read")
        << two << "First Artist Second Artist" << song << firstAndSecond << song;
    QTest::newRow("two artists as they would be written")
        << two << R"(First Artist\\Second Artist)" << song << firstAndSecond << song;
    QTest::newRow("two artists become one") << two << "Other" << song << QStringList{QStringLiteral("Other")} << song;
    QTest::newRow("one artist becomes two")
        << "plain-v24.mp3"
        << R"(A\\B)" << QString() << QStringList{QStringLiteral("A"), QStringLiteral("B")} << song;
    QTest::newRow("a new title leaves the artists alone") << two << "First Artist Second Artist"
                                                          << "Nächte" << firstAndSecond << "Nächte";
    QTest::newRow("empty names change nothing") << two << QString() << QString() << firstAndSecond << song;
    for (const char *sample : {"plain-v23.mp3", "untagged.mp3", "plain.flac", "id3.flac", "plain.ogg", "plain.m4a",
                               "plain.wma", "plain.aiff", "id3.wav", "info.wav", "plain.ape"})
        QTest::addRow("new names in %s", sample) << sample << "Ёлка"
                                                 << "Новое" << QStringList{QStringLiteral("Ёлка")} << "Новое";
    QTest::newRow("names that only RIFF INFO held") << "info.wav" << artist << song << QStringList{artist} << song;
}

void tst_TagWriter::namesAreStored()
{
    QFETCH(QString, sample);
    QFETCH(QString, newArtist);
    QFETCH(QString, newTitle);
    QFETCH(QStringList, artists);
    const SongFiles files;
    const QString path = files.copy(sample);
    QCOMPARE(write(path, newArtist, newTitle, words).reasons, QStringList());
    const QJsonObject tags = SongFiles::tagsOf(path);
    QCOMPARE(tags.value(QStringLiteral("artists")).toArray(), QJsonArray::fromStringList(artists));
    QTEST(tags.value(QStringLiteral("title")).toString(), "title");
    if (!newTitle.isEmpty()) {
        MediaFileTags reread;
        QVERIFY(reread.read(path));
        QCOMPARE(reread.value(QStringLiteral("title")), newTitle);
        QCOMPARE(reread.value(QStringLiteral("artist")), artists.join(QLatin1Char(' ')));
    }
}

void tst_TagWriter::nothingNewLeavesTheFileAlone_data()
{
    QTest::addColumn<QString>("lyrics");
    QTest::newRow("lyrics.ogg") << "Old words\nof café";
    QTest::newRow("rich.m4a") << "Old words\nof café";
    QTest::newRow("lyrics.wma") << "Old words\nof café";
    QTest::newRow("id3.wav") << "Old words";
    QTest::newRow("plain-v23.mp3") << QString();
    QTest::newRow("v1-only.mp3") << QString();
    QTest::newRow("v1-fills-v2.mp3") << QString();
    QTest::newRow("plain.flac") << QString();
    QTest::newRow("plain.ape") << QString();
}

void tst_TagWriter::nothingNewLeavesTheFileAlone()
{
    QFETCH(QString, lyrics);
    const SongFiles files;
    const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
    MediaFileTags tags;
    QVERIFY(tags.read(path));
    const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();
    const QByteArray before = SongFiles::bytes(path);
    for (const bool named : {true, false}) {
        const QString artistName = named ? tags.value(QStringLiteral("artist")) : QString();
        const QString title = named ? tags.value(QStringLiteral("title")) : QString();
        const Answer answer = write(path, artistName, title, lyrics);
        QCOMPARE(answer.reasons, QStringList());
        QCOMPARE(answer.written, 1);
    }
    QCOMPARE(SongFiles::bytes(path), before);
    QCOMPARE(QFileInfo(path).lastModified(), longAgo);
}

void tst_TagWriter::emptyLyricsRemoveTheStored_data()
{
    QTest::addColumn<QString>("sample");
    for (const char *sample : {"lyrics.mp3", "lyrics.ogg", "rich.m4a", "lyrics.wma", "plain.flac"})
        QTest::newRow(sample) << sample;
}

void tst_TagWriter::emptyLyricsRemoveTheStored()
{
    QFETCH(QString, sample);
    const SongFiles files;
    const QString path = files.copy(sample);
    const QJsonObject before = SongFiles::tagsOf(path);
    QCOMPARE(write(path, artist, song, words).reasons, QStringList());
    QVERIFY(!SongFiles::tagsOf(path).value(QStringLiteral("lyrics")).isNull());
    QCOMPARE(write(path, artist, song, QString()).reasons, QStringList());
    const QJsonObject after = SongFiles::tagsOf(path);
    QVERIFY(after.value(QStringLiteral("lyrics")).isNull());
    QCOMPARE(without(after, {"lyrics", "usltEncodings"}), without(before, {"lyrics", "usltEncodings"}));
}

void tst_TagWriter::lyricsNobodyEditedStay_data()
{
    QTest::addColumn<QString>("lyrics");
    // Two USLT frames with descriptions and languages of their own; the first that TagLib names is read.
    QTest::newRow("lyrics.mp3") << "Alte Worte";
    QTest::newRow("lyrics.ogg") << "Old words\r\nof café";
    QTest::newRow("lyrics.wma") << "Old words\rof café";
    // Never read, so nobody can have meant to remove them.
    QTest::newRow("id3.wav") << QString();
    QTest::newRow("plain.ape") << QString();
    QTest::newRow("plain.wv") << QString();
}

void tst_TagWriter::lyricsNobodyEditedStay()
{
    QFETCH(QString, lyrics);
    const SongFiles files;
    const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
    if (SongFiles::tagsOf(path).value(QStringLiteral("lyrics")).isNull())
        QCOMPARE(write(path, {}, {}, words).reasons, QStringList());
    QJsonObject expected = SongFiles::tagsOf(path);
    QCOMPARE(write(path, artist, QStringLiteral("New"), lyrics).reasons, QStringList());
    expected[QStringLiteral("title")] = QStringLiteral("New");
    QCOMPARE(SongFiles::tagsOf(path), expected);
}

void tst_TagWriter::editsReachEachTag_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("newArtist");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("id3v1");
    const QString v1AndV2 = QStringLiteral("v1-and-v2.mp3");
    const QString latin = QStringLiteral("Café");
    const QString longName = QString(35, QLatin1Char('x'));
    QTest::newRow("both take a name of Latin-1") << v1AndV2 << latin << latin << latin;
    QTest::newRow("ID3v1 cannot hold it") << v1AndV2 << QStringLiteral("Ёлка") << QStringLiteral("Ёлка") << artist;
    QTest::newRow("ID3v1 cuts it") << v1AndV2 << longName << longName << longName.left(30);
    QTest::newRow("ID3v1 takes one artist") << v1AndV2 << R"(A\\B)" << QStringLiteral("A") << QStringLiteral("A");
    QTest::newRow("a later tag holds it already") << QStringLiteral("id3.flac") << artist << artist << QString();
}

void tst_TagWriter::editsReachEachTag()
{
    QFETCH(QString, sample);
    QFETCH(QString, newArtist);
    const SongFiles files;
    QByteArray content = SongFiles::bytes(files.copy(sample));
    content.replace("artist=The Artist", "artist=Old Artist"); // in a Vorbis comment alone
    const QString path = files.write(sample, content);
    MediaFileTags tags;
    QVERIFY(tags.read(path));
    QCOMPARE(write(path, newArtist, tags.value(QStringLiteral("title")), words).reasons, QStringList());
    const QJsonObject after = SongFiles::tagsOf(path);
    QTEST(after.value(QStringLiteral("artists")).toArray().first().toString(), "first");
    QTEST(id3v1Artist(path), "id3v1");
}

void tst_TagWriter::otherTagsKeepTheirBytes_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("artistSeen");
    QTest::newRow("lyrics beside both") << "plain-v24.mp3" << QString() << artist;
    QTest::newRow("a title that both hold already") << "plain-v24.mp3"
                                                    << "Of The Others" << artist;
    // The new tag takes over APE's artist, since ID3v1's may be cut.
    QTest::newRow("a new tag beside both") << "untagged.mp3" << QString() << QStringLiteral("Artist Of APE");
}

void tst_TagWriter::otherTagsKeepTheirBytes()
{
    QFETCH(QString, sample);
    QFETCH(QString, title);
    const SongFiles files;
    // What a library would write differently: bytes after the end of a text, items in an order of their own.
    QByteArray tail = apeTag({{"Year", "1999"}, {"Title", "Of The Others"}, {"ARTIST", "Artist Of APE"}}) +
                      id3v1Tag(QStringLiteral("Of The Others"), QStringLiteral("Artist Of One"));
    tail[tail.size() - id3v1Size + 3 + 29] = '!';
    const QString path = files.write(QStringLiteral("song.mp3"), SongFiles::bytes(files.copy(sample)) + tail);
    QCOMPARE(write(path, {}, title, words).reasons, QStringList());
    QVERIFY(SongFiles::bytes(path).endsWith(tail));
    const QJsonObject tags = SongFiles::tagsOf(path);
    QTEST(tags.value(QStringLiteral("artists")).toArray().first().toString(), "artistSeen");
    QCOMPARE(lyricsSeen(tags), QString(words).replace(QLatin1String("\n"), QLatin1String("\r\n")));
    if (sample == QLatin1String("untagged.mp3")) // ID3v1 gives what APE has not
        QCOMPARE(
            tags.value(QStringLiteral("others")).toObject().value(QStringLiteral("TALB")).toArray().first().toString(),
            QStringLiteral("TALB=The Album"));
}

void tst_TagWriter::formatsBesideId3v1TakeLyrics_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::newRow("song.ape") << QByteArray();
    QTest::newRow("song.wv") << QByteArray();
    // Stream version 7, 100 frames, 44100 Hz.
    QTest::newRow("song.mpc") << QByteArray::fromHex("4d502b07"
                                                     "64000000") +
                                     QByteArray(512, '\0');
    // Integer samples, stereo, 16 bits, 44100 Hz, 88200 samples.
    QTest::newRow("song.tta") << QByteArray::fromHex("54544131"
                                                     "0100"
                                                     "0200"
                                                     "1000"
                                                     "44ac0000"
                                                     "88580100") +
                                     QByteArray(512, '\0');
}

void tst_TagWriter::formatsBesideId3v1TakeLyrics()
{
    QFETCH(QByteArray, header);
    const SongFiles files;
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    if (header.isEmpty()) {
        const QByteArray tagged = SongFiles::bytes(files.copy(QString(name).replace(0, 4, QStringLiteral("plain"))));
        header = tagged.left(tagged.lastIndexOf("APETAGEX", tagged.size() - 40)); // before the header of the tag
    }
    const QString path = files.write(name, header + id3v1Tag(song, artist));
    QCOMPARE(write(path, artist, song, QStringLiteral("words")).reasons, QStringList());
    const QJsonObject tags = SongFiles::tagsOf(path);
    QCOMPARE(lyricsSeen(tags), QStringLiteral("words"));
    QCOMPARE(tags.value(QStringLiteral("title")).toString(), song);
    QCOMPARE(tags.value(QStringLiteral("artists")).toArray(), QJsonArray{artist});
    QVERIFY(SongFiles::bytes(path).contains(header));
    QCOMPARE(id3v1Artist(path), artist);
}

void tst_TagWriter::chunksKeepTheirVersion_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("version");
    QTest::newRow("WAV without a chunk takes 2.3") << "info.wav"
                                                   << "2.3.0";
    QTest::newRow("WAV with 2.4") << "id3.wav"
                                  << "2.4.0";
    QTest::newRow("AIFF without a chunk takes 2.3") << "untagged.aiff"
                                                    << "2.3.0";
    QTest::newRow("AIFF with 2.4") << "plain.aiff"
                                   << "2.4.0";
}

void tst_TagWriter::chunksKeepTheirVersion()
{
    QFETCH(QString, sample);
    QFETCH(QString, version);
    const SongFiles files;
    QString path = files.path(sample);
    if (sample == QLatin1String("untagged.aiff")) {
        const QByteArray tagged = SongFiles::bytes(files.copy(QStringLiteral("plain.aiff")));
        (void)files.write(sample, withFormSize(tagged.left(tagged.lastIndexOf("ID3 "))));
    } else {
        path = files.copy(sample);
    }
    for (const char *lyrics : {"first", "second"}) {
        QCOMPARE(write(path, artist, song, QString::fromLatin1(lyrics)).reasons, QStringList());
        const QJsonObject tags = SongFiles::tagsOf(path);
        QCOMPARE(lyricsSeen(tags), QString::fromLatin1(lyrics));
        QCOMPARE(tags.value(QStringLiteral("id3")).toString(), version);
    }
}

void tst_TagWriter::riffInfoIsLeftAlone()
{
    const SongFiles files;
    const QByteArray before = SongFiles::bytes(files.copy(QStringLiteral("info.wav")));
    QByteArray wav = before;
    wav.replace("The Artist", "Beyonc\xe9 XY"); // not UTF-8
    const QString path = files.write(QStringLiteral("latin1.wav"), wav);
    const QString name = QStringLiteral("Beyoncé XY");
    MediaFileTags tags;
    QVERIFY(tags.read(path));
    QCOMPARE(tags.value(QStringLiteral("artist")), name);
    QCOMPARE(write(path, name, QStringLiteral("New"), words).reasons, QStringList());
    const QJsonObject after = SongFiles::tagsOf(path);
    QCOMPARE(after.value(QStringLiteral("artists")).toArray(), QJsonArray{name});
    QCOMPARE(after.value(QStringLiteral("title")).toString(), QStringLiteral("New"));
    QVERIFY(SongFiles::bytes(path).mid(8).startsWith(wav.mid(8))); // all but the size of the file
}

void tst_TagWriter::refusalsHaveAReason_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("vanished") << "vanished.mp3"
                              << "the file is no longer there";
    QTest::newRow("FIFO") << "fifo.mp3"
                          << "this is not a regular file";
    QTest::newRow("directory") << "directory.mp3"
                               << "this is not a regular file";
    QTest::newRow("read-only") << "plain-v24.mp3"
                               << "the file is read-only";
    QTest::newRow("empty") << "empty.mp3"
                           << "no audio was found in the file";
    QTest::newRow("text named .mp3") << "text.mp3"
                                     << "no audio was found in the file";
    QTest::newRow("text named .flac") << "text.flac"
                                      << "the file cannot be opened";
    QTest::newRow("empty .m4a") << "empty.m4a"
                                << "the file cannot be opened";
    QTest::newRow("unknown extension") << "text.doc"
                                       << "the file cannot be opened";
}

void tst_TagWriter::refusalsHaveAReason()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const SongFiles files;
    const QString path = files.path(name);
    const QByteArray native = QFile::encodeName(path);
    if (name == QLatin1String("fifo.mp3"))
        QCOMPARE(::mkfifo(native.constData(), 0666), 0);
    else if (name == QLatin1String("directory.mp3"))
        QCOMPARE(::mkdir(native.constData(), 0777), 0);
    else if (name == QLatin1String("plain-v24.mp3"))
        QCOMPARE(::chmod(QFile::encodeName(files.copy(name)).constData(), 0444), 0);
    else if (name != QLatin1String("vanished.mp3"))
        QCOMPARE(::chmod(QFile::encodeName(files.write(name, name.startsWith(QLatin1String("text")) ? "a list" : ""))
                             .constData(),
                         0666),
                 0);
    const bool isFile = QFileInfo(path).isFile();
    const QByteArray before = isFile ? SongFiles::bytes(path) : QByteArray();
    const Answer answer = [&path] {
        const AsOrdinaryUser user;
        return write(path, artist, song, words);
    }();
    QCOMPARE(answer.reasons, QStringList{reason});
    QCOMPARE(answer.written, 1);
    QCOMPARE(QFileInfo(path).isFile(), isFile);
    QCOMPARE(isFile ? SongFiles::bytes(path) : QByteArray(), before);
    // With nothing to write the path is not even looked at.
    QCOMPARE(write(path, {}, {}, {}).reasons, QStringList());
}

void tst_TagWriter::oddNamesAreWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("hash") << "a#b.mp3";
    QTest::newRow("percent") << "100%25.mp3";
    QTest::newRow("line break") << "a\nb.mp3";
    QTest::newRow("leading dash and blanks") << "-o  x .mp3";
    QTest::newRow("other scripts") << QStringLiteral("Ёж 歌 é.mp3");
    QTest::newRow("the longest name") << QString(251, QLatin1Char('x')) + QStringLiteral(".mp3");
    QTest::newRow("capital extension") << "a.MP3";
}

void tst_TagWriter::oddNamesAreWritten()
{
    QFETCH(QString, name);
    const SongFiles files;
    const QString path = files.copy(QStringLiteral("plain-v24.mp3"), name);
    QCOMPARE(write(path, {}, {}, words).reasons, QStringList());
    MediaFileTags tags;
    QVERIFY(tags.read(path));
    QCOMPARE(tags.value(QStringLiteral("lyrics")), QString(words).replace(QLatin1String("\n"), QLatin1String("\r\n")));
}

void tst_TagWriter::writesAreCountedAndOrdered()
{
    const SongFiles files;
    const QUrl url = QUrl::fromLocalFile(files.copy(QStringLiteral("plain.ogg")));
    QVector<int> order;
    BusyWriter busy;
    for (quint16 id = 1; id <= 5; ++id) {
        auto *writer = new TagWriter;
        connect(writer, &TagWriter::written, this, [&order, writer](quint16 written) {
            QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
            order.append(written);
            writer->deleteLater();
        });
        writer->queueWrite(url, id, artist, song, QStringLiteral("version %1").arg(id));
    }
    QCOMPARE(TagWriter::pendingWrites(), 5);
    busy.release();
    QVERIFY(TagWriter::waitForQueued(20s));
    QCOMPARE(TagWriter::pendingWrites(), 0);
    QCOMPARE(lyricsSeen(SongFiles::tagsOf(url.toLocalFile())), QStringLiteral("version 5"));
    QTRY_COMPARE(order, (QVector<int>{1, 2, 3, 4, 5}));
}

void tst_TagWriter::aWriterThatDiesIsNotWaitedFor()
{
    const SongFiles files;
    const QString path = files.copy(QStringLiteral("plain.ogg"));
    const QByteArray before = SongFiles::bytes(path);
    BusyWriter busy;
    auto *writer = new TagWriter;
    writer->deleteLater();
    writer->queueWrite(QUrl::fromLocalFile(path), 1, artist, song, words);
    QCOMPARE(TagWriter::pendingWrites(), 1);
    busy.release();
    QVERIFY(TagWriter::waitForQueued(20s));
    QCOMPARE(SongFiles::bytes(path), before);
}

void tst_TagWriter::waitingGivesUpWithoutProgress()
{
    BusyWriter busy;
    QPointer<TagWriter> writer = new TagWriter;
    writer->queueWrite(QUrl(), 1, {}, {}, {});
    QVERIFY(!TagWriter::waitForQueued(20ms));
    QCOMPARE(TagWriter::pendingWrites(), 1);
    busy.release();
    QVERIFY(TagWriter::waitForQueued(20s));
    writer->deleteLater();
    QTRY_VERIFY(writer.isNull());
}

void tst_TagWriter::slowWritesAreWaitedFor_data()
{
    QTest::addColumn<bool>("bytesMove");
    QTest::newRow("a little is written again and again") << true;
    QTest::newRow("parts reach the disk one by one") << false;
}

void tst_TagWriter::slowWritesAreWaitedFor()
{
    QFETCH(bool, bytesMove);
    constexpr std::chrono::milliseconds patience = 500ms;
    const SongFiles files;
    const QString path = files.path(QStringLiteral("slow"));
    auto *writer = new TagWriter;
    // In the place of a file on a slow disk, for longer than the patience.
    auto writeSlowly = [writer, path, patience, bytesMove, ticket = tags::WriterThread::instance().takeTicket()] {
        QFile file(path);
        const bool open = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        for (QDeadlineTimer end(patience * 3); open && !end.hasExpired(); QThread::msleep(10)) {
            file.seek(0);
            if (bytesMove)
                file.write("slow");
            else
                tags::WriterThread::instance().noteProgress();
        }
        writer->deleteLater();
    };
    QMetaObject::invokeMethod(writer, std::move(writeSlowly), Qt::QueuedConnection);
    QVERIFY(TagWriter::waitForQueued(patience));
    QCOMPARE(TagWriter::pendingWrites(), 0);
    QCOMPARE(QFileInfo(path).size(), bytesMove ? 4 : 0);
}

QTEST_GUILESS_MAIN(tst_TagWriter)
#include "tst_tagwriter.moc"
