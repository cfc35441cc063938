// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
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

namespace {

const QString words = "First line\nsecond line\n\nlast line"_s;
const QString song = "The Song"_s;
const QString artist = "The Artist"_s;

QString lyricsSeen(const QJsonObject &tags)
{
    const QJsonArray lyrics = tags.value("lyrics"_s).toArray();
    return lyrics.size() == 1 ? lyrics.first().toString() : "%1 lyrics"_s.arg(lyrics.size());
}

constexpr int id3v1Size = 128;

QByteArray id3v1Tag(const QString &title, const QString &artistName)
{
    const auto field = [](const QString &text) {
        return text.toLatin1().leftJustified(30, '\0', true);
    };
    return "TAG" + field(title) + field(artistName) + field("The Album"_s) + "2001" + field({}) + '\x11';
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

class tst_TagWriter : public QObject
{
    Q_OBJECT

private slots:
    void lyricsAreStored_data()
    {
        QTest::addColumn<QString>("id3");
        QTest::addColumn<bool>("readBack");
        for (const char *name : {"plain-v23.mp3", "untagged.mp3", "v1-only.mp3", "v1-and-v2.mp3", "v1-fills-v2.mp3",
                                 "apev2.mp3", "rated.mp3"})
            addRow(name, "2.3.0", true);
        for (const char *name : {"plain-v24.mp3", "two-artists.mp3", "lyrics.mp3", "rich.mp3", "plain.aiff"})
            addRow(name, "2.4.0", true);
        addRow("id3.wav", "2.4.0", false);
        addRow("info.wav", "2.3.0", false);
        for (const char *name : {"block-cover.flac", "comment-cover.flac", "plain.flac", "id3.flac", "cover.ogg",
                                 "lyrics.ogg", "plain.opus", "plain.m4a", "rich.m4a", "plain.wma", "lyrics.wma"})
            addRow(name, QString(), true);
        addRow("plain.ape", QString(), false);
        addRow("plain.wv", QString(), false);
    }

    void lyricsAreStored()
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
        const Answer answer = write(path, tags.value("artist"_s), tags.value("title"_s), words);
        QCOMPARE(answer.reasons, QStringList());
        QCOMPARE(answer.written, 1);

        const QJsonObject after = SongFiles::tagsOf(path);
        const bool isId3 = !id3.isEmpty();
        QCOMPARE(lyricsSeen(after), isId3 ? QString(words).replace(QLatin1String("\n"), QLatin1String("\r\n")) : words);
        QCOMPARE(after.value("id3"_s).toString(), id3);
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
        QCOMPARE(reread.value("lyrics"_s), readBack ? lyricsSeen(after) : QString());
    }

    void usltFramesAreEncoded_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("lyrics");
        QTest::addColumn<int>("encoding");
        const QString v3 = "plain-v23.mp3"_s;
        const QString v4 = "plain-v24.mp3"_s;
        addRow("7-bit text is Latin-1 in 2.4", v4, "plain~"_s, 0);
        addRow("7-bit text is Latin-1 in 2.3", v3, "plain~"_s, 0);
        addRow("an accent makes it UTF-8 in 2.4", v4, "café"_s, 3);
        // ID3v2.3 knows no UTF-8; TagLib stores UTF-16 instead.
        addRow("an accent makes it UTF-16 in 2.3", v3, "café"_s, 1);
        addRow("the first character beyond", v4, "\u0080x"_s, 3);
        addRow("beyond the basic plane", v4, "𝄞 歌"_s, 3);
        addRow("beyond the basic plane in 2.3", v3, "𝄞 歌"_s, 1);
    }

    void usltFramesAreEncoded()
    {
        QFETCH(QString, sample);
        QFETCH(int, encoding);
        QFETCH(QString, lyrics);
        const SongFiles files;
        const QString path = files.copy(sample);
        QCOMPARE(write(path, {}, {}, lyrics).reasons, QStringList());
        const QJsonObject tags = SongFiles::tagsOf(path);
        QCOMPARE(tags.value("usltEncodings"_s).toArray(), QJsonArray{encoding});
        QCOMPARE(lyricsSeen(tags), lyrics);
    }

    void namesAreStored_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("newArtist");
        QTest::addColumn<QString>("newTitle");
        QTest::addColumn<QStringList>("artists");
        QTest::addColumn<QString>("title");
        const QString two = "two-artists.mp3"_s;
        const QStringList firstAndSecond{"First Artist"_s, "Second Artist"_s};
        addRow("two artists as they were read", two, "First Artist Second Artist", song, firstAndSecond, song);
        QTest::newRow("two artists as they would be written")
            << two << R"(First Artist\\Second Artist)" << song << firstAndSecond << song;
        addRow("two artists become one", two, "Other", song, QStringList{"Other"_s}, song);
        QTest::newRow("one artist becomes two") << "plain-v24.mp3"
                                                << R"(A\\B)" << QString() << QStringList{"A"_s, "B"_s} << song;
        addRow("a new title leaves the artists alone", two, "First Artist Second Artist", "Nächte", firstAndSecond,
               "Nächte");
        addRow("empty names change nothing", two, QString(), QString(), firstAndSecond, song);
        for (const char *sample : {"plain-v23.mp3", "untagged.mp3", "plain.flac", "id3.flac", "plain.ogg", "plain.m4a",
                                   "plain.wma", "plain.aiff", "id3.wav", "info.wav", "plain.ape"})
            QTest::addRow("new names in %s", sample) << sample << "Ёлка"
                                                     << "Новое" << QStringList{"Ёлка"_s} << "Новое";
        addRow("names that only RIFF INFO held", "info.wav", artist, song, QStringList{artist}, song);
    }

    void namesAreStored()
    {
        QFETCH(QString, sample);
        QFETCH(QString, newArtist);
        QFETCH(QString, newTitle);
        QFETCH(QStringList, artists);
        const SongFiles files;
        const QString path = files.copy(sample);
        QCOMPARE(write(path, newArtist, newTitle, words).reasons, QStringList());
        const QJsonObject tags = SongFiles::tagsOf(path);
        QCOMPARE(tags.value("artists"_s).toArray(), QJsonArray::fromStringList(artists));
        QTEST(tags.value("title"_s).toString(), "title");
        if (!newTitle.isEmpty()) {
            MediaFileTags reread;
            QVERIFY(reread.read(path));
            QCOMPARE(reread.value("title"_s), newTitle);
            QCOMPARE(reread.value("artist"_s), artists.join(QLatin1Char(' ')));
        }
    }

    void nothingNewLeavesTheFileAlone_data()
    {
        QTest::addColumn<QString>("lyrics");
        addRow("lyrics.ogg", "Old words\nof café");
        addRow("rich.m4a", "Old words\nof café");
        addRow("lyrics.wma", "Old words\nof café");
        addRow("id3.wav", "Old words");
        addRow("plain-v23.mp3", QString());
        addRow("v1-only.mp3", QString());
        addRow("v1-fills-v2.mp3", QString());
        addRow("plain.flac", QString());
        addRow("plain.ape", QString());
    }

    void nothingNewLeavesTheFileAlone()
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
            const QString artistName = named ? tags.value("artist"_s) : QString();
            const QString title = named ? tags.value("title"_s) : QString();
            const Answer answer = write(path, artistName, title, lyrics);
            QCOMPARE(answer.reasons, QStringList());
            QCOMPARE(answer.written, 1);
        }
        QCOMPARE(SongFiles::bytes(path), before);
        QCOMPARE(QFileInfo(path).lastModified(), longAgo);
    }

    void emptyLyricsRemoveTheStored()
    {
        for (const char *sample : {"lyrics.mp3", "lyrics.ogg", "rich.m4a", "lyrics.wma", "plain.flac"}) {
            const SongFiles files;
            const QString path = files.copy(QLatin1String(sample));
            QJsonObject expected = SongFiles::tagsOf(path);
            QCOMPARE(write(path, artist, song, words).reasons, QStringList());
            QVERIFY2(!SongFiles::tagsOf(path).value("lyrics"_s).isNull(), sample);
            QCOMPARE(write(path, artist, song, QString()).reasons, QStringList());
            const QJsonObject after = SongFiles::tagsOf(path);
            QVERIFY2(after.value("lyrics"_s).isNull(), sample);
            for (const char *key : {"lyrics", "usltEncodings"})
                expected[QLatin1String(key)] = after.value(QLatin1String(key));
            QCOMPARE(after, expected);
        }
    }

    void lyricsNobodyEditedStay_data()
    {
        QTest::addColumn<QString>("lyrics");
        // Two USLT frames with descriptions and languages of their own; the first that TagLib names is read.
        addRow("lyrics.mp3", "Alte Worte");
        addRow("lyrics.ogg", "Old words\r\nof café");
        addRow("lyrics.wma", "Old words\rof café");
        // Never read, so nobody can have meant to remove them.
        addRow("id3.wav", QString());
        addRow("plain.ape", QString());
        addRow("plain.wv", QString());
    }

    void lyricsNobodyEditedStay()
    {
        QFETCH(QString, lyrics);
        const SongFiles files;
        const QString path = files.copy(QString::fromLatin1(QTest::currentDataTag()));
        if (SongFiles::tagsOf(path).value("lyrics"_s).isNull())
            QCOMPARE(write(path, {}, {}, words).reasons, QStringList());
        QJsonObject expected = SongFiles::tagsOf(path);
        QCOMPARE(write(path, artist, "New"_s, lyrics).reasons, QStringList());
        expected["title"_s] = "New"_s;
        QCOMPARE(SongFiles::tagsOf(path), expected);
    }

    void editsReachEachTag_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("newArtist");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("id3v1");
        const QString v1AndV2 = "v1-and-v2.mp3"_s;
        const QString latin = "Café"_s;
        const QString longName = QString(35, QLatin1Char('x'));
        addRow("both take a name of Latin-1", v1AndV2, latin, latin, latin);
        addRow("ID3v1 cannot hold it", v1AndV2, "Ёлка"_s, "Ёлка"_s, artist);
        addRow("ID3v1 cuts it", v1AndV2, longName, longName, longName.left(30));
        addRow("ID3v1 takes one artist", v1AndV2, "A\\\\B"_s, "A"_s, "A"_s);
        addRow("a later tag holds it already", "id3.flac"_s, artist, artist, QString());
    }

    void editsReachEachTag()
    {
        QFETCH(QString, sample);
        QFETCH(QString, newArtist);
        const SongFiles files;
        QByteArray content = SongFiles::bytes(files.copy(sample));
        content.replace("artist=The Artist", "artist=Old Artist"); // in a Vorbis comment alone
        const QString path = files.write(sample, content);
        MediaFileTags tags;
        QVERIFY(tags.read(path));
        QCOMPARE(write(path, newArtist, tags.value("title"_s), words).reasons, QStringList());
        const QJsonObject after = SongFiles::tagsOf(path);
        QTEST(after.value("artists"_s).toArray().first().toString(), "first");
        QTEST(id3v1Artist(path), "id3v1");
    }

    void otherTagsKeepTheirBytes_data()
    {
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("artistSeen");
        addRow("lyrics beside both", "plain-v24.mp3", QString(), artist);
        addRow("a title that both hold already", "plain-v24.mp3", "Of The Others", artist);
        // The new tag takes over APE's artist, since ID3v1's may be cut.
        addRow("a new tag beside both", "untagged.mp3", QString(), "Artist Of APE"_s);
    }

    void otherTagsKeepTheirBytes()
    {
        QFETCH(QString, sample);
        QFETCH(QString, title);
        const SongFiles files;
        // What a library would write differently: bytes after the end of a text, items in an order of their own.
        QByteArray tail = apeTag({{"Year", "1999"}, {"Title", "Of The Others"}, {"ARTIST", "Artist Of APE"}}) +
                          id3v1Tag("Of The Others"_s, "Artist Of One"_s);
        tail[tail.size() - id3v1Size + 3 + 29] = '!';
        const QString path = files.write("song.mp3"_s, SongFiles::bytes(files.copy(sample)) + tail);
        QCOMPARE(write(path, {}, title, words).reasons, QStringList());
        QVERIFY(SongFiles::bytes(path).endsWith(tail));
        const QJsonObject tags = SongFiles::tagsOf(path);
        QTEST(tags.value("artists"_s).toArray().first().toString(), "artistSeen");
        QCOMPARE(lyricsSeen(tags), QString(words).replace(QLatin1String("\n"), QLatin1String("\r\n")));
        if (sample == QLatin1String("untagged.mp3")) // ID3v1 gives what APE has not
            QCOMPARE(tags.value("others"_s).toObject().value("TALB"_s).toArray().first().toString(),
                     "TALB=The Album"_s);
    }

    void formatsBesideId3v1TakeLyrics_data()
    {
        QTest::addColumn<QByteArray>("header");
        addRow("song.ape", QByteArray());
        addRow("song.wv", QByteArray());
        // Stream version 7, 100 frames, 44100 Hz.
        addRow("song.mpc", QByteArray::fromHex("4d502b0764000000") + QByteArray(512, '\0'));
        // Integer samples, stereo, 16 bits, 44100 Hz, 88200 samples.
        addRow("song.tta", QByteArray::fromHex("5454413101000200100044ac000088580100") + QByteArray(512, '\0'));
    }

    void formatsBesideId3v1TakeLyrics()
    {
        QFETCH(QByteArray, header);
        const SongFiles files;
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        if (header.isEmpty()) {
            const QByteArray tagged = SongFiles::bytes(files.copy(QString(name).replace(0, 4, "plain"_s)));
            header = tagged.left(tagged.lastIndexOf("APETAGEX", tagged.size() - 40)); // before the header of the tag
        }
        const QString path = files.write(name, header + id3v1Tag(song, artist));
        QCOMPARE(write(path, artist, song, "words"_s).reasons, QStringList());
        const QJsonObject tags = SongFiles::tagsOf(path);
        QCOMPARE(lyricsSeen(tags), "words"_s);
        QCOMPARE(tags.value("title"_s).toString(), song);
        QCOMPARE(tags.value("artists"_s).toArray(), QJsonArray{artist});
        QVERIFY(SongFiles::bytes(path).contains(header));
        QCOMPARE(id3v1Artist(path), artist);
    }

    // Those that have none take version 2.3, which stays.
    void chunksKeepTheirVersion()
    {
        const SongFiles files;
        const QByteArray tagged = SongFiles::bytes(files.copy("plain.aiff"_s));
        const QByteArray untagged = withFormSize(tagged.left(tagged.lastIndexOf("ID3 ")));
        for (const QString &path : {files.write("untagged.aiff"_s, untagged), files.copy("info.wav"_s)}) {
            for (const QString &lyrics : {"first"_s, "second"_s}) {
                QCOMPARE(write(path, artist, song, lyrics).reasons, QStringList());
                const QJsonObject tags = SongFiles::tagsOf(path);
                QCOMPARE(lyricsSeen(tags), lyrics);
                QCOMPARE(tags.value("id3"_s).toString(), "2.3.0"_s);
            }
        }
    }

    void riffInfoIsLeftAlone()
    {
        const SongFiles files;
        const QByteArray before = SongFiles::bytes(files.copy("info.wav"_s));
        QByteArray wav = before;
        wav.replace("The Artist", "Beyonc\xe9 XY"); // not UTF-8
        const QString path = files.write("latin1.wav"_s, wav);
        const QString name = "Beyoncé XY"_s;
        MediaFileTags tags;
        QVERIFY(tags.read(path));
        QCOMPARE(tags.value("artist"_s), name);
        QCOMPARE(write(path, name, "New"_s, words).reasons, QStringList());
        const QJsonObject after = SongFiles::tagsOf(path);
        QCOMPARE(after.value("artists"_s).toArray(), QJsonArray{name});
        QCOMPARE(after.value("title"_s).toString(), "New"_s);
        QVERIFY(SongFiles::bytes(path).mid(8).startsWith(wav.mid(8))); // all but the size of the file
    }

    void refusalsHaveAReason_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        addRow("vanished", "vanished.mp3", "the file is no longer there");
        addRow("FIFO", "fifo.mp3", "this is not a regular file");
        addRow("directory", "directory.mp3", "this is not a regular file");
        addRow("read-only", "plain-v24.mp3", "the file is read-only");
        addRow("empty", "empty.mp3", "no audio was found in the file");
        addRow("text named .mp3", "text.mp3", "no audio was found in the file");
        addRow("text named .flac", "text.flac", "the file cannot be opened");
        addRow("empty .m4a", "empty.m4a", "the file cannot be opened");
        addRow("unknown extension", "text.doc", "the file cannot be opened");
    }

    void refusalsHaveAReason()
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
            QCOMPARE(
                ::chmod(QFile::encodeName(files.write(name, name.startsWith(QLatin1String("text")) ? "a list" : ""))
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

    void oddNamesAreWritten()
    {
        const SongFiles files;
        const QString longest = QString(251, QLatin1Char('x')) + ".mp3"_s;
        for (const QString &name :
             {"a#b.mp3"_s, "100%25.mp3"_s, "a\nb.mp3"_s, "-o  x .mp3"_s, "Ёж 歌 é.mp3"_s, longest, "a.MP3"_s}) {
            const QString path = files.copy("plain-v24.mp3"_s, name);
            QCOMPARE(write(path, {}, {}, words).reasons, QStringList());
            MediaFileTags tags;
            QVERIFY2(tags.read(path) && !tags.value("lyrics"_s).isEmpty(), qPrintable(name));
        }
    }

    void writesAreCountedAndOrdered()
    {
        const SongFiles files;
        const QUrl url = QUrl::fromLocalFile(files.copy("plain.ogg"_s));
        QVector<int> order;
        BusyWriter busy;
        for (quint16 id = 1; id <= 5; ++id) {
            auto *writer = new TagWriter;
            connect(writer, &TagWriter::written, this, [&order, writer](quint16 written) {
                QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
                order.append(written);
                writer->deleteLater();
            });
            writer->queueWrite(url, id, artist, song, "version %1"_s.arg(id));
        }
        QCOMPARE(TagWriter::pendingWrites(), 5);
        busy.release();
        QVERIFY(TagWriter::waitForQueued(20s));
        QCOMPARE(TagWriter::pendingWrites(), 0);
        QCOMPARE(lyricsSeen(SongFiles::tagsOf(url.toLocalFile())), "version 5"_s);
        QTRY_COMPARE(order, (QVector<int>{1, 2, 3, 4, 5}));
    }

    void aWriterThatDiesIsNotWaitedFor()
    {
        const SongFiles files;
        const QString path = files.copy("plain.ogg"_s);
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

    void waitingGivesUpWithoutProgress()
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

    void slowWritesAreWaitedFor_data()
    {
        QTest::addColumn<bool>("bytesMove");
        addRow("a little is written again and again", true);
        addRow("parts reach the disk one by one", false);
    }

    void slowWritesAreWaitedFor()
    {
        QFETCH(bool, bytesMove);
        constexpr std::chrono::milliseconds patience = 500ms;
        const SongFiles files;
        const QString path = files.path("slow"_s);
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

private:
    struct Answer
    {
        QStringList reasons;
        int written = 0;
    };
    static Answer write(const QString &path, const QString &artistName, const QString &title, const QString &lyrics)
    {
        constexpr quint16 id = 65535;
        QPointer<TagWriter> writer = new TagWriter;
        QSignalSpy failed(writer, &TagWriter::failed);
        QSignalSpy written(writer, &TagWriter::written);
        Answer answer;
        QObject context; // its slots run here, so the order of the signals is seen as a user of the class sees it
        connect(writer, &TagWriter::failed, &context, [&answer](quint16 number, const QString &reason) {
            answer.reasons.append(number == id && answer.written == 0 ? reason : "wrong id or order"_s);
        });
        connect(writer, &TagWriter::written, &context, [&answer](quint16 number) { answer.written += number == id; });
        writer->queueWrite(QUrl::fromLocalFile(path), id, artistName, title, lyrics);
        if (!QTest::qWaitFor([&answer] { return answer.written > 0; }, 20'000))
            return {{"no answer"_s}, 0};
        writer->deleteLater();
        if (!QTest::qWaitFor([&writer] { return writer.isNull(); }, 20'000))
            return {{"writer not deleted"_s}, 0};
        return answer;
    }
};

QTEST_GUILESS_MAIN(tst_TagWriter)
#include "tst_tagwriter.moc"
