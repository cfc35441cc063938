// SPDX-License-Identifier: MIT
#include "model/MainModel.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "model/UnsavedTexts.h"
#include "settings/Settings.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"
#include "tags/TagWriter.h"
#include "tags/WriterThread.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

// A site that knows its songs by their titles and answers through the event loop. "fail" as a title is a site that is
// down.
class ScriptedProvider : public LyricsProvider
{
public:
    explicit ScriptedProvider(const QHash<QString, QString> &songs, QObject *parent = nullptr)
        : LyricsProvider(nullptr, parent)
        , m_songs(songs)
    {
    }
    QString name() const override { return "Scripted"_s; }
    QString siteUrl() const override { return "http://127.0.0.1"_s; }
    LyricsProvider *clone(QObject *parent) const override { return new ScriptedProvider(m_songs, parent); }

protected:
    ProviderStep firstStep(const QString &, const QString &title) override
    {
        const bool isDown = title == QLatin1String("fail");
        return isDown ? ProviderStep::failure("the site is down"_s) : ProviderStep::lyrics(m_songs.value(title));
    }

private:
    QHash<QString, QString> m_songs;
};

// What the program puts around a model, with rows that are checked all the time.
struct Stage
{
    explicit Stage(const QHash<QString, QString> &songs = {})
    {
        search.addProvider(std::make_unique<ScriptedProvider>(songs));
        model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        model.setSupportedExtensions({"ogg"_s, "mp3"_s});
        model.setSettings(&settings);
        model.setSearch(&search);
    }
    ~Stage()
    {
        model.setSearch(nullptr);
        TagWriter::waitForQueued(std::chrono::seconds(30));
    }

    // A copy of a sample under another name.
    QUrl song(const QString &name, const char *sample = "untagged.mp3") const
    {
        const QString source = QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(sample);
        return QUrl::fromLocalFile(folder.write(name, folder.read(source)));
    }
    // What the file says, "(not read)" when that cannot be told.
    static QString stored(const QUrl &song, const char *key)
    {
        MediaFileTags tags;
        return tags.read(song.toLocalFile()) ? tags.value(QLatin1String(key)) : "(not read)"_s;
    }
    // Lyrics as another program stores them.
    static void retag(const QUrl &song, const tags::SongTexts &texts)
    {
        QCOMPARE(tags::updateTags(song.toLocalFile(), texts, {}), tags::UpdateResult::Saved);
    }
    QList<QUrl> songs(int count)
    {
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i)
            urls.append(song("A - S%1.mp3"_s.arg(i, 3, 10, QLatin1Char('0'))));
        return urls;
    }
    // Without a search of them.
    bool load(const QList<QUrl> &urls)
    {
        model.setAutoStart(false);
        model.add(urls);
        return areLoaded(model.rowCount() - 1, model.rowCount() - 1);
    }
    QUrl loadedSong(const QString &name, const char *sample = "untagged.mp3")
    {
        const QUrl url = song(name, sample);
        if (!load({url}))
            qFatal("the song was not read");
        return url;
    }
    bool isLoaded(int row) const { return model.itemAt(row)->tagsLoaded(); }
    bool areLoaded(int first, int last) const
    {
        return QTest::qWaitFor([&] {
            int row = first;
            while (row <= last && isLoaded(row))
                ++row;
            return row > last;
        });
    }
    ModelItem::ProcessState state(int row) const { return model.itemAt(row)->processState(); }
    bool isComplete(int row = 0) const { return state(row) == ModelItem::ProcessComplete; }
    // Types lyrics for the first song and has them written; at once, or waits for it.
    bool write(const QString &lyrics)
    {
        model.itemAt(0)->setEditedLyricsTag(lyrics);
        return model.writeTags(1);
    }
    bool hasWritten(const QString &lyrics) { return write(lyrics) && ends(); }
    // Whether all searches and writes end, and that of this song with the state complete.
    bool ends(int row = 0) const
    {
        return QTest::qWaitFor(
            [&] { return model.activeCount() == 0 && TagWriter::pendingWrites() == 0 && isComplete(row); });
    }
    QVariant data(int row, MainModel::Role role) const { return model.data(model.index(row), role); }

    TestFolder folder;
    Settings settings;
    LyricsSearch search;
    MainModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

class tst_MainModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<ModelItem::ProcessState>("ModelItem::ProcessState"); }
    void onlyRegularLocalFilesAreAddedAndEachOnce()
    {
        Stage stage;
        const QUrl first = stage.song("#1 100%41\n.mp3"_s);
        const QUrl second = stage.song("b.mp3"_s);
        QSignalSpy inserted(&stage.model, &MainModel::rowsInserted);
        QVERIFY(QFile::link("/dev/zero"_s, stage.folder.path("device.mp3"_s)));
        stage.model.add({first, stage.folder.url(), stage.folder.url("device.mp3"_s), QUrl(), QUrl("http://h/b.mp3"_s),
                         stage.folder.url("gone.mp3"_s), second, first});
        QCOMPARE(stage.model.urls(), (QList<QUrl>{first, second}));
        QCOMPARE(inserted.count(), 1);
        QVERIFY(stage.model.itemAt(0)->id() == 1 && stage.model.itemAt(1)->id() == 2);
        QCOMPARE(stage.data(1, MainModel::fileThumbnailRole), QVariant(QString())); // until the cover is there
        QTRY_COMPARE(stage.data(1, MainModel::fileThumbnailRole), QVariant("image://file-cover/2"_s));
        QCOMPARE(stage.data(0, MainModel::filenameRole), QVariant("#1 100%41\n.mp3"_s));
    }

    // As they come from the scanner: not looked at again, in blocks, and no read is overtaken.
    void manyKnownFilesBecomeRowsInBlocks()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        QList<QUrl> files{stage.song("first.mp3"_s)};
        for (int i = 0; i < 2500; ++i)
            files.append(QUrl::fromLocalFile("/gone/%1.mp3"_s.arg(i)));
        files.append(files.last());
        stage.model.add(files, MainModel::IsRegularFile);
        files.removeLast();
        QCOMPARE(stage.model.rowCount(), 1000);
        QCOMPARE(stage.model.urls().mid(0, 2501), files); // all of them are kept when the program ends now
        QTRY_COMPARE(stage.model.rowCount(), 2501);
        QCOMPARE(stage.model.urls(), files);
        QVERIFY(stage.model.itemAt(2500)->fileExists() && !stage.model.itemAt(2500)->bad()); // what was told, no look
        QVERIFY(stage.areLoaded(20, 20));
    }

    // Its files are looked at elsewhere; until then they are kept, and come before those added meanwhile. Those whose
    // disk is away are kept on at their places, until the list is emptied. What is removed is not kept.
    void aListIsRestoredInItsOrder()
    {
        Stage stage;
        const QList<QUrl> songs = stage.songs(3);
        const QUrl away = QUrl::fromLocalFile("/no such stick/album/song.mp3"_s);
        const QUrl gone = stage.folder.url("gone.mp3"_s);
        const QUrl odd = stage.song("odd\xef\xbf\xbf.mp3"_s); // U+FFFF
        const QList<QUrl> list{songs.at(2), away, stage.folder.url(), odd, songs.at(0), gone};
        stage.model.keep(QUrl::toStringList(list.mid(0, 3)) + QStringList(odd.toLocalFile()) +
                         QUrl::toStringList(list.mid(4)));
        QCOMPARE(stage.model.urls(), list); // also when the program ends before it looks at them
        QVERIFY(stage.model.isRestoring());
        stage.model.restore();
        stage.model.add({songs.at(1)});
        QTRY_COMPARE(stage.model.urls(), (QList<QUrl>{songs.at(2), away, odd, songs.at(0), songs.at(1)}));
        QCOMPARE(stage.model.entries().at(2), odd.toLocalFile()); // its url could not be read back
        QCOMPARE(stage.model.rowCount(), 4);
        QCOMPARE(stage.model.itemAt(3)->url(), songs.at(1));
        QTRY_VERIFY(stage.isLoaded(2));
        QVERIFY(stage.model.removeRows(0, 4));
        QCOMPARE(stage.model.urls(), QList<QUrl>{away});
        stage.model.removeAll();
        QCOMPARE(stage.model.urls(), QList<QUrl>());
    }

    // In ranges, or when there are too many of these, in one reset.
    void songsWhoseDiskHasComeGoToTheirPlaces()
    {
        for (const int count : {10, 140}) {
            Stage stage;
            stage.model.setAutoStart(false);
            QVERIFY(QDir(stage.folder.path()).mkdir("stick"_s));
            QList<QUrl> away;
            QList<QUrl> list;
            for (int i = 0; i < count / 2; ++i) {
                away.append(stage.folder.url("stick/%1.mp3"_s.arg(i)));
                list << stage.song("%1.mp3"_s.arg(i)) << away.last();
            }
            stage.model.keep(QUrl::toStringList(list));
            stage.model.restore();
            QTRY_COMPARE(stage.model.rowCount(), count / 2);
            for (const QUrl &song : qAsConst(away))
                stage.song(song.toLocalFile());
            QSignalSpy resets(&stage.model, &MainModel::modelReset);
            stage.model.add(away);
            QCOMPARE(stage.model.rowCount(), count);
            QCOMPARE(stage.model.urls(), list);
            QCOMPARE(resets.count(), count > 100 ? 1 : 0);
        }
    }

    void aSongThatComesBackDuringItsWriteIsReadAfterwards()
    {
        Stage stage;
        const QUrl song = stage.loadedSong("a.mp3"_s);
        QSemaphore disk;
        auto *slowWrite = new QObject;
        slowWrite->moveToThread(tags::WriterThread::instance().thread());
        QMetaObject::invokeMethod(slowWrite, [&disk] { disk.acquire(); });
        slowWrite->deleteLater();
        QVERIFY(stage.write("typed"_s));
        stage.model.removeAll();
        const bool isOtherRead = stage.load({song, stage.song("b.mp3"_s)});
        const bool isReadMeanwhile = stage.isLoaded(0);
        disk.release();
        QVERIFY(isOtherRead && !isReadMeanwhile);
        QTRY_COMPARE(stage.model.itemAt(0)->lyricsTag(), "typed"_s);
    }

    void aSongWhoseSaveIsBeingUndoneIsReadAfterwards()
    {
        Stage stage;
        const QUrl song = stage.song("a.mp3"_s, "lyrics.mp3");
        const QString realPath = QFileInfo(song.toLocalFile()).canonicalFilePath();
        QVERIFY(QFile::link(stage.folder.path(), stage.folder.path("link"_s)));
        stage.model.setSongsInMending({realPath, "/else/b.mp3"_s});
        QVERIFY(stage.load({song, stage.folder.url("link/a.mp3"_s), stage.song("b.mp3"_s)}));
        stage.model.setSongsInMending({realPath});
        QTest::qWait(50);
        QVERIFY(!stage.isLoaded(0) && !stage.isLoaded(1));
        QVERIFY(!stage.model.writeTags(1));
        stage.model.setSongsInMending({});
        QVERIFY(stage.areLoaded(0, 1));
        QVERIFY(!stage.model.itemAt(0)->lyricsTag().isEmpty());
    }

    void dropsAreSortedIntoFilesAndFolders()
    {
        Stage stage;
        const QUrl loud = stage.song("SONG.MP3"_s);
        const QUrl backup = stage.song("song.mp3.bak"_s);
        const QUrl folder = stage.folder.url();
        QSignalSpy scans(&stage.model, &MainModel::scanFolders);
        QSignalSpy unsupported(&stage.model, &MainModel::filesUnsupported);
        stage.model.addUrlsFromDrop({backup, loud, folder, QUrl("http://h/c.mp3"_s)});
        QCOMPARE(stage.model.rowCount(), 0); // the disk is not asked here
        QTRY_COMPARE(scans.count(), 1);
        QTRY_COMPARE(stage.model.urls(), QList<QUrl>{loud});
        QCOMPARE(scans.at(0).at(0).value<QList<QUrl>>(), QList<QUrl>{folder});
        int left = 0;
        for (const QVariantList &count : qAsConst(unsupported))
            left += count.at(0).toInt();
        QCOMPARE(left, 2);
    }

    void songsGoTheirWayThroughTheStates()
    {
        Stage stage({{"Found"_s, "la la"_s}});
        QSignalSpy searches(&stage.model, &MainModel::searchStarted);
        stage.model.add({stage.song("A - Found.mp3"_s), stage.song("A - Unknown.mp3"_s), stage.song("A - fail.mp3"_s),
                         stage.song("track07.mp3"_s), stage.song("has.mp3"_s, "lyrics.mp3")});
        QCOMPARE(stage.model.activeCount(), 5);
        QVERIFY(stage.ends());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), "la la"_s);
        QVERIFY(stage.isComplete(1) && stage.isComplete(2) && stage.isComplete(4));
        QCOMPARE(stage.state(3), ModelItem::ProcessNotSuitable);
        QCOMPARE(stage.model.itemAt(1)->errorString(), QString());
        QCOMPARE(stage.model.itemAt(2)->errorString(), "the site is down"_s);
        QVERIFY(stage.model.itemAt(4)->lyricsEmbedded());
        QCOMPARE(searches.count(), 3);
        QCOMPARE(searches.at(0), (QVariantList{"A"_s, "Found"_s}));
    }

    void lyricsAreDecodedWrittenAndExported()
    {
        Stage stage({{"Song"_s, "rock &amp; r&#111;ll &#x44f;"_s}});
        stage.settings.setPrependNewLine(true);
        stage.settings.setGenerateLyricsFileAuto(true);
        const QUrl url = stage.loadedSong("A - Song.m4a"_s, "plain.m4a");
        QCOMPARE(stage.state(0), ModelItem::ProcessIdle);
        stage.model.itemAt(0)->setTitleTag("Song"_s);
        QVERIFY(stage.model.startSearch(1) && stage.ends());
        const QString lyrics = "\r\nrock & roll я"_s;
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), lyrics);
        QCOMPARE(Stage::stored(url, "lyrics"), lyrics);
        QCOMPARE(Stage::stored(url, "title"), "Song"_s);
        QCOMPARE(stage.folder.read("A - Song.txt"_s), lyrics.toUtf8());
    }

    // Whether there are lyrics to lose matters to the question before losing them only.
    void aFailedWriteSaysWhyUntilALaterOneSucceeds()
    {
        Stage stage({{"Song"_s, "la"_s}});
        const QUrl url = stage.loadedSong("A - Song.mp3"_s);
        ModelItem *item = stage.model.itemAt(0);
        QSignalSpy failures(&stage.model, &MainModel::writesFailed);
        QSignalSpy left(&stage.model, &MainModel::failedWritesLeft);
        QVERIFY(QFile::remove(url.toLocalFile()));
        QVERIFY(stage.model.startSearch(1) && stage.ends());
        QCOMPARE(item->lyricsTag(), "la"_s);
        for (const QString &lyrics : {"la"_s, "typed"_s, QString()}) {
            item->setTitleTag("Edited"_s);
            QVERIFY(lyrics == "la"_s || stage.hasWritten(lyrics)); // the first was found
            QVERIFY(item->unsaved() && item->bad() && !item->fileExists() && !item->writeError().isEmpty());
            QCOMPARE(failures.takeFirst(), (QVariantList{item->errorString(), 1}));
            QCOMPARE(stage.model.hasUnsavedLyrics(1), !lyrics.isEmpty());
        }
        const QString reason = item->writeError();
        item->setErrorString("a search failed meanwhile"_s);
        QVERIFY(item->writeError() == reason && left.isEmpty());
        stage.song("A - Song.mp3"_s);
        QVERIFY(stage.model.writeTags(1) && stage.ends());
        QVERIFY(!item->unsaved() && !item->bad() && failures.isEmpty());
        QCOMPARE(left.takeFirst(), (QVariantList{reason, 0}));
        QVERIFY(!stage.model.writeTags(99) && !stage.model.startSearch(99) && !stage.model.generateLyricsFile(99));
    }

    void whatIsInNoSongIsKeptAsText()
    {
        Stage stage;
        const QList<QUrl> urls{stage.song("Ёж.mp3"_s), stage.song("b/Ёж.mp3"_s), stage.song("saved.mp3"_s),
                               stage.song("named.mp3"_s, "lyrics.mp3")};
        QVERIFY(stage.load(urls));
        for (quint16 id = 1; id <= 4; ++id) {
            if (id == 4)
                stage.model.item(id)->setTitleTag("two\nlines"_s); // its lyrics are in the file, as far as is known
            else
                stage.model.item(id)->setEditedLyricsTag("mine\r\nё"_s);
            QVERIFY(id == 3 || QFile::remove(urls.at(id - 1).toLocalFile()));
            QVERIFY(stage.model.writeTags(id) && stage.ends(id - 1));
        }
        const QString folder = stage.folder.path("data/unsaved"_s);
        for (int time = 0; time < 2; ++time) { // what is kept already is not written again
            const KeptTexts kept = keepUnsavedTexts(stage.model, folder);
            QVERIFY(kept.songs == 3 && kept.lost.isEmpty());
        }
        QCOMPARE(stage.folder.names(folder), (QStringList{"named.mp3.txt"_s, "Ёж.mp3 2.txt"_s, "Ёж.mp3.txt"_s}));
        QCOMPARE(stage.folder.read(folder + "/named.mp3.txt"_s),
                 urls.at(3).toLocalFile().toUtf8() + "\n\nTitle: two lines\n");
        QByteArrayList contents{stage.folder.read(folder + "/Ёж.mp3 2.txt"_s),
                                stage.folder.read(folder + "/Ёж.mp3.txt"_s)};
        std::sort(contents.begin(), contents.end());
        QCOMPARE(contents, (QByteArrayList{urls.at(1).toLocalFile().toUtf8() + "\n\nmine\r\nё\n",
                                           urls.at(0).toLocalFile().toUtf8() + "\n\nmine\r\nё\n"}));
        QCOMPARE(keepUnsavedTexts(stage.model, urls.at(2).toLocalFile()).lost.size(), 3); // no folder
        stage.model.giveUpUnsaved({1, 4});
        QCOMPARE(stage.model.unsavedIds(), QVector<quint16>{2});
    }

    void anUnreadableSongIsLeftAloneUntilItIsForced()
    {
        Stage stage({{"crash"_s, "la"_s}, {"folder"_s, "la"_s}});
        const QUrl crashing = stage.song("A - crash.mp3"_s); // the reader of the tests dies on this name
        const QUrl folder = stage.song("A - folder.mp3"_s);
        QSignalSpy searches(&stage.model, &MainModel::searchStarted);
        stage.model.add({crashing, folder, stage.song("A - whole.mp3"_s)});
        QVERIFY(QFile::remove(folder.toLocalFile()) && QDir().mkdir(folder.toLocalFile())); // before its turn
        QVERIFY(stage.ends(2));
        for (int row = 0; row < 2; ++row) {
            ModelItem *item = stage.model.itemAt(row);
            QCOMPARE(item->processState(), ModelItem::ProcessNotSuitable);
            QVERIFY(item->unreadable() && item->bad() && !item->editable() && !item->errorString().isEmpty());
            item->setEditedLyricsTag("typed"_s);
            QVERIFY(!stage.model.writeTags(item->id()));
        }
        QCOMPARE(searches.count(), 1);
        // The one is mended meanwhile, the other one is not.
        QVERIFY(QDir().rmdir(folder.toLocalFile()));
        stage.song("A - folder.mp3"_s);
        QVERIFY(stage.model.startSearch(1) && stage.model.startSearch(2) && stage.model.startSearch(2));
        QVERIFY(stage.ends(1));
        QCOMPARE(stage.state(0), ModelItem::ProcessNotSuitable);
        QCOMPARE(stage.model.itemAt(1)->errorString(), QString());
        QCOMPARE(stage.model.itemAt(1)->lyricsTag(), "la"_s);
    }

    // Read late, but read; and nobody waits for it.
    void aSongOnASlowDiskIsTriedOnceMore()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        stage.model.add({stage.song("b/1/A - slow.mp3"_s), stage.song("b/2/A - stall.mp3"_s),
                         stage.song("b/3/A - near.mp3"_s), stage.song("c/A - quick.mp3"_s)});
        QVector<quint16> order;
        for (quint16 id = 1; id <= 4; ++id)
            connect(stage.model.item(id), &ModelItem::tagsLoadedChanged, this, [&order, id] { order.append(id); });
        QTRY_COMPARE_WITH_TIMEOUT(order, (QVector<quint16>{4, 3, 1}), 30'000);
        stage.model.add({stage.song("A - late.mp3"_s)}); // while the other one is tried again
        QTRY_VERIFY_WITH_TIMEOUT(stage.isLoaded(4), 20'000);
        QVERIFY(!stage.model.itemAt(1)->unreadable()); // not given up yet
        QVERIFY(stage.model.removeRows(1, 1));
        stage.model.add({stage.song("A - later.mp3"_s)});
        QTRY_VERIFY(stage.isLoaded(4));
    }

    void whatAnotherProgramHasStoredStays()
    {
        Stage stage({{"The Song"_s, "found"_s}});
        const QUrl url = stage.loadedSong("A - Song.mp3"_s, "plain-v23.mp3");
        ModelItem *item = stage.model.itemAt(0);
        Stage::retag(url, {"Theirs"_s, {}, "their words"_s});
        QVERIFY(stage.model.startSearch(1));
        QTRY_VERIFY(stage.search.searchCount() == 0 && stage.isComplete());
        QVERIFY(item->unsaved() && item->lyricsTag() == "found"_s && !item->errorString().isEmpty());
        QCOMPARE(Stage::stored(url, "lyrics"), "their words"_s);
        for (const QString &title : {"New"_s, "The Song"_s}) { // the latter was read first, and is edited all the same
            item->setTitleTag(title);
            QVERIFY(stage.model.writeTags(1) && stage.ends()); // who saves once more means it
            QCOMPARE(Stage::stored(url, "title"), title);
            QCOMPARE(Stage::stored(url, "lyrics"), "found"_s);
            QCOMPARE(Stage::stored(url, "artist"), "Theirs"_s);
        }
    }

    void onlyAChangeThatWasToldOfIsOverwritten()
    {
        Stage stage;
        const QUrl url = stage.loadedSong("Song.mp3"_s);
        const QString elsewhere = stage.folder.path("elsewhere"_s);
        QVERIFY(QFile::rename(url.toLocalFile(), elsewhere));
        QVERIFY(stage.hasWritten("one"_s)); // told that the song is away
        QVERIFY(QFile::rename(elsewhere, url.toLocalFile()));
        Stage::retag(url, {{}, {}, "theirs"_s});
        QVERIFY(stage.write("two"_s) && stage.hasWritten("three"_s)); // while the one before is under way
        QCOMPARE(Stage::stored(url, "lyrics"), "theirs"_s);
        for (const QString &title : {QString(), "Song"_s}) {
            stage.model.itemAt(0)->setTitleTag(title);
            QVERIFY(stage.hasWritten("four"_s));
            QCOMPARE(Stage::stored(url, "lyrics"), "four"_s);
            stage.model.itemAt(0)->setTitleTag({});
            QVERIFY(stage.hasWritten({})); // three empty texts
            QCOMPARE(Stage::stored(url, "lyrics"), QString());
        }
    }

    void aSongIsSearchedForAnewUnderItsNewNames_data()
    {
        QTest::addColumn<bool>("isForced");
        QTest::addColumn<bool>("isElsewhere");
        addTextColumns("newTitle", "lyrics");
        addRow("corrected in the list", false, false, "Reign", "of Reign");
        addRow("corrected, and the search is forced", true, false, "Reign", "of Reign");
        addRow("corrected in the file by another program", false, true, "Reign", "of Reign");
        addRow("given there to a song that no site has", false, true, "Rein", "");
    }

    void aSongIsSearchedForAnewUnderItsNewNames()
    {
        QFETCH(bool, isForced);
        QFETCH(bool, isElsewhere);
        QFETCH(QString, newTitle);
        QFETCH(QString, lyrics);
        Stage stage({{"Rain"_s, "of Rain"_s}, {"Reign"_s, "of Reign"_s}});
        stage.settings.setGenerateLyricsFileAuto(true);
        const QUrl url = stage.loadedSong("A - Rain.mp3"_s);
        QVERIFY(stage.model.startSearch(1));
        if (isElsewhere)
            Stage::retag(url, {{}, newTitle, {}});
        else
            stage.model.itemAt(0)->setTitleTag(newTitle);
        QVERIFY(!isForced || stage.model.startSearch(1));
        QVERIFY(stage.ends());
        QCOMPARE(Stage::stored(url, "title"), newTitle);
        QCOMPARE(Stage::stored(url, "lyrics"), lyrics);
        QCOMPARE(stage.model.itemAt(0)->titleTag(), newTitle);
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), lyrics);
        QCOMPARE(stage.folder.read("A - Rain.txt"_s), lyrics.isEmpty() ? "of Rain" : lyrics.toUtf8());
    }

    void wordsTypedDuringASearchStay()
    {
        Stage stage({{"Song"_s, "found"_s}});
        stage.loadedSong("A - Song.mp3"_s);
        QVERIFY(stage.model.startSearch(1));
        QCOMPARE(stage.state(0), ModelItem::ProcessWorking);
        QVERIFY(stage.model.startSearch(1)); // waits for the first
        QVERIFY(stage.write("typed"_s));
        QTRY_COMPARE(stage.search.searchCount(), 0);
        QVERIFY(stage.ends());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), "typed"_s);
        stage.model.lyricsSearchFinished(1, "A"_s, "Song"_s, {}, {});
        QVERIFY(stage.model.itemAt(0)->foundNothing() && !stage.model.isWriting(1)); // of what is there already
        QVERIFY(stage.model.startSearch(1)); // what is searched for later counts again
        QTRY_COMPARE(stage.model.itemAt(0)->lyricsTag(), "found"_s);
    }

    void aSaveThatTheUserWasAskedAboutLeavesTheSearchAlone()
    {
        Stage stage({{"New"_s, "found"_s}});
        const QUrl url = stage.loadedSong("A - Song.mp3"_s);
        QVERIFY(stage.model.startSearch(1));
        stage.model.itemAt(0)->setTitleTag("New"_s);
        QVERIFY(stage.model.writeTagsUnlessForeign(1));
        QCOMPARE(stage.state(0), ModelItem::ProcessWorking);
        QVERIFY(stage.ends());
        QCOMPARE(Stage::stored(url, "lyrics"), "found"_s);
        QCOMPARE(Stage::stored(url, "title"), "New"_s);
    }

    // Also when the first has failed.
    void theLastOfTwoWritesCounts()
    {
        for (const bool firstFails : {true, false}) {
            Stage stage;
            const QUrl url = stage.loadedSong("A - Song.mp3"_s);
            const auto write = [&](const QString &lyrics) {
                return stage.write(lyrics) && TagWriter::waitForQueued(std::chrono::seconds(30));
            };
            const QString elsewhere = stage.folder.path("elsewhere"_s);
            QVERIFY(!firstFails || QFile::rename(url.toLocalFile(), elsewhere));
            QVERIFY(write("first"_s) && stage.model.hasUnsavedLyrics(1)); // how it went is not known yet
            QVERIFY(!firstFails || QFile::rename(elsewhere, url.toLocalFile()));
            QVERIFY(write("second"_s) && stage.ends()); // the model hears of both only now
            QCOMPARE(stage.model.itemAt(0)->errorString(), QString());
            QVERIFY(stage.model.unsavedIds().isEmpty());
            QCOMPARE(Stage::stored(url, "lyrics"), "second"_s);
        }
    }

    void exportsComeBeforeTheWritesAndTellTheirEnd()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        stage.settings.setGenerateLyricsFileAuto(true);
        stage.model.add({stage.song("A - Song.mp3"_s, "lyrics.mp3")});
        const QString notes = stage.folder.path("A - Song.txt"_s);
        QVERIFY(!stage.model.generateLyricsFile(1)); // not read yet
        QTRY_VERIFY(stage.isLoaded(0));
        QSignalSpy exported(&stage.model, &MainModel::lyricsExported);
        QSignalSpy failed(&stage.model, &MainModel::automaticExportFailed);
        QVERIFY(QDir().mkdir(notes)); // in its way
        QVERIFY(stage.model.generateLyricsFile(1) && stage.model.writeTags(1));
        QVERIFY(TagWriter::waitForQueued(std::chrono::seconds(30))); // as at the end of the program
        QVERIFY(QDir().rmdir(notes));
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed.first(), QVariantList{notes});
        QCOMPARE(exported.first(), (QVariantList{1, notes, false}));
        QVERIFY(stage.model.generateLyricsFile(1));
        QTRY_COMPARE(exported.count(), 2);
        QCOMPARE(exported.last(), (QVariantList{1, notes, true}));
        QVERIFY(QFileInfo(notes).size() > 0);
        stage.model.itemAt(0)->setEditedLyricsTag({});
        QVERIFY(!stage.model.generateLyricsFile(1) && QFileInfo(notes).size() > 0);
    }

    void anOvertakenReadComesBackWithAForcedSearch()
    {
        Stage stage;
        stage.model.add({stage.song("named in its tags.mp3"_s, "plain-v23.mp3")});
        stage.model.add(stage.songs(3)); // overtakes the read of the first
        stage.model.add({stage.song("A - late.mp3"_s)});
        QVERIFY(stage.areLoaded(1, 4));
        QTRY_COMPARE(stage.model.activeCount(), 1);
        QVERIFY(!stage.isLoaded(0));
        stage.model.add({stage.song("A - later.mp3"_s)});
        QVERIFY(stage.model.startSearch(1)); // while another read is under way
        QVERIFY(stage.ends() && stage.isLoaded(0) && stage.isLoaded(5));
    }

    void removingTheSongThatIsReadLetsTheOthersBeRead()
    {
        Stage stage;
        stage.model.add(stage.songs(4));
        stage.model.add({stage.song("A - late.mp3"_s)});
        QVERIFY(stage.model.removeRows(1, 1)); // is read
        QVERIFY(stage.model.removeRows(0, 1)); // was overtaken
        QVERIFY(stage.areLoaded(0, 2));
        QTRY_COMPARE(stage.model.activeCount(), 0);
    }

    void tenSearchesAtATime()
    {
        Stage stage;
        QVERIFY(stage.load(stage.songs(25)));
        QSignalSpy started(&stage.model, &MainModel::searchStarted);
        QSignalSpy counts(&stage.model, &MainModel::searchCountChanged);
        for (quint16 id = 25; id > 0; --id)
            QVERIFY(stage.model.startSearch(id));
        QCOMPARE(stage.model.searchCount(), 10);
        QCOMPARE(stage.model.activeCount(), 25);
        QTRY_COMPARE(stage.model.activeCount(), 0);
        QVERIFY(!counts.contains(QVariantList{11}));
        QCOMPARE(started.count(), 25);
        // Those that were asked for first have started; from then on it goes by row.
        QCOMPARE(started.at(10).at(1).toString(), "S000"_s);
        QCOMPARE(started.at(24).at(1).toString(), "S014"_s);
    }

    void anUnsuitableSongDoesNotStopTheOthers()
    {
        Stage stage;
        QVERIFY(stage.load({stage.song("first.mp3"_s, "plain-v23.mp3"), stage.song("A - S.mp3"_s)}));
        ModelItem *first = stage.model.itemAt(0);
        first->setArtistTag(QString());
        first->setErrorString("of an earlier search"_s);
        first->setProcessState(ModelItem::ProcessWaiting);
        QVERIFY(stage.model.startSearch(2));
        QCOMPARE(stage.state(0), ModelItem::ProcessNotSuitable);
        QCOMPARE(stage.state(1), ModelItem::ProcessWorking);
        QCOMPARE(first->errorString(), QString());
        QVERIFY(!stage.model.startSearch(1));
    }

    // In ranges, or when there are too many of these, in one reset.
    void rowsCanBeRemoved()
    {
        for (const int step : {2, 70}) {
            Stage stage;
            QList<QUrl> left = stage.songs(200);
            stage.model.add(left);
            QVector<int> rows;
            for (int row = 1; row < 200; row += step)
                rows.append(row);
            for (auto row = rows.rbegin(); row != rows.rend(); ++row)
                left.removeAt(*row);
            const QPointer<ModelItem> removed = stage.model.itemAt(1);
            stage.model.removeScattered(rows);
            removed->setProcessState(ModelItem::ProcessComplete); // nobody counts it any more
            QCOMPARE(stage.model.urls(), left);
            QCOMPARE(stage.model.activeCount(), left.size());
            QTRY_VERIFY(!removed);
            QTRY_VERIFY_WITH_TIMEOUT(stage.areLoaded(0, left.size() - 1), 20'000);
            // The row of an item is found by its id after all that.
            QSignalSpy changes(&stage.model, &MainModel::dataChanged);
            stage.model.itemAt(left.size() - 1)->setErrorString("e"_s);
            QCOMPARE(changes.last().at(0).toModelIndex().row(), left.size() - 1);
            stage.model.removeAll();
            QVERIFY(stage.model.rowCount() == 0 && stage.model.activeCount() == 0);
        }
    }

    void idsWrapAndRunOut()
    {
        Stage stage;
        const QUrl file = stage.song("A - S.mp3"_s);
        const auto variants = [&file](int first, int count) {
            QList<QUrl> urls;
            for (int i = first; i < first + count; ++i) {
                urls.append(file);
                urls.last().setQuery(QString::number(i));
            }
            return urls;
        };
        MainModel &model = stage.model;
        QVERIFY(stage.load({file}) && model.startSearch(1));
        model.removeAll();
        QCOMPARE(model.searchCount(), 1); // the event loop does not run, so id 1 stays in use
        QSignalSpy leftOut(&model, &MainModel::filesLeftOut);
        model.add(variants(0, 65000));
        model.add(variants(65000, 540));
        QCOMPARE(model.rowCount(), 65535);
        QVERIFY(model.itemAt(65533)->id() == 65535 && model.itemAt(65534)->id() == 0 && !model.item(1));
        QVERIFY(model.removeRows(776, 1));
        model.add(variants(70000, 2));
        QCOMPARE(model.itemAt(65534)->id(), quint16(778));
        QCOMPARE(leftOut, (QList<QVariantList>{{5}, {1}}));
        model.removeAll();
        QTRY_COMPARE(model.searchCount(), 0); // its end finds no item, and does no harm
    }

    void filesAreShownInTheFileManager_data()
    {
        QTest::addColumn<QByteArray>("nautilus");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray asked = "nautilus a b.mp3\n";
        const QByteArray opened = "xdg-open music\n";
        addRow("nautilus has it", QByteArray("exit 0"), asked);
        addRow("nautilus crashes", QByteArray("kill -9 $$"), asked + opened);
        addRow("nautilus fails when the song is gone",
               QByteArray("while [ ! -e \"${0%/*}/song gone\" ]; do /bin/sleep 0.01; done; exit 1"), asked + opened);
        addRow("there is no nautilus", QByteArray(), opened);
    }

    void filesAreShownInTheFileManager()
    {
        QFETCH(QByteArray, nautilus);
        Stage stage;
        const QString log = stage.folder.path("log"_s);
        const auto install = [&](const QString &name, const QByteArray &end) {
            const QByteArray echo = "echo \"" + name.toUtf8() + " ${1##*/}\" >> '" + log.toUtf8() + "'\n";
            const QString program = stage.folder.write(name, "#!/bin/sh\n" + echo + end + "\n");
            return QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        };
        QVERIFY(nautilus.isEmpty() || install("nautilus"_s, nautilus));
        QVERIFY(install("xdg-open"_s, "exit 0"));
        stage.model.add({stage.song("music/a b.mp3"_s)});

        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(stage.folder.path()));
        for (const int row : {0, 1, -1})
            stage.model.locate(row);
        stage.model.removeAll();
        stage.folder.write("song gone"_s);
        QFETCH(QByteArray, expected);
        QTRY_COMPARE(stage.folder.read(log), expected);
        qputenv("PATH", path);
    }
};

QTEST_GUILESS_MAIN(tst_MainModel)
#include "tst_mainmodel.moc"
