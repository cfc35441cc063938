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
        return QTest::qWaitFor([&] { return isLoaded(model.rowCount() - 1); });
    }
    bool isLoaded(int row) const { return model.itemAt(row)->tagsLoaded(); }
    ModelItem::ProcessState state(int row) const { return model.itemAt(row)->processState(); }
    bool isComplete(int row = 0) const { return state(row) == ModelItem::ProcessComplete; }
    // Types lyrics for the only song and has them written.
    bool write(const QString &lyrics)
    {
        model.itemAt(0)->setEditedLyricsTag(lyrics);
        return model.writeTags(1);
    }
    bool isSettled() const { return model.activeCount() == 0 && TagWriter::pendingWrites() == 0; }

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
        QSignalSpy counts(&stage.model, &MainModel::activeCountChanged);
        stage.model.add({first, stage.folder.url(), QUrl(), QUrl("http://h/b.mp3"_s), stage.folder.url("gone.mp3"_s),
                         second, first});
        QCOMPARE(stage.model.urls(), (QList<QUrl>{first, second}));
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(counts.count(), 1);
        QCOMPARE(stage.model.itemAt(0)->id(), quint16(1));
        QCOMPARE(stage.model.itemAt(1)->id(), quint16(2));
        QCOMPARE(stage.state(1), ModelItem::ProcessWaiting);
        QCOMPARE(stage.model.data(stage.model.index(1), MainModel::fileThumbnailRole).toString(), QString());
        QTRY_COMPARE(stage.model.data(stage.model.index(1), MainModel::fileThumbnailRole).toString(),
                     "image://file-cover/2"_s);
        QCOMPARE(stage.model.data(stage.model.index(0), MainModel::filenameRole).toString(), "#1 100%41\n.mp3"_s);
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
        QTRY_VERIFY(stage.isLoaded(0) && stage.isLoaded(20));
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

    void songsWhoseDiskHasComeGoToTheirPlaces_data()
    {
        QTest::addColumn<int>("count");
        addRow("in ranges", 10);
        addRow("so many ranges that it is one reset", 140);
    }

    void songsWhoseDiskHasComeGoToTheirPlaces()
    {
        QFETCH(int, count);
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
        for (int i = 0; i < count / 2; ++i)
            stage.song("stick/%1.mp3"_s.arg(i));
        QSignalSpy resets(&stage.model, &MainModel::modelReset);
        stage.model.add(away);
        QCOMPARE(stage.model.rowCount(), count);
        QCOMPARE(resets.count(), count > 100 ? 1 : 0);
        for (int row = 0; row < count; ++row)
            QCOMPARE(stage.model.itemAt(row)->url(), list.at(row));
    }

    void aSongThatComesBackDuringItsWriteIsReadAfterwards()
    {
        Stage stage;
        const QUrl song = stage.song("a.mp3"_s);
        QVERIFY(stage.load({song}));
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
        QVERIFY(QFile::link(stage.folder.path(), stage.folder.path("link"_s)));
        const QUrl linked = stage.folder.url("link/a.mp3"_s);
        stage.model.setSongsInMending({QFileInfo(song.toLocalFile()).canonicalFilePath(), "/else/b.mp3"_s});
        QVERIFY(stage.load({song, linked, stage.song("b.mp3"_s)}));
        stage.model.setSongsInMending({QFileInfo(song.toLocalFile()).canonicalFilePath()});
        QTest::qWait(50);
        QVERIFY(!stage.isLoaded(0) && !stage.isLoaded(1));
        QVERIFY(!stage.model.writeTags(1));
        stage.model.setSongsInMending({});
        QTRY_VERIFY(stage.isLoaded(0) && stage.isLoaded(1));
        QVERIFY(!stage.model.itemAt(0)->lyricsTag().isEmpty());
    }

    void dropsAreSortedIntoFilesAndFolders()
    {
        Stage stage;
        QCOMPARE(stage.model.supportedTypesMask(" "_s), "*.ogg *.mp3"_s);
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
        QTRY_VERIFY(stage.isSettled() && stage.isComplete());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), "la la"_s);
        QCOMPARE(stage.model.itemAt(0)->lyricsTitle(), "Found"_s);
        QVERIFY(stage.isComplete(1) && stage.isComplete(2) && stage.isComplete(4));
        QCOMPARE(stage.state(3), ModelItem::ProcessNotSuitable);
        QCOMPARE(stage.model.itemAt(1)->errorString(), QString());
        QCOMPARE(stage.model.itemAt(2)->errorString(), "the site is down"_s);
        QVERIFY(stage.model.itemAt(4)->lyricsEmbedded());
        QCOMPARE(searches.count(), 3);
        QCOMPARE(searches.at(0), (QVariantList{"A"_s, "Found"_s}));
    }

    void lyricsAreDecodedAndWritten_data()
    {
        QTest::addColumn<bool>("prependNewLine");
        addTextColumns("found", "stored");
        addRow("as they are", false, "la\nla", "la\nla");
        addRow("character references become characters", false, "rock &amp; r&#111;ll &#x44f;", "rock & roll я"_s);
        addRow("with a line break in front", true, "la", "\r\nla");
    }

    void lyricsAreDecodedAndWritten()
    {
        QFETCH(bool, prependNewLine);
        QFETCH(QString, found);
        QFETCH(QString, stored);
        Stage stage({{"Song"_s, found}});
        stage.settings.setPrependNewLine(prependNewLine);
        stage.settings.setGenerateLyricsFileAuto(true);
        const QUrl url = stage.song("A - Song.m4a"_s, "plain.m4a");
        QVERIFY(stage.load({url}));
        QCOMPARE(stage.state(0), ModelItem::ProcessIdle);
        stage.model.itemAt(0)->setTitleTag("Song"_s);
        QVERIFY(stage.model.startSearch(1));
        QTRY_VERIFY(stage.isSettled() && stage.isComplete());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), stored);
        QCOMPARE(Stage::stored(url, "lyrics"), stored);
        QCOMPARE(Stage::stored(url, "title"), "Song"_s);
        QCOMPARE(stage.folder.read("A - Song.txt"_s), stored.toUtf8());
    }

    // Whether there are lyrics to lose matters to the question before losing them only.
    void aFailedWriteSaysWhyUntilALaterOneSucceeds()
    {
        Stage stage({{"Song"_s, "la"_s}});
        const QUrl url = stage.song("A - Song.mp3"_s);
        QVERIFY(stage.load({url}));
        QVERIFY(QFile::remove(url.toLocalFile()));
        ModelItem *item = stage.model.itemAt(0);
        QSignalSpy states(item, &ModelItem::processStateChanged);
        QSignalSpy failures(&stage.model, &MainModel::writesFailed);
        QSignalSpy left(&stage.model, &MainModel::failedWritesLeft);
        QVERIFY(stage.model.startSearch(1));
        QTRY_VERIFY(stage.isComplete());
        QCOMPARE(states.count(), 4);
        QCOMPARE(item->lyricsTag(), "la"_s);
        QVERIFY(stage.model.hasUnsavedLyrics(1) && !QFile::exists(url.toLocalFile()));
        for (const QString &lyrics : {"la"_s, "typed"_s, QString()}) {
            if (lyrics != QLatin1String("la")) {
                item->setTitleTag("Edited"_s);
                QVERIFY(stage.write(lyrics));
                QTRY_VERIFY(stage.isComplete());
            }
            QVERIFY(item->unsaved() && item->bad() && !item->fileExists() && !item->writeError().isEmpty());
            QCOMPARE(failures.takeFirst(), (QVariantList{item->errorString(), 1}));
            QCOMPARE(stage.model.hasUnsavedLyrics(1), !lyrics.isEmpty());
        }
        const QString reason = item->writeError();
        item->setErrorString("a search failed meanwhile"_s);
        QVERIFY(item->writeError() == reason && left.isEmpty());
        stage.song("A - Song.mp3"_s);
        QVERIFY(stage.model.writeTags(1));
        QTRY_VERIFY(stage.isComplete());
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
            QVERIFY(stage.model.writeTags(id));
            QTRY_VERIFY(stage.isComplete(id - 1));
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
        QTRY_VERIFY(stage.isLoaded(2));
        QTRY_COMPARE(stage.model.activeCount(), 0);
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
        QTRY_COMPARE(stage.model.activeCount(), 0);
        QTRY_VERIFY(stage.isSettled());
        QCOMPARE(stage.state(0), ModelItem::ProcessNotSuitable);
        QTRY_VERIFY(stage.isComplete(1));
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
        const QUrl url = stage.song("A - Song.mp3"_s, "plain-v23.mp3");
        QVERIFY(stage.load({url}));
        ModelItem *item = stage.model.itemAt(0);
        const auto save = [&](const QString &title) {
            item->setTitleTag(title);
            QVERIFY(stage.model.writeTags(1));
            QTRY_VERIFY(stage.isComplete());
            QCOMPARE(Stage::stored(url, "title"), title);
        };
        Stage::retag(url, {"Theirs"_s, {}, "their words"_s});
        QVERIFY(stage.model.startSearch(1));
        QTRY_VERIFY(stage.search.searchCount() == 0 && stage.isComplete());
        QVERIFY(item->unsaved() && item->lyricsTag() == "found"_s && !item->errorString().isEmpty());
        QCOMPARE(Stage::stored(url, "lyrics"), "their words"_s);
        save("New"_s); // who saves once more means it
        QCOMPARE(Stage::stored(url, "lyrics"), "found"_s);
        QCOMPARE(Stage::stored(url, "artist"), "Theirs"_s);
        save("The Song"_s); // as it was read first, and edited all the same
    }

    void onlyAChangeThatWasToldOfIsOverwritten()
    {
        Stage stage;
        const QUrl url = stage.song("Song.mp3"_s);
        const QString elsewhere = stage.folder.path("elsewhere"_s);
        QVERIFY(stage.load({url}));
        const auto stored = [&] {
            return QTest::qWaitFor([&] { return stage.isComplete(); }) ? Stage::stored(url, "lyrics") : "not written"_s;
        };
        QVERIFY(QFile::rename(url.toLocalFile(), elsewhere));
        QVERIFY(stage.write("one"_s));
        QCOMPARE(stored(), "(not read)"_s); // told that the song is away
        QVERIFY(QFile::rename(elsewhere, url.toLocalFile()));
        Stage::retag(url, {{}, {}, "theirs"_s});
        QVERIFY(stage.write("two"_s) && stage.write("three"_s)); // while the one before is under way
        QCOMPARE(stored(), "theirs"_s);
        for (const QString &title : {QString(), "Song"_s}) {
            stage.model.itemAt(0)->setTitleTag(title);
            QVERIFY(stage.write("four"_s));
            QCOMPARE(stored(), "four"_s);
            stage.model.itemAt(0)->setTitleTag({});
            QVERIFY(stage.write({})); // three empty texts
            QCOMPARE(stored(), QString());
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
        const QUrl url = stage.song("A - Rain.mp3"_s);
        QVERIFY(stage.load({url}) && stage.model.startSearch(1));
        if (isElsewhere)
            Stage::retag(url, {{}, newTitle, {}});
        else
            stage.model.itemAt(0)->setTitleTag(newTitle);
        QVERIFY(!isForced || stage.model.startSearch(1));
        QTRY_VERIFY(stage.isSettled() && stage.isComplete());
        QCOMPARE(Stage::stored(url, "title"), newTitle);
        QCOMPARE(Stage::stored(url, "lyrics"), lyrics);
        QCOMPARE(stage.model.itemAt(0)->titleTag(), newTitle);
        QCOMPARE(stage.folder.read("A - Rain.txt"_s), lyrics.isEmpty() ? "(no file)" : lyrics.toUtf8());
    }

    void wordsTypedDuringASearchStay()
    {
        Stage stage({{"Song"_s, "found"_s}});
        QVERIFY(stage.load({stage.song("A - Song.mp3"_s)}));
        QVERIFY(stage.model.startSearch(1));
        QCOMPARE(stage.state(0), ModelItem::ProcessWorking);
        QVERIFY(stage.model.startSearch(1)); // waits for the first
        QVERIFY(stage.write("typed"_s));
        QTRY_VERIFY(stage.search.searchCount() == 0 && stage.isSettled());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), "typed"_s);
        stage.model.lyricsSearchFinished(1, "A"_s, "Song"_s, {}, {});
        QVERIFY(stage.model.itemAt(0)->foundNothing() && stage.isSettled()); // what is there is not written again
        QVERIFY(stage.model.startSearch(1));                                 // what is searched for later counts again
        QTRY_COMPARE(stage.model.itemAt(0)->lyricsTag(), "found"_s);
    }

    void aSaveThatTheUserWasAskedAboutLeavesTheSearchAlone()
    {
        Stage stage({{"New"_s, "found"_s}});
        const QUrl url = stage.song("A - Song.mp3"_s);
        QVERIFY(stage.load({url}) && stage.model.startSearch(1));
        stage.model.itemAt(0)->setTitleTag("New"_s);
        QVERIFY(stage.model.writeTagsUnlessForeign(1));
        QCOMPARE(stage.state(0), ModelItem::ProcessWorking);
        QTRY_VERIFY(stage.isSettled() && stage.isComplete());
        QCOMPARE(Stage::stored(url, "lyrics"), "found"_s);
        QCOMPARE(Stage::stored(url, "title"), "New"_s);
    }

    void theLastOfTwoWritesCounts_data()
    {
        QTest::addColumn<bool>("firstFails");
        addRow("the first fails", true);
        addRow("the second meets what the first has stored", false);
    }

    void theLastOfTwoWritesCounts()
    {
        QFETCH(bool, firstFails);
        Stage stage;
        const QUrl url = stage.song("A - Song.mp3"_s);
        QVERIFY(stage.load({url}));
        QSignalSpy states(stage.model.itemAt(0), &ModelItem::processStateChanged);
        const auto write = [&](const QString &lyrics) {
            return stage.write(lyrics) && TagWriter::waitForQueued(std::chrono::seconds(30));
        };
        const QString elsewhere = stage.folder.path("elsewhere"_s);
        QVERIFY(!firstFails || QFile::rename(url.toLocalFile(), elsewhere));
        QVERIFY(write("first"_s) && stage.model.hasUnsavedLyrics(1)); // how it went is not known yet
        QVERIFY(!firstFails || QFile::rename(elsewhere, url.toLocalFile()));
        QVERIFY(write("second"_s));
        QTRY_VERIFY(stage.isComplete()); // the model hears of both only now
        QCOMPARE(states.count(), 2);
        QCOMPARE(stage.model.itemAt(0)->errorString(), QString());
        QVERIFY(stage.model.unsavedIds().isEmpty());
        QCOMPARE(Stage::stored(url, "lyrics"), "second"_s);
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
        for (int row = 1; row < 5; ++row)
            QTRY_VERIFY(stage.isLoaded(row));
        QTRY_COMPARE(stage.model.activeCount(), 1);
        QVERIFY(!stage.isLoaded(0));
        stage.model.add({stage.song("A - later.mp3"_s)});
        QVERIFY(stage.model.startSearch(1)); // while another read is under way
        QTRY_VERIFY(stage.isLoaded(0) && stage.isLoaded(5));
        QTRY_COMPARE(stage.model.activeCount(), 0);
        QCOMPARE(stage.state(0), ModelItem::ProcessComplete);
    }

    void removingTheSongThatIsReadLetsTheOthersBeRead()
    {
        Stage stage;
        stage.model.add(stage.songs(4));
        stage.model.add({stage.song("A - late.mp3"_s)});
        QVERIFY(stage.model.removeRows(1, 1)); // is read
        QVERIFY(stage.model.removeRows(0, 1)); // was overtaken
        for (int row = 0; row < 3; ++row)
            QTRY_VERIFY(stage.isLoaded(row));
        QTRY_COMPARE(stage.model.activeCount(), 0);
    }

    void tenSearchesAtATime()
    {
        Stage stage;
        QVERIFY(stage.load(stage.songs(25)));
        QSignalSpy started(&stage.model, &MainModel::searchStarted);
        for (quint16 id = 25; id > 0; --id)
            QVERIFY(stage.model.startSearch(id));
        QCOMPARE(stage.model.searchCount(), 10);
        QCOMPARE(stage.model.activeCount(), 25);
        // Those that were asked for first have started; from then on it goes by row.
        int most = 0;
        connect(&stage.model, &MainModel::searchCountChanged, this,
                [&most](int count) { most = std::max(most, count); });
        QTRY_COMPARE(stage.model.activeCount(), 0);
        QCOMPARE(most, 10);
        QCOMPARE(started.count(), 25);
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

    void rowsCanBeRemoved_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QVector<int> odd;
        for (int row = 1; row < 200; row += 2)
            odd.append(row);
        addRow("first, last and a few between", QVector<int>{0, 3, 4, 5, 100, 199});
        addRow("so many ranges that it is one reset", odd);
    }

    void rowsCanBeRemoved()
    {
        QFETCH(QVector<int>, rows);
        Stage stage;
        QList<QUrl> expected = stage.songs(200);
        stage.model.add(expected);
        for (auto row = rows.rbegin(); row != rows.rend(); ++row)
            expected.removeAt(*row);
        const QPointer<ModelItem> removed = stage.model.itemAt(rows.first());
        stage.model.removeScattered(rows);
        removed->setProcessState(ModelItem::ProcessComplete); // nobody counts it any more
        QCOMPARE(stage.model.urls(), expected);
        QCOMPARE(stage.model.activeCount(), expected.size());
        QTRY_VERIFY(!removed);
        for (int row = 0; row < expected.size(); ++row)
            QTRY_VERIFY(stage.isLoaded(row));
        // The row of an item is found by its id after all that.
        QSignalSpy changes(&stage.model, &MainModel::dataChanged);
        stage.model.itemAt(expected.size() - 1)->setErrorString("e"_s);
        QCOMPARE(changes.last().at(0).toModelIndex().row(), expected.size() - 1);
        stage.model.removeAll();
        QCOMPARE(stage.model.rowCount(), 0);
        QCOMPARE(stage.model.activeCount(), 0);
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
        QVERIFY(stage.load({file}));
        QVERIFY(stage.model.startSearch(1));
        stage.model.removeAll();
        QCOMPARE(stage.model.searchCount(), 1); // the event loop does not run, so id 1 stays in use
        MainModel &model = stage.model;
        QSignalSpy leftOut(&model, &MainModel::filesLeftOut);
        model.add(variants(0, 65000));
        model.add(variants(65000, 540));
        QCOMPARE(model.rowCount(), 65535);
        QCOMPARE(model.itemAt(65533)->id(), quint16(65535));
        QCOMPARE(model.itemAt(65534)->id(), quint16(0));
        QVERIFY(!model.item(1));
        QCOMPARE(leftOut.count(), 1);
        QCOMPARE(leftOut.at(0).at(0).toInt(), 5);
        QVERIFY(model.removeRows(776, 1));
        model.add(variants(70000, 2));
        QCOMPARE(model.itemAt(65534)->id(), quint16(778));
        QCOMPARE(leftOut.at(1).at(0).toInt(), 1);
        stage.model.removeAll();
        QTRY_COMPARE(stage.model.searchCount(), 0); // its end finds no item, and does no harm
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
            QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        };
        if (!nautilus.isEmpty())
            install("nautilus"_s, nautilus);
        install("xdg-open"_s, "exit 0");
        stage.model.add({stage.song("music/a b.mp3"_s)});

        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(stage.folder.path()));
        stage.model.locate(0);
        stage.model.locate(1);
        stage.model.locate(-1);
        stage.model.removeAll();
        stage.folder.write("song gone"_s);
        QFETCH(QByteArray, expected);
        QTRY_COMPARE(stage.folder.read(log), expected);
        qputenv("PATH", path);
    }
};

QTEST_GUILESS_MAIN(tst_MainModel)
#include "tst_mainmodel.moc"
