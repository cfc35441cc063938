// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"
#include "tags/SongFiles.h"

#include <QJsonArray>
#include <QTest>
#include <QtEndian>

using tags::UpdateResult;
Q_DECLARE_METATYPE(tags::UpdateResult)

namespace {

// Bytes, zeros among them.
QByteArray operator""_b(const char *bytes, std::size_t size)
{
    return {bytes, static_cast<int>(size)};
}

QByteArray bigEndian(int number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray synchsafe(int number)
{
    return bigEndian((number & 0x7f) | (number & 0x3f80) << 1 | (number & 0x1fc000) << 2);
}

QByteArray frame(const char *id, const QByteArray &data, int flags = 0)
{
    return id + bigEndian(data.size()) + bigEndian(flags).right(2) + data;
}

QByteArray tag(int version, const QByteArray &frames, char flags = 0)
{
    return QByteArray("ID3") + static_cast<char>(version) + '\0' + flags + synchsafe(frames.size()) + frames;
}

// An AIFF file without chunks for tags.
QByteArray untaggedAiff(const SongFiles &files)
{
    const QByteArray tagged = files.bytesOf("plain.aiff"_s);
    return tagged.left(tagged.lastIndexOf("ID3 "));
}

QString writeAiff(const SongFiles &files, QByteArray content)
{
    qToBigEndian(content.size() - 8, content.data() + 4);
    return files.write("song.aiff"_s, content);
}

QByteArray mp4Item(const QByteArray &name, char type, const QByteArray &content)
{
    const QByteArray data = "data" + bigEndian(type) + bigEndian(0) + content;
    return bigEndian(data.size() + 12) + name + bigEndian(data.size() + 4) + data;
}

QByteArray utf16(const char *text)
{
    QByteArray bytes;
    for (; *text != '\0'; ++text)
        bytes += QByteArray(1, *text) + '\0';
    return bytes;
}

QByteArray asfObject(const char *kind, const QByteArray &content)
{
    QByteArray size(8, '\0');
    qToLittleEndian(qint64{content.size()} + 24, size.data());
    return QByteArray::fromHex(kind) + size + content;
}

QByteArray asfNumber(int number, int bytes = 2)
{
    QByteArray stored(4, '\0');
    qToLittleEndian(number, stored.data());
    return stored.left(bytes);
}

// The song with nothing but these covers in the extension of its header, and none elsewhere.
QByteArray withAsfCovers(QByteArray song, const QVector<int> &sizes)
{
    const char *extension = "b503bf5f2ea9cf118ee300c00c205365";
    const QByteArray name = utf16("WM/Picture") + asfNumber(0);
    song.replace(name, utf16("WM/Another") + asfNumber(0));
    QByteArray covers = asfNumber(sizes.size());
    for (const int size : sizes) {
        const QByteArray cover = '\3' + asfNumber(size, 4) + utf16("image/png") + QByteArray(4, '\0') +
                                 QByteArray(size, static_cast<char>('a' + size % 7));
        covers += asfNumber(0, 4) + asfNumber(name.size()) + asfNumber(1) + asfNumber(cover.size(), 4) + name + cover;
    }
    const QByteArray library = asfObject("941c23449894d149a1411d134e457054", covers);
    const int place = song.indexOf(QByteArray::fromHex(extension));
    const int oldSize = qFromLittleEndian<int>(song.constData() + place + 16);
    const QByteArray made = asfObject(extension, song.mid(place + 24, 18) + asfNumber(library.size(), 4) + library);
    song.replace(place, oldSize, made);
    qToLittleEndian(qFromLittleEndian<int>(song.constData() + 16) + made.size() - oldSize, song.data() + 16);
    return song;
}

// Of a page of sound each.
QByteArray mp4Fragments(int count)
{
    const auto atom = [](const char *name, const QByteArray &content) {
        return bigEndian(content.size() + 8) + name + content;
    };
    const QByteArray track = atom("traf", atom("tfhd", QByteArray(8, '\0')) + atom("trun", QByteArray(8, '\0')));
    return (atom("moof", track) + atom("mdat", QByteArray(4096, 's'))).repeated(count);
}

// Fills the place of other items up.
QByteArray mp4Remark(int size)
{
    return mp4Item(QByteArray::fromHex("a9") + "cmt", 1, QByteArray(size - 24, 'x'));
}

QString trackOf(const QString &path)
{
    MediaFileTags tags;
    return tags.read(path) ? tags.value("track"_s) : QString();
}

UpdateResult storeLyrics(const QString &path, const SongFiles &files)
{
    return files.update(path, {{}, {}, "new words"_s});
}

} // namespace

// What a save of lyrics does to other entries of tags, those among them that a library does not understand.
class tst_TagKeeping : public QObject
{
    Q_OBJECT

private slots:
    void framesStayAsTheyAreStored_data()
    {
        QTest::addColumn<QByteArray>("frames");
        QTest::addColumn<int>("version");
        const QByteArray date = frame("TYER", "\0002001"_b) + frame("TDAT", "\0000203"_b) + frame("TIME", "\0001405"_b);
        addRow("a volume in version 3", frame("RVAD", "\x03\x10 12345678"), 3);
        addRow("a sort name in version 3", frame("TSOP", "\0Artist, The"_b), 3);
        addRow("a date in three frames", date, 3);
        addRow("a grouped frame", frame("TALB", "G\0Album"_b, 0x0020), 3);
        addRow("an encrypted frame", frame("TCOM", "Mno one can read this", 0x0040), 3);
        addRow("a compressed frame", frame("COMM", bigEndian(9) + qCompress("\0eng\0text"_b).mid(4), 0x0080), 3);
        addRow("a frame of nobody's", frame("XYZ9", "\0\1\2\xff\xfe"_b), 3);
        addRow("three letters and a zero", "TCP\0\0\0\0\2\0\0\0001"_b, 3);
        addRow("three letters and a blank", frame("TS2 ", "\0Sort"_b), 3);
        addRow("UTF-8 where version 3 knows none", frame("TALB", "\x03" + "Café"_s.toUtf8()), 3);
        addRow("more than TagLib's padding", frame("RVAD", QByteArray(900, 'v')), 3);
        // Its zeros are told of in the header of the tag alone.
        const QByteArray utf16 = "\x01\xff\0\xfeS\0o\0n\0g\0"_b;
        const QByteArray jpeg = "\0image/jpeg\0\3\0\xff\0\xd8\xff\0\xe0 picture \xff\0\0 end"_b;
        addRow("zeros put in, in version 4", frame("TALB", utf16) + frame("APIC", jpeg), 4);
    }

    void framesStayAsTheyAreStored()
    {
        QFETCH(QByteArray, frames);
        QFETCH(int, version);
        const char flags = version == 4 ? '\x80' : '\0';
        const SongFiles files;
        const QByteArray title = frame("TIT2", "\0The Song"_b);
        const QByteArray audio = files.bytesOf("untagged.mp3"_s);
        const QString path = files.write("song.mp3"_s, tag(version, frames + title, flags) + audio);
        const QJsonObject before = SongFiles::tagsOf(path);
        QCOMPARE(storeLyrics(path, files), UpdateResult::Saved);
        const QByteArray after = files.read(path);
        QVERIFY(after.contains(frames + title));
        QCOMPARE(after.mid(3, 3), QByteArray() + static_cast<char>(version) + '\0' + flags);
        QVERIFY(after.endsWith(audio));
        const QJsonObject seen = SongFiles::tagsOf(path);
        QCOMPARE(seen.value("pictures"_s), before.value("pictures"_s));
        QCOMPARE(seen.value("lyrics"_s).toVariant().toStringList(), QStringList{"new words"_s});
    }

    // The tag has to grow, and with it what the chunk and the file say of their length.
    void framesInAChunkStay()
    {
        const SongFiles files;
        const QByteArray frames = frame("RVAD", QByteArray(900, 'v')) + frame("TIT2", "\0Song"_b);
        const QString path =
            writeAiff(files, untaggedAiff(files) + "ID3 " + bigEndian(frames.size() + 11) + tag(3, frames + '\0'));
        const QByteArray audio = files.audioDigest(path);
        QCOMPARE(storeLyrics(path, files), UpdateResult::Saved);
        const QByteArray after = files.read(path);
        QVERIFY(after.contains(frames));
        QCOMPARE(qFromBigEndian<int>(after.constData() + 4) + 8, after.size());
        QCOMPARE(files.audioDigest(path), audio);
        QCOMPARE(SongFiles::tagsOf(path).value("title"_s).toString(), "Song"_s);
    }

    void coversOfEachSizeStayInTheirOrder_data()
    {
        QTest::addColumn<QVector<int>>("sizes");
        addRow("a small one first", QVector<int>{1000, 70000});
        addRow("a large one first", QVector<int>{70000, 1000});
        addRow("a small one between large ones", QVector<int>{70001, 1000, 70000});
        addRow("small ones alone", QVector<int>{1000, 1001, 1002});
    }

    void coversOfEachSizeStayInTheirOrder()
    {
        QFETCH(QVector<int>, sizes);
        const SongFiles files;
        const QString path = files.write("song.wma"_s, withAsfCovers(files.bytesOf("lyrics.wma"_s), sizes));
        const QJsonObject before = SongFiles::tagsOf(path);
        const QByteArray audio = files.audioDigest(path);
        QCOMPARE(before.value("pictures"_s).toArray().size(), sizes.size());
        for (const QString &lyrics : {"new words"_s, "long words "_s.repeated(5000)}) {
            QCOMPARE(files.update(path, {{}, "New Title"_s, lyrics}), UpdateResult::Saved);
            const QJsonObject after = SongFiles::tagsOf(path);
            QCOMPARE(after.value("pictures"_s), before.value("pictures"_s));
            QCOMPARE(after.value("others"_s), before.value("others"_s));
            QCOMPARE(after.value("title"_s).toString(), "New Title"_s);
            QCOMPARE(after.value("lyrics"_s).toVariant().toStringList(), QStringList{lyrics});
            QCOMPARE(files.audioDigest(path), audio);
        }
    }

    void aNewChunkHasVersionThreeAndKeepsIt()
    {
        const SongFiles files;
        for (const QString &path : {writeAiff(files, untaggedAiff(files)), files.copy("info.wav"_s)}) {
            for (const QString &lyrics : {"first"_s, "second"_s}) {
                QCOMPARE(files.update(path, {{}, {}, lyrics}), UpdateResult::Saved);
                QCOMPARE(SongFiles::tagsOf(path).value("id3"_s).toString(), "2.3.0"_s);
            }
        }
    }

    void whatWouldBeLostIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<UpdateResult>("result");
        constexpr auto saved = UpdateResult::Saved;
        constexpr auto notKept = UpdateResult::TagsNotKept;
        constexpr auto unusual = UpdateResult::Unusual;
        const auto row = [](const char *sentence, const char *name, const QByteArray &from, const QByteArray &to,
                            UpdateResult result) {
            addRow(sentence, name, from, to, result);
        };
        row("Vorbis comment that is not UTF-8", "plain.flac", "artist=The Artist", "artist=Caf\351Artist", notKept);
        row("Vorbis comment without a text", "plain.flac", "\x0f\0\0\0album=The Album\t\0\0\0date=2001"_b,
            "\x08\0\0\0COMMENT=\x10\0\0\0album=The Albums"_b, saved);
        row("Vorbis comment with an old cover", "plain.flac", "artist=The Artist", "COVERART=AAECAwQF", saved);
        row("the same in Ogg", "plain.ogg", "artist=The Artist", "COVERART=AAECAwQF", saved);
        row("APE item that is not UTF-8", "plain.ape", "calm", "c\xe9lm", notKept);
        // Of several types, in places of items of the same length.
        const QByteArray track = mp4Item("trkn", 0, "\0\0\0\3\0\t\0\0"_b);
        const QByteArray trackAndDisc = track + mp4Item("disk", 0, "\0\0\0\1\0\0"_b);
        const QByteArray genreAndTrack = mp4Item("\xa9gen", 1, "Rock") + track;
        const QByteArray flag = mp4Item("itnu", 0x15, "\1");
        row("MP4 item of nobody's", "plain.m4a", trackAndDisc, mp4Item("zzzz", 0, "\0\1\2"_b) + mp4Remark(35), saved);
        row("MP4 flag that is not known", "plain.m4a", trackAndDisc, flag + mp4Remark(37), saved);
        row("two of them", "plain.m4a", trackAndDisc, flag + mp4Item("itnu", 0x15, "1234567890123"), notKept);
        row("MP4 disc of eight bytes", "plain.m4a", trackAndDisc,
            mp4Item("disk", 0, "\0\0\0\1\0\2\0\0"_b) + mp4Remark(30), saved);
        row("MP4 genre by number", "plain.m4a", genreAndTrack, mp4Item("gnre", 0, "\0\x12"_b) + mp4Remark(34), saved);
        row("MP4 cover with a name", "plain.m4a", trackAndDisc,
            bigEndian(62) + "covr" + bigEndian(22) + "data" + bigEndian(13) + bigEndian(0) + "\xff\xd8\xff\xe0.." +
                bigEndian(32) + "name" + QByteArray(24, 'n'),
            saved);
        row("MP4 in many fragments", "plain.m4a", {}, mp4Fragments(2500), saved);
        row("WMA attribute of two values", "plain.wma", utf16("WM/AlbumArtist"), utf16("WM/TrackNumber"), saved);
        row("MP4 number of no type", "plain.m4a", mp4Item("tmpo", 0x15, "\0x"_b), mp4Item("tmpo", 0, "\0x"_b), saved);
        const QByteArray title = frame("TIT2", "\0Song"_b);
        const QByteArray hidden = frame("TS2 ", "\0Sort"_b) + frame("USLT", "\0eng\0old"_b);
        row("two ID3v2 tags", "untagged.mp3", {}, tag(3, title) + tag(3, title), unusual);
        row("lyrics that no library sees", "untagged.mp3", {}, tag(3, title + hidden), notKept);
        row("encrypted lyrics", "untagged.mp3", {}, tag(3, title + frame("USLT", "Mno one reads this", 0x0040)),
            notKept);
        row("MP4 under the name of MP3", "untagged.mp3", {}, bigEndian(16) + "ftypM4A \0\0\0\0"_b, unusual);
        row("ID3v1 behind Ogg", "plain.ogg", {}, "TAG" + QByteArray(125, ' '), unusual);
        row("version 2, all known", "untagged.mp3", {}, tag(2, "TT2\0\0\x05\0Song"_b), saved);
        row("version 2, of more than 127 bytes", "untagged.mp3", {},
            tag(2, "TAL\0\0\xc8\0"_b + QByteArray(199, 'a') + "PIC\0\0\xc8\0PNG\3\0"_b + QByteArray(194, 'p')), saved);
        row("version 2 with a frame that version 3 has not", "untagged.mp3", {},
            tag(2, "TT2\0\0\x05\0SongCRM\0\0\3abc"_b), notKept);
    }

    void whatWouldBeLostIsRefused()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const SongFiles files;
        QByteArray content = files.bytesOf(name);
        QVERIFY(from.isEmpty() || content.contains(from));
        if (from.isEmpty())
            content = to.startsWith("TAG") || to.contains("moof") ? content + to : to + content;
        else
            content.replace(from, to);
        const QString path = files.write(name, content);
        const QString track = trackOf(path);
        const UpdateResult result = storeLyrics(path, files);
        QTEST(result, "result");
        QCOMPARE(trackOf(path), track);
        QCOMPARE(files.read(path) == content, result != UpdateResult::Saved);
        for (const char *odd : {"itnu", "zzzz"})
            QVERIFY(!to.contains(odd) || files.read(path).contains(to.left(25)));
    }
};

QTEST_GUILESS_MAIN(tst_TagKeeping)
#include "tst_tagkeeping.moc"
