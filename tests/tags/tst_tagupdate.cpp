// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"
#include "tags/SongFiles.h"

#include <QJsonArray>
#include <QTest>
#include <QtEndian>

using tags::SongTexts;
using tags::UpdateResult;

namespace {

const QString words = "First line\nsecond line\n\nlast line"_s;
const QString song = "The Song"_s;
const QString artist = "The Artist"_s;
constexpr int id3v1Bytes = 128;

// As the program shows them.
SongTexts textsIn(const QString &path)
{
    MediaFileTags tags;
    if (!tags.read(path))
        qFatal("cannot read %s", qPrintable(path));
    return {tags.value("artist"_s), tags.value("title"_s), tags.value("lyrics"_s)};
}

// Several texts are joined by "|".
QString seen(const QJsonObject &tags, const char *key)
{
    return tags.value(QLatin1String(key)).toVariant().toStringList().join(QLatin1Char('|'));
}

QJsonObject without(QJsonObject tags, const QStringList &keys)
{
    for (const QString &key : keys)
        tags.remove(key);
    return tags;
}

QByteArray id3v1Tag(const QByteArray &title, const QByteArray &name)
{
    const auto field = [](const QByteArray &text) {
        return text.leftJustified(30, '\0', true);
    };
    return "TAG" + field(title) + field(name) + field("The Album") + "2001" + field({}) + '\x11';
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

} // namespace

// What arrives in the tags of songs of every format.
class tst_TagUpdate : public QObject
{
    Q_OBJECT

private slots:
    void namesAreStored_data() { everySample(); }
    void namesAreStored()
    {
        QFETCH(QString, id3);
        const SongFiles files;
        const QString path = files.copy(sampleName());
        const QJsonObject before = SongFiles::tagsOf(path);
        SongTexts texts = textsIn(path);
        texts.lyrics.replace(QLatin1Char('\n'), QLatin1String("\r\n")); // which is no edit
        QCOMPARE(files.update(path, {"Ёлка"_s, "Новое"_s, texts.lyrics}), UpdateResult::Saved);
        const QJsonObject after = SongFiles::tagsOf(path);
        QCOMPARE(seen(after, "artists"), "Ёлка"_s);
        QCOMPARE(seen(after, "title"), "Новое"_s);
        QCOMPARE(seen(after, "id3"), id3);
        QStringList changed{"artists"_s, "title"_s, "id3"_s};
        if (isTagNew())
            changed.append("others"_s);
        QCOMPARE(without(after, changed), without(before, changed));
        QCOMPARE(textsIn(path).title, "Новое"_s);
        QCOMPARE(textsIn(path).artist, "Ёлка"_s);
    }

    void lyricsComeAndGo_data() { everySample(); }
    // And what nobody edited is not written.
    void lyricsComeAndGo()
    {
        QFETCH(QString, id3);
        QFETCH(bool, areLyricsRead);
        const SongFiles files;
        const QString path = files.copy(sampleName());
        const QJsonObject before = SongFiles::tagsOf(path);
        const QByteArray audio = files.audioDigest(path);
        SongTexts texts = textsIn(path);
        const QByteArray content = files.read(path);
        QCOMPARE(files.update(path, texts), UpdateResult::Unchanged);
        QCOMPARE(files.update(path, {{}, {}, texts.lyrics}), UpdateResult::Unchanged);
        QCOMPARE(files.read(path), content);
        QStringList changed{"lyrics"_s, "usltEncodings"_s, "id3"_s};
        if (isTagNew())
            changed += {"title"_s, "artists"_s, "others"_s};
        texts.lyrics = words;
        QCOMPARE(files.update(path, texts), UpdateResult::Saved);
        const QJsonObject after = SongFiles::tagsOf(path);
        const QString stored =
            id3.isEmpty() ? words : QString(words).replace(QLatin1String("\n"), QLatin1String("\r\n"));
        QCOMPARE(after.value("lyrics"_s).toArray(), QJsonArray{stored});
        QCOMPARE(seen(after, "id3"), id3);
        QCOMPARE(without(after, changed), without(before, changed));
        // A tag that is new takes over what it hides.
        QVERIFY(!isTagNew() || (seen(after, "title") == song && seen(after, "artists") == artist));
        QCOMPARE(files.audioDigest(path), audio);
        const SongTexts shown = textsIn(path);
        QCOMPARE(shown.lyrics, areLyricsRead ? stored : QString());
        QVERIFY(shown.title == texts.title && shown.artist == texts.artist);
        // Lyrics that are never read nobody can have meant to remove.
        texts.lyrics.clear();
        QCOMPARE(files.update(path, texts), areLyricsRead ? UpdateResult::Saved : UpdateResult::Unchanged);
        QCOMPARE(seen(SongFiles::tagsOf(path), "lyrics"), areLyricsRead ? QString() : stored);
    }

    // What an earlier update of the user's own has stored is no tagger's.
    void updatesUnderWayAreTheUsersOwn()
    {
        const SongFiles files;
        const QString path = files.copy("plain-v24.mp3"_s);
        QCOMPARE(files.update(path, {artist, "Edited"_s, "mine"_s}), UpdateResult::Saved);
        tags::ShownTexts shown{{artist, "Shown"_s, {}}, false, {{artist, "Edited"_s, "mine"_s}}};
        for (const QString &lyrics : {"mended"_s, QString()}) { // the last as it was shown, and typed all the same
            const SongTexts texts{artist, "Shown"_s, lyrics};
            QCOMPARE(tags::updateTags(path, texts, files.dataFolder(), shown), UpdateResult::Saved);
            QCOMPARE(textsIn(path).title, texts.title);
            QCOMPARE(textsIn(path).lyrics, lyrics);
            shown.underWay.append(texts);
        }
    }

    // ID3v2.3 knows no UTF-8; TagLib stores UTF-16 instead.
    void usltFramesAreEncoded()
    {
        const SongFiles files;
        const auto encoding = [&files](const QString &sample, const QString &lyrics) {
            const QString path = files.copy(sample);
            const bool isSaved = files.update(path, {{}, {}, lyrics}) == UpdateResult::Saved;
            const QJsonObject tags = SongFiles::tagsOf(path);
            return isSaved && seen(tags, "lyrics") == lyrics ? seen(tags, "usltEncodings") : QString();
        };
        QCOMPARE(encoding("plain-v23.mp3"_s, "plain~"_s), "0"_s);
        QCOMPARE(encoding("plain-v24.mp3"_s, "\u0080x"_s), "3"_s); // the first character beyond Latin-1's first half
        QCOMPARE(encoding("plain-v23.mp3"_s, "𝄞 歌"_s), "1"_s);
    }

    void artistsReachEachTag_data()
    {
        addTextColumns("sample", "newArtist", "artists", "id3v1");
        const QString two = "First Artist|Second Artist"_s;
        addRow("two as they were read", "two-artists.mp3", "First Artist Second Artist", two, "");
        addRow("two become one", "two-artists.mp3", "Other", "Other", "");
        addRow("one becomes two", "plain-v24.mp3", "A\\\\B", "A|B", "");
        addRow("an empty name changes nothing", "two-artists.mp3", "", two, "");
        addRow("ID3v1 takes a name of Latin-1", "v1-and-v2.mp3", "Café"_s, "Café"_s, "Café"_s);
        addRow("ID3v1 cannot hold it", "v1-and-v2.mp3", "Ёлка"_s, "Ёлка"_s, artist);
        addRow("ID3v1 takes one of two", "v1-and-v2.mp3", "A\\\\B", "A|B", "A");
        addRow("an empty one of two", "plain-v24.mp3", "A\\\\", "A", "");
        addRow("ID3v1 keeps a blank of another kind", "v1-and-v2.mp3", "Café\u00a0"_s, "Café\u00a0"_s, "Café\u00a0"_s);
        addRow("a character that nobody reads", "v1-and-v2.mp3", "A\u0092"_s, "A", "A");
        addRow("a later tag holds it already", "id3.flac", artist, artist, "");
    }

    void artistsReachEachTag()
    {
        QFETCH(QString, sample);
        QFETCH(QString, newArtist);
        const SongFiles files;
        QByteArray content = files.bytesOf(sample);
        content.replace("artist=The Artist", "artist=Old Artist"); // in a Vorbis comment alone
        constexpr int comment = 30;                                // of ID3v1.0, which no library writes
        if (sample == QLatin1String("v1-and-v2.mp3"))
            content.replace(content.size() - 1 - comment, comment, QByteArray(comment, 'c'));
        const QString path = files.write(sample, content);
        QCOMPARE(files.update(path, {newArtist, "Nächte"_s, words}), UpdateResult::Saved);
        const QJsonObject after = SongFiles::tagsOf(path);
        QTEST(seen(after, "artists"), "artists");
        QCOMPARE(seen(after, "title"), "Nächte"_s);
        QFETCH(QString, id3v1);
        const QByteArray tag = QByteArray::fromHex(after.value("id3v1"_s).toString().toLatin1());
        QCOMPARE(QString::fromLatin1(tag.mid(33, 30).constData()), id3v1);
        QVERIFY(content.endsWith(tag.mid(63)));
    }

    void otherTagsKeepTheirBytes_data()
    {
        addTextColumns("sample", "title", "artistSeen");
        addRow("lyrics beside both", "plain-v24.mp3", "", artist);
        addRow("a title that both hold already", "plain-v24.mp3", "Of The Others", artist);
        // The new tag takes over what was read, ID3v1, and of APE what that has cut.
        addRow("a new tag beside both", "untagged.mp3", "", "An Artist Of Thirty Characters And More");
    }

    void otherTagsKeepTheirBytes()
    {
        QFETCH(QString, sample);
        QFETCH(QString, title);
        const SongFiles files;
        // What a library would write differently: bytes after the end of a text, items in an order of their own.
        QByteArray tail =
            apeTag(
                {{"Year", "1999"}, {"Title", "Of The Others"}, {"ARTIST", "An Artist Of Thirty Characters And More"}}) +
            id3v1Tag("Of The Others", "An Artist Of Thirty Characters");
        tail[tail.size() - id3v1Bytes + 3 + 29] = '!';
        const QString path = files.write("song.mp3"_s, files.bytesOf(sample) + tail);
        QCOMPARE(files.update(path, {{}, title, "words"_s}), UpdateResult::Saved);
        QVERIFY(files.read(path).endsWith(tail));
        const QJsonObject tags = SongFiles::tagsOf(path);
        QTEST(seen(tags, "artists"), "artistSeen");
        QCOMPARE(seen(tags, "lyrics"), "words"_s);
        QCOMPARE(seen(tags.value("others"_s).toObject(), "TDRC"), "TDRC=2001"_s);
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
            const QByteArray tagged = files.bytesOf(QString(name).replace(0, 4, "plain"_s));
            header = tagged.left(tagged.lastIndexOf("APETAGEX", tagged.size() - 40)); // before the header of the tag
        }
        const QByteArray v1 = id3v1Tag("The Song", "The Artist");
        const QString path = files.write(name, header + v1);
        QCOMPARE(files.update(path, {artist, song, "words"_s}), UpdateResult::Saved);
        const QJsonObject tags = SongFiles::tagsOf(path);
        QCOMPARE(seen(tags, "lyrics") + seen(tags, "title") + seen(tags, "artists"), "words"_s + song + artist);
        QVERIFY(files.read(path).contains(header) && files.read(path).endsWith(v1));
    }

    void riffInfoIsLeftAlone()
    {
        const SongFiles files;
        QByteArray wav = files.bytesOf("info.wav"_s);
        wav.replace("The Artist", "Beyonc\xe9 XY"); // not UTF-8
        const QString path = files.write("latin1.wav"_s, wav);
        QCOMPARE(textsIn(path).artist, "Beyoncé XY"_s);
        QCOMPARE(files.update(path, {"Beyoncé XY"_s, "New"_s, words}), UpdateResult::Saved);
        QCOMPARE(seen(SongFiles::tagsOf(path), "artists"), "Beyoncé XY"_s);
        QVERIFY(files.read(path).mid(8).startsWith(wav.mid(8))); // all but the size of the file
    }

private:
    // The version of ID3v2 that each has in the end.
    static void everySample()
    {
        QTest::addColumn<QString>("id3");
        QTest::addColumn<bool>("areLyricsRead");
        for (const char *name : {"plain-v23.mp3", "untagged.mp3", "v1-only.mp3", "v1-and-v2.mp3", "v1-fills-v2.mp3",
                                 "apev2.mp3", "rated.mp3"})
            addRow(name, "2.3.0", true);
        for (const char *name : {"plain-v24.mp3", "two-artists.mp3", "lyrics.mp3", "rich.mp3", "plain.aiff"})
            addRow(name, "2.4.0", true);
        addRow("id3.wav", "2.4.0", false);
        addRow("info.wav", "2.3.0", false);
        for (const char *name : {"block-cover.flac", "comment-cover.flac", "plain.flac", "id3.flac", "cover.ogg",
                                 "lyrics.ogg", "plain.opus", "plain.m4a", "rich.m4a", "plain.wma", "lyrics.wma"})
            addRow(name, "", true);
        addRow("plain.ape", "", false);
        addRow("plain.wv", "", false);
    }
    static QString sampleName() { return QString::fromLatin1(QTest::currentDataTag()); }
    static bool isTagNew() { return sampleName() == "v1-only.mp3"_s || sampleName() == "info.wav"_s; }
};

QTEST_GUILESS_MAIN(tst_TagUpdate)
#include "tst_tagupdate.moc"
