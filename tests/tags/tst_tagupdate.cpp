// SPDX-License-Identifier: MIT
#include "tags/SongFiles.h"
#include "tags/TagUpdate.h"

#include <QJsonArray>
#include <QTest>
#include <QtEndian>

using tags::UpdateResult;
Q_DECLARE_METATYPE(tags::UpdateResult)

// What a save of lyrics does to the other entries of tags that a library does not understand.
class tst_TagUpdate : public QObject
{
    Q_OBJECT

private slots:
    void framesStayAsTheyAreStored_data();
    void framesStayAsTheyAreStored();
    void framesInAChunkStay();
    void whatWouldBeLostIsRefused_data();
    void whatWouldBeLostIsRefused();
    void whatNobodyEditedStaysATaggersOwn();
};

namespace {

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray synchsafe(int number)
{
    return bigEndian(static_cast<quint32>((number & 0x7f) | (number & 0x3f80) << 1 | (number & 0x1fc000) << 2));
}

QByteArray frame(const char *id, const QByteArray &data, quint16 flags = 0)
{
    return id + bigEndian(static_cast<quint32>(data.size())) + bigEndian(flags).right(2) + data;
}

QByteArray tag(int version, const QByteArray &frames, char flags = 0)
{
    return QByteArray("ID3") + static_cast<char>(version) + '\0' + flags + synchsafe(frames.size()) + frames;
}

UpdateResult storeLyrics(const QString &path, const SongFiles &files)
{
    return tags::updateTags(path, {{}, {}, QStringLiteral("new words")}, files.path(QStringLiteral("data")));
}

} // namespace

void tst_TagUpdate::framesStayAsTheyAreStored_data()
{
    QTest::addColumn<QByteArray>("frames");
    QTest::addColumn<int>("version");
    QTest::newRow("a volume in version 3") << frame("RVAD", "\x03\x10 12345678") << 3;
    QTest::newRow("a sort name in version 3") << frame("TSOP", QByteArray("\0Artist, The", 12)) << 3;
    QTest::newRow("a date in three frames") << frame("TYER", QByteArray("\0"
                                                                        "2001",
                                                                        5)) +
                                                   frame("TDAT", QByteArray("\0"
                                                                            "0203",
                                                                            5)) +
                                                   frame("TIME", QByteArray("\0"
                                                                            "1405",
                                                                            5))
                                            << 3;
    QTest::newRow("a size") << frame("TSIZ", QByteArray("\0"
                                                        "12345",
                                                        6))
                            << 3;
    QTest::newRow("a grouped frame") << frame("TALB", QByteArray("G\0Album", 7), 0x0020) << 3;
    QTest::newRow("an encrypted frame") << frame("TCOM", "Mno one can read this", 0x0040) << 3;
    QTest::newRow("a compressed frame") << frame("COMM", bigEndian(9) + qCompress(QByteArray("\0eng\0text", 9)).mid(4),
                                                 0x0080)
                                        << 3;
    QTest::newRow("a frame of nobody's") << frame("XYZ9", QByteArray("\0\1\2\xff\xfe", 5)) << 3;
    QTest::newRow("three letters and a zero") << "TCP" + QByteArray("\0\0\0\0\2\0\0\0001", 9) << 3;
    QTest::newRow("UTF-8 where version 3 knows none") << frame("TALB", "\x03"
                                                                       "Caf\xc3\xa9")
                                                      << 3;
    QTest::newRow("more than TagLib's padding") << frame("RVAD", QByteArray(900, 'v')) << 3;
    // Its zeros are told of in the header of the tag alone.
    const QByteArray utf16("\x01\xff\0\xfe"
                           "S\0o\0n\0g\0",
                           12);
    const QByteArray jpeg("\0image/jpeg\0\3\0\xff\0\xd8\xff\0\xe0 picture \xff\0\0 end", 36);
    QTest::newRow("zeros put in, in version 4") << frame("TALB", utf16) + frame("APIC", jpeg) << 4;
}

void tst_TagUpdate::framesStayAsTheyAreStored()
{
    QFETCH(QByteArray, frames);
    QFETCH(int, version);
    const char flags = version == 4 ? '\x80' : '\0';
    const SongFiles files;
    const QByteArray title = frame("TIT2", QByteArray("\0The Song", 9));
    const QByteArray audio = SongFiles::bytes(files.copy(QStringLiteral("untagged.mp3")));
    const QString path = files.write(QStringLiteral("song.mp3"), tag(version, frames + title, flags) + audio);
    const QJsonObject seenBefore = SongFiles::tagsOf(path);
    QCOMPARE(storeLyrics(path, files), UpdateResult::Saved);
    const QByteArray after = SongFiles::bytes(path);
    QVERIFY(after.contains(frames + title));
    QCOMPARE(after.at(5), flags);
    QVERIFY(after.endsWith(audio));
    const QJsonObject seen = SongFiles::tagsOf(path);
    QCOMPARE(seen.value(QStringLiteral("id3")).toString(), QStringLiteral("2.%1.0").arg(version));
    QCOMPARE(seen.value(QStringLiteral("pictures")), seenBefore.value(QStringLiteral("pictures")));
    QCOMPARE(seen.value(QStringLiteral("lyrics")).toArray(), QJsonArray{QStringLiteral("new words")});
}

// The tag has to grow, and with it what the chunk and the file say of their length.
void tst_TagUpdate::framesInAChunkStay()
{
    const SongFiles files;
    QByteArray aiff = SongFiles::bytes(files.copy(QStringLiteral("plain.aiff")));
    aiff.truncate(aiff.lastIndexOf("ID3 "));
    const QByteArray frames = frame("RVAD", QByteArray(900, 'v')) + frame("TIT2", QByteArray("\0Song", 5)) + '\0';
    aiff += "ID3 " + bigEndian(static_cast<quint32>(frames.size() + 10)) + tag(3, frames);
    qToBigEndian(aiff.size() - 8, aiff.data() + 4);
    const QString path = files.write(QStringLiteral("song.aiff"), aiff);
    const QByteArray audio = SongFiles::audioDigest(path);
    QCOMPARE(storeLyrics(path, files), UpdateResult::Saved);
    QVERIFY(SongFiles::bytes(path).contains(frames.left(frames.size() - 1)));
    QCOMPARE(qFromBigEndian<quint32>(SongFiles::bytes(path).constData() + 4) + 8U,
             static_cast<quint32>(SongFiles::bytes(path).size()));
    QCOMPARE(SongFiles::audioDigest(path), audio);
    QCOMPARE(SongFiles::tagsOf(path).value(QStringLiteral("title")).toString(), QStringLiteral("Song"));
}

void tst_TagUpdate::whatWouldBeLostIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<UpdateResult>("result");
    const QByteArray artist = "artist=The Artist";
    QTest::newRow("Vorbis comment that is not UTF-8") << "plain.flac" << artist
                                                      << QByteArray("artist=Caf\xe9"
                                                                    "Artist")
                                                      << UpdateResult::TagsNotKept;
    QTest::newRow("APE item that is not UTF-8")
        << "plain.ape" << QByteArray("calm") << QByteArray("c\xe9lm") << UpdateResult::TagsNotKept;
    // A data box of type 0, binary, in an item that no list of names has.
    QTest::newRow("MP4 item of nobody's") << "plain.m4a"
                                          << QByteArray("\xa9wrt\0\0\0\x1c"
                                                        "data\0\0\0\1",
                                                        16)
                                          << QByteArray("zzzz\0\0\0\x1c"
                                                        "data\0\0\0\0",
                                                        16)
                                          << UpdateResult::TagsNotKept;
    QTest::newRow("the same, known") << "plain.m4a" << QByteArray("The Composer") << QByteArray("An Other One")
                                     << UpdateResult::Saved;
    const auto item = [](const char *itemName, char type, const QByteArray &content) {
        const QByteArray data = "data" + bigEndian(static_cast<quint32>(type)) + bigEndian(0) + content;
        const QByteArray inner = bigEndian(static_cast<quint32>(data.size() + 4)) + data;
        return bigEndian(static_cast<quint32>(inner.size() + 8)) + itemName + inner;
    };
    const QByteArray genre = item("\xa9gen", 1, "Rock");
    const QByteArray track = item("trkn", 0, QByteArray("\0\0\0\3\0\t\0\0", 8));
    const QByteArray disc = item("disk", 0, QByteArray("\0\0\0\1\0\0", 6));
    QTest::newRow("MP4 disc of eight bytes") << "plain.m4a" << track + disc
                                             << item("disk", 0, QByteArray("\0\0\0\1\0\2\0\0", 8)) + item("\xa9"
                                                                                                          "cmt",
                                                                                                          1, "Remark")
                                             << UpdateResult::Saved;
    QTest::newRow("MP4 genre by its number") << "plain.m4a" << genre + track
                                             << item("gnre", 0, QByteArray("\0\x12", 2)) + item("\xa9"
                                                                                                "cmt",
                                                                                                1, "Ten chars.")
                                             << UpdateResult::Saved;
    QTest::newRow("MP4 number of no type") << "plain.m4a" << item("tmpo", 0x15, QByteArray("\0x", 2))
                                           << item("tmpo", 0, QByteArray("\0x", 2)) << UpdateResult::Saved;
    QTest::newRow("two ID3v2 tags") << "untagged.mp3" << QByteArray()
                                    << tag(3, frame("TIT2", QByteArray("\0Song", 5))) +
                                           tag(3, frame("TIT2", QByteArray("\0Other", 6)))
                                    << UpdateResult::Unusual;
    QTest::newRow("ID3v1 behind Ogg") << "plain.ogg" << QByteArray() << "TAG" + QByteArray(125, ' ')
                                      << UpdateResult::Unusual;
    QTest::newRow("Vorbis comment without a text") << "plain.flac"
                                                   << QByteArray("\x0f\0\0\0"
                                                                 "album=The Album\t\0\0\0"
                                                                 "date=2001",
                                                                 32)
                                                   << QByteArray("\x08\0\0\0"
                                                                 "COMMENT=\x10\0\0\0"
                                                                 "album=The Albums",
                                                                 32)
                                                   << UpdateResult::Saved;
    const QByteArray upTo = tag(2, QByteArray("TT2\0\0\x05\0Song", 11));
    QTest::newRow("version 2, all known") << "untagged.mp3" << QByteArray() << upTo << UpdateResult::Saved;
    QTest::newRow("version 2 with a frame that version 3 has not")
        << "untagged.mp3" << QByteArray() << tag(2, QByteArray("TT2\0\0\x05\0SongCRM\0\0\3abc", 20))
        << UpdateResult::TagsNotKept;
}

void tst_TagUpdate::whatWouldBeLostIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    const SongFiles files;
    QByteArray content = SongFiles::bytes(files.copy(name));
    QVERIFY(from.isEmpty() || content.contains(from));
    if (from.isEmpty())
        content = to.startsWith("TAG") ? content + to : to + content;
    else
        content.replace(from, to);
    const QString path = files.write(name, content);
    const UpdateResult result = storeLyrics(path, files);
    QTEST(result, "result");
    QCOMPARE(SongFiles::bytes(path) == content, result != UpdateResult::Saved);
}

// Another program changes names and lyrics after they were read.
void tst_TagUpdate::whatNobodyEditedStaysATaggersOwn()
{
    const SongFiles files;
    const QString path = files.copy(QStringLiteral("plain-v24.mp3"));
    tags::ShownTexts shown{{QStringLiteral("The Artist"), QStringLiteral("Misspelt"), {}}};
    tags::SongTexts texts = shown.texts;
    const auto update = [&] {
        return tags::updateTags(path, texts, files.path(QStringLiteral("data")), shown);
    };
    const auto seen = [&path](const char *key) {
        return SongFiles::tagsOf(path).value(QLatin1String(key)).toVariant().toStringList().join(QLatin1Char('/'));
    };
    const QString title = seen("title");
    texts.lyrics = QStringLiteral("found words");
    QCOMPARE(update(), UpdateResult::Saved);
    QCOMPARE(seen("title"), title);
    QCOMPARE(seen("lyrics"), texts.lyrics);
    texts = shown.texts;
    texts.title = QStringLiteral("Edited");
    QCOMPARE(update(), UpdateResult::Saved);
    QCOMPARE(seen("title"), texts.title);
    QCOMPARE(seen("lyrics"), QStringLiteral("found words"));
    texts = shown.texts;
    QCOMPARE(update(), UpdateResult::Unchanged);
    texts.lyrics = QStringLiteral("mine");
    QCOMPARE(update(), UpdateResult::ChangedMeanwhile);
    QCOMPARE(seen("lyrics"), QStringLiteral("found words"));
    shown.replacesForeignLyrics = true;
    QCOMPARE(update(), UpdateResult::Saved);
    QCOMPARE(seen("lyrics"), texts.lyrics);
}

QTEST_GUILESS_MAIN(tst_TagUpdate)
#include "tst_tagupdate.moc"
