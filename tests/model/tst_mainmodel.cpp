// SPDX-License-Identifier: MIT
#include "model/MainModel.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "settings/Settings.h"
#include "tags/TagWriter.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
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

    QString name() const override { return QStringLiteral("Scripted"); }
    QString siteUrl() const override { return QStringLiteral("http://127.0.0.1"); }
    LyricsProvider *clone(QObject *parent) const override { return new ScriptedProvider(m_songs, parent); }

protected:
    ProviderStep firstStep(const QString &, const QString &title) override
    {
        if (title == QLatin1String("fail"))
            return ProviderStep::failure(QStringLiteral("the site is down"));
        return ProviderStep::lyrics(m_songs.value(title));
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
        model.setSupportedExtensions({QStringLiteral("ogg"), QStringLiteral("mp3")});
        model.setSettings(&settings);
        model.setSearch(&search);
    }
    ~Stage()
    {
        model.setSearch(nullptr);
        TagWriter::waitForQueued(std::chrono::seconds(30));
    }

    // A copy of a sample under another name.
    QUrl song(const QString &name, const char *sample = "untagged.mp3")
    {
        const QString path = folder.filePath(name);
        if (!QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(sample), path))
            qFatal("no copy of %s", sample);
        return QUrl::fromLocalFile(path);
    }
    QList<QUrl> songs(int count)
    {
        QList<QUrl> urls;
        for (int i = 0; i < count; ++i)
            urls.append(song(QStringLiteral("A - S%1.mp3").arg(i, 3, 10, QLatin1Char('0'))));
        return urls;
    }
    bool isLoaded(int row) const { return model.itemAt(row)->tagsLoaded(); }
    ModelItem::ProcessState state(int row) const { return model.itemAt(row)->processState(); }
    bool isSettled() const { return model.activeCount() == 0 && TagWriter::pendingWrites() == 0; }

    QTemporaryDir folder;
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
        const QUrl first = stage.song(QStringLiteral("#1 100%41\n.mp3"));
        const QUrl second = stage.song(QStringLiteral("b.mp3"));
        QSignalSpy inserted(&stage.model, &MainModel::rowsInserted);
        QSignalSpy counts(&stage.model, &MainModel::activeCountChanged);
        stage.model.add({first, QUrl::fromLocalFile(stage.folder.path()), QUrl(),
                         QUrl(QStringLiteral("http://h/b.mp3")),
                         QUrl::fromLocalFile(stage.folder.filePath(QStringLiteral("gone.mp3"))), second, first});
        QCOMPARE(stage.model.urls(), (QList<QUrl>{first, second}));
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(counts.count(), 1);
        QCOMPARE(stage.model.itemAt(0)->id(), quint16(1));
        QCOMPARE(stage.model.itemAt(1)->id(), quint16(2));
        QCOMPARE(stage.state(1), ModelItem::ProcessWaiting);
        QCOMPARE(stage.model.data(stage.model.index(1), MainModel::fileThumbnailRole).toString(), QString());
        QTRY_COMPARE(stage.model.data(stage.model.index(1), MainModel::fileThumbnailRole).toString(),
                     QStringLiteral("image://file-cover/2"));
        QCOMPARE(stage.model.data(stage.model.index(0), MainModel::filenameRole).toString(),
                 QStringLiteral("#1 100%41\n.mp3"));
    }

    // As they come from the scanner: not looked at again, in blocks, and no read is overtaken.
    void manyKnownFilesBecomeRowsInBlocks()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        QList<QUrl> files{stage.song(QStringLiteral("first.mp3"))};
        for (int i = 0; i < 2500; ++i)
            files.append(QUrl::fromLocalFile(QStringLiteral("/gone/%1.mp3").arg(i)));
        files.append(files.last());
        stage.model.add(files, MainModel::IsRegularFile);
        files.removeLast();
        QCOMPARE(stage.model.rowCount(), 1000);
        QCOMPARE(stage.model.urls().mid(0, 2501), files); // all of them are kept when the program ends now
        QTRY_COMPARE(stage.model.rowCount(), 2501);
        QCOMPARE(stage.model.urls(), files);
        QTRY_VERIFY(stage.isLoaded(0) && stage.isLoaded(20));
    }

    // Its files are looked at elsewhere; until then they are kept, and come behind those added meanwhile.
    void aListIsRestoredInItsOrder()
    {
        Stage stage;
        const QList<QUrl> songs = stage.songs(3);
        const QList<QUrl> list{songs.at(2), QUrl::fromLocalFile(stage.folder.path()), songs.at(0),
                               QUrl::fromLocalFile(QStringLiteral("/gone.mp3"))};
        stage.model.restore(list);
        QCOMPARE(stage.model.urls(), list);
        stage.model.add({songs.at(1)});
        QCOMPARE(stage.model.rowCount(), 1);
        QTRY_COMPARE(stage.model.urls(), (QList<QUrl>{songs.at(1), songs.at(2), songs.at(0)}));
        QCOMPARE(stage.model.rowCount(), 3);
    }

    void dropsAreSortedIntoFilesAndFolders()
    {
        Stage stage;
        QCOMPARE(stage.model.supportedTypesMask(QStringLiteral(" ")), QStringLiteral("*.ogg *.mp3"));
        const QUrl loud = stage.song(QStringLiteral("SONG.MP3"));
        const QUrl backup = stage.song(QStringLiteral("song.mp3.bak"));
        const QUrl folder = QUrl::fromLocalFile(stage.folder.path());
        QSignalSpy scans(&stage.model, &MainModel::scanFolders);
        stage.model.addUrlsFromDrop({backup, loud, folder, QUrl(QStringLiteral("http://h/c.mp3"))});
        QCOMPARE(stage.model.rowCount(), 0); // the disk is not asked here
        QTRY_COMPARE(scans.count(), 1);
        QCOMPARE(stage.model.urls(), QList<QUrl>{loud});
        QCOMPARE(scans.at(0).at(0).value<QList<QUrl>>(), QList<QUrl>{folder});
    }

    void songsGoTheirWayThroughTheStates()
    {
        Stage stage({{QStringLiteral("Found"), QStringLiteral("la la")}});
        QSignalSpy searches(&stage.model, &MainModel::searchStarted);
        stage.model.add({stage.song(QStringLiteral("A - Found.mp3")), stage.song(QStringLiteral("A - Unknown.mp3")),
                         stage.song(QStringLiteral("A - fail.mp3")), stage.song(QStringLiteral("track07.mp3")),
                         stage.song(QStringLiteral("has.mp3"), "lyrics.mp3")});
        QCOMPARE(stage.model.activeCount(), 5);
        QTRY_VERIFY(stage.isSettled() && stage.state(0) == ModelItem::ProcessComplete);
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), QStringLiteral("la la"));
        QCOMPARE(stage.model.itemAt(0)->lyricsTitle(), QStringLiteral("Found"));
        QCOMPARE(stage.state(1), ModelItem::ProcessComplete);
        QCOMPARE(stage.model.itemAt(1)->errorString(), QString());
        QCOMPARE(stage.state(2), ModelItem::ProcessComplete);
        QCOMPARE(stage.model.itemAt(2)->errorString(), QStringLiteral("the site is down"));
        QCOMPARE(stage.state(3), ModelItem::ProcessNotSuitable);
        QCOMPARE(stage.state(4), ModelItem::ProcessComplete);
        QVERIFY(stage.model.itemAt(4)->lyricsEmbedded());
        QCOMPARE(searches.count(), 3);
        QCOMPARE(searches.at(0), (QVariantList{QStringLiteral("A"), QStringLiteral("Found")}));
    }

    void lyricsAreDecodedAndWritten_data()
    {
        QTest::addColumn<bool>("prependNewLine");
        QTest::addColumn<QString>("found");
        QTest::addColumn<QString>("stored");
        QTest::newRow("as they are") << false << "la\nla"
                                     << "la\nla";
        QTest::newRow("character references become characters")
            << false << "rock &amp; r&#111;ll &#x44f;" << QStringLiteral("rock & roll я");
        QTest::newRow("with a line break in front") << true << "la"
                                                    << "\r\nla";
    }

    void lyricsAreDecodedAndWritten()
    {
        QFETCH(bool, prependNewLine);
        QFETCH(QString, found);
        QFETCH(QString, stored);
        Stage stage({{QStringLiteral("Song"), found}});
        stage.settings.setPrependNewLine(prependNewLine);
        stage.settings.setGenerateLyricsFileAuto(true);
        const QUrl url = stage.song(QStringLiteral("A - Song.m4a"), "plain.m4a");
        stage.model.setAutoStart(false);
        stage.model.add({url});
        QTRY_VERIFY(stage.isLoaded(0));
        QCOMPARE(stage.state(0), ModelItem::ProcessIdle);
        stage.model.itemAt(0)->setTitleTag(QStringLiteral("Song"));
        QVERIFY(stage.model.startSearch(1));
        QTRY_VERIFY(stage.isSettled() && stage.state(0) == ModelItem::ProcessComplete);
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), stored);
        MediaFileTags tags;
        QVERIFY(tags.read(url.toLocalFile()));
        QCOMPARE(tags.value(QStringLiteral("lyrics")), stored);
        QCOMPARE(tags.value(QStringLiteral("title")), QStringLiteral("Song"));
        QFile text(stage.folder.filePath(QStringLiteral("A - Song.txt")));
        QVERIFY(text.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(text.readAll()), stored);
    }

    void aFailedWriteKeepsTheLyricsAndSaysWhy()
    {
        Stage stage({{QStringLiteral("Song"), QStringLiteral("la")}});
        const QUrl url = stage.song(QStringLiteral("A - Song.mp3"));
        stage.model.setAutoStart(false);
        stage.model.add({url});
        QTRY_VERIFY(stage.isLoaded(0));
        QVERIFY(QFile::remove(url.toLocalFile()));
        QSignalSpy states(stage.model.itemAt(0), &ModelItem::processStateChanged);
        QSignalSpy failures(&stage.model, &MainModel::writesFailed);
        QVERIFY(stage.model.startSearch(1));
        QTRY_COMPARE(stage.state(0), ModelItem::ProcessComplete);
        QCOMPARE(failures.count(), 1);
        QCOMPARE(failures.first(), (QVariantList{stage.model.itemAt(0)->errorString(), 1}));
        QVERIFY(stage.model.hasUnsavedLyrics(1));
        QVERIFY(!stage.model.itemAt(0)->errorString().isEmpty());
        QVERIFY(stage.model.itemAt(0)->unsaved() && stage.model.itemAt(0)->bad());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), QStringLiteral("la"));
        QVERIFY(!QFile::exists(url.toLocalFile()));
        QCOMPARE(states.count(), 4);
        QVERIFY(!stage.model.writeTags(99) && !stage.model.startSearch(99) && !stage.model.generateLyricsFile(99));
        stage.model.removeAll();
        QCOMPARE(stage.model.unsavedCount(), 0);
    }

    void anUnreadableSongIsLeftAloneUntilItIsForced()
    {
        Stage stage({{QStringLiteral("crash"), QStringLiteral("la")}, {QStringLiteral("zeros"), QStringLiteral("la")}});
        const QUrl crashing = stage.song(QStringLiteral("A - crash.mp3")); // the reader of the tests dies on this name
        QFile zeros(stage.folder.filePath(QStringLiteral("A - zeros.mp3")));
        QVERIFY(zeros.open(QIODevice::WriteOnly) && zeros.resize(100 << 20));
        const QUrl endless = QUrl::fromLocalFile(zeros.fileName());
        QSignalSpy searches(&stage.model, &MainModel::searchStarted);
        stage.model.add({crashing, endless, stage.song(QStringLiteral("A - whole.mp3"))});
        QTRY_VERIFY(stage.isLoaded(2));
        QTRY_COMPARE(stage.model.activeCount(), 0);
        for (int row = 0; row < 2; ++row) {
            ModelItem *item = stage.model.itemAt(row);
            QCOMPARE(item->processState(), ModelItem::ProcessNotSuitable);
            QVERIFY(item->unreadable() && item->bad() && !item->editable() && !item->errorString().isEmpty());
            item->setEditedLyricsTag(QStringLiteral("typed"));
            QVERIFY(!stage.model.writeTags(item->id()));
        }
        QCOMPARE(searches.count(), 1);
        QCOMPARE(zeros.size(), 100 << 20);
        // The one is mended meanwhile, the other one is not.
        QVERIFY(zeros.remove());
        stage.song(QStringLiteral("A - zeros.mp3"));
        QVERIFY(stage.model.startSearch(1) && stage.model.startSearch(2) && stage.model.startSearch(2));
        QTRY_COMPARE(stage.model.activeCount(), 0);
        QTRY_VERIFY(stage.isSettled());
        QCOMPARE(stage.state(0), ModelItem::ProcessNotSuitable);
        QTRY_COMPARE(stage.state(1), ModelItem::ProcessComplete);
        QCOMPARE(stage.model.itemAt(1)->errorString(), QString());
        QCOMPARE(stage.model.itemAt(1)->lyricsTag(), QStringLiteral("la"));
    }

    void wordsTypedDuringASearchStay()
    {
        Stage stage({{QStringLiteral("Song"), QStringLiteral("found")}});
        stage.model.setAutoStart(false);
        stage.model.add({stage.song(QStringLiteral("A - Song.mp3"))});
        QTRY_VERIFY(stage.isLoaded(0));
        QVERIFY(stage.model.startSearch(1));
        QCOMPARE(stage.state(0), ModelItem::ProcessWorking);
        stage.model.itemAt(0)->setEditedLyricsTag(QStringLiteral("typed"));
        QVERIFY(stage.model.writeTags(1));
        QTRY_VERIFY(stage.search.searchCount() == 0 && stage.isSettled());
        QCOMPARE(stage.model.itemAt(0)->lyricsTag(), QStringLiteral("typed"));
        stage.model.lyricsSearchFinished(1, QStringLiteral("A"), QStringLiteral("Song"), {}, {});
        QVERIFY(stage.model.itemAt(0)->foundNothing() && stage.isSettled()); // what is there is not written again
        QVERIFY(stage.model.startSearch(1));                                 // what is searched for later counts again
        QTRY_COMPARE(stage.model.itemAt(0)->lyricsTag(), QStringLiteral("found"));
    }

    void theLastOfTwoWritesCounts()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        const QUrl url = stage.song(QStringLiteral("A - Song.mp3"));
        stage.model.add({url});
        QTRY_VERIFY(stage.isLoaded(0));
        ModelItem *item = stage.model.itemAt(0);
        QSignalSpy states(item, &ModelItem::processStateChanged);
        const auto write = [&](const QString &lyrics) {
            item->setEditedLyricsTag(lyrics);
            QVERIFY(stage.model.writeTags(1));
            QVERIFY(TagWriter::waitForQueued(std::chrono::seconds(30)));
        };
        const QString elsewhere = stage.folder.filePath(QStringLiteral("elsewhere"));
        QVERIFY(QFile::rename(url.toLocalFile(), elsewhere));
        write(QStringLiteral("first"));
        QVERIFY(stage.model.hasUnsavedLyrics(1)); // that it has failed is not known yet
        QVERIFY(QFile::rename(elsewhere, url.toLocalFile()));
        write(QStringLiteral("second"));
        QTRY_COMPARE(stage.state(0), ModelItem::ProcessComplete); // the model hears of both only now
        QCOMPARE(states.count(), 2);
        QCOMPARE(item->errorString(), QString());
        QVERIFY(!stage.model.hasUnsavedLyrics(1) && stage.model.idsWithUnsavedLyrics().isEmpty());
        MediaFileTags tags;
        QVERIFY(tags.read(url.toLocalFile()));
        QCOMPARE(tags.value(QStringLiteral("lyrics")), QStringLiteral("second"));
    }

    void songsWithoutLyricsAreNotExported()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        stage.model.add({stage.song(QStringLiteral("A - Song.mp3"), "lyrics.mp3")});
        QFile notes(stage.folder.filePath(QStringLiteral("A - Song.txt")));
        QVERIFY(notes.open(QIODevice::ReadWrite) && notes.write("my own notes") > 0 && notes.flush());
        QVERIFY(!stage.model.generateLyricsFile(1)); // not read yet
        QTRY_VERIFY(stage.isLoaded(0));
        stage.model.itemAt(0)->setEditedLyricsTag(QString());
        QVERIFY(!stage.model.generateLyricsFile(1));
        QVERIFY(notes.seek(0));
        QCOMPARE(notes.readAll(), QByteArray("my own notes"));
    }

    void anOvertakenReadComesBackWithAForcedSearch()
    {
        Stage stage;
        stage.model.add({stage.song(QStringLiteral("named in its tags.mp3"), "plain-v23.mp3")});
        stage.model.add(stage.songs(3)); // overtakes the read of the first
        stage.model.add({stage.song(QStringLiteral("A - late.mp3"))});
        for (int row = 1; row < 5; ++row)
            QTRY_VERIFY(stage.isLoaded(row));
        QTRY_COMPARE(stage.model.activeCount(), 1);
        QVERIFY(!stage.isLoaded(0));
        stage.model.add({stage.song(QStringLiteral("A - later.mp3"))});
        QVERIFY(stage.model.startSearch(1)); // while another read is under way
        QTRY_VERIFY(stage.isLoaded(0) && stage.isLoaded(5));
        QTRY_COMPARE(stage.model.activeCount(), 0);
        QCOMPARE(stage.state(0), ModelItem::ProcessComplete);
    }

    void removingTheSongThatIsReadLetsTheOthersBeRead()
    {
        Stage stage;
        stage.model.add(stage.songs(4));
        stage.model.add({stage.song(QStringLiteral("A - late.mp3"))});
        QVERIFY(stage.model.removeRows(1, 1)); // is read
        QVERIFY(stage.model.removeRows(0, 1)); // was overtaken
        for (int row = 0; row < 3; ++row)
            QTRY_VERIFY(stage.isLoaded(row));
        QTRY_COMPARE(stage.model.activeCount(), 0);
    }

    void tenSearchesAtATime()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        stage.model.add(stage.songs(25));
        QTRY_VERIFY(stage.isLoaded(24));
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
        QCOMPARE(started.at(10).at(1).toString(), QStringLiteral("S000"));
        QCOMPARE(started.at(24).at(1).toString(), QStringLiteral("S014"));
    }

    void anUnsuitableSongDoesNotStopTheOthers()
    {
        Stage stage;
        stage.model.setAutoStart(false);
        stage.model.add(
            {stage.song(QStringLiteral("first.mp3"), "plain-v23.mp3"), stage.song(QStringLiteral("A - S.mp3"))});
        QTRY_VERIFY(stage.isLoaded(1));
        ModelItem *first = stage.model.itemAt(0);
        first->setArtistTag(QString());
        first->setProcessState(ModelItem::ProcessWaiting);
        QVERIFY(stage.model.startSearch(2));
        QCOMPARE(stage.state(0), ModelItem::ProcessNotSuitable);
        QCOMPARE(stage.state(1), ModelItem::ProcessWorking);
        QVERIFY(!stage.model.startSearch(1));
    }

    void rowsCanBeRemoved_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QVector<int> odd;
        for (int row = 1; row < 200; row += 2)
            odd.append(row);
        QTest::newRow("first, last and a few between") << QVector<int>{0, 3, 4, 5, 100, 199};
        QTest::newRow("so many ranges that it is one reset") << odd;
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
        QCOMPARE(stage.model.urls(), expected);
        QCOMPARE(stage.model.activeCount(), expected.size());
        QTRY_VERIFY(!removed);
        for (int row = 0; row < expected.size(); ++row)
            QTRY_VERIFY(stage.isLoaded(row));
        // The row of an item is found by its id after all that.
        QSignalSpy changes(&stage.model, &MainModel::dataChanged);
        stage.model.itemAt(expected.size() - 1)->setErrorString(QStringLiteral("e"));
        QCOMPARE(changes.last().at(0).toModelIndex().row(), expected.size() - 1);
        stage.model.removeAll();
        QCOMPARE(stage.model.rowCount(), 0);
        QCOMPARE(stage.model.activeCount(), 0);
    }

    void idsWrapAndRunOut()
    {
        Stage stage;
        const QUrl file = stage.song(QStringLiteral("A - S.mp3"));
        const auto variants = [&file](int first, int count) {
            QList<QUrl> urls;
            for (int i = first; i < first + count; ++i) {
                urls.append(file);
                urls.last().setQuery(QString::number(i));
            }
            return urls;
        };
        stage.model.setAutoStart(false);
        stage.model.add({file});
        QTRY_VERIFY(stage.isLoaded(0));
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
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("nautilus has it") << QByteArray("exit 0") << QStringList{QStringLiteral("nautilus a b.mp3")};
        QTest::newRow("nautilus crashes")
            << QByteArray("kill -9 $$")
            << QStringList{QStringLiteral("nautilus a b.mp3"), QStringLiteral("xdg-open music")};
        QTest::newRow("there is no nautilus") << QByteArray() << QStringList{QStringLiteral("xdg-open music")};
    }

    void filesAreShownInTheFileManager()
    {
        QFETCH(QByteArray, nautilus);
        Stage stage;
        const QString log = stage.folder.filePath(QStringLiteral("log"));
        const auto install = [&](const QString &name, const QByteArray &end) {
            QFile program(stage.folder.filePath(name));
            QVERIFY(program.open(QIODevice::WriteOnly));
            program.write("#!/bin/sh\necho \"" + name.toUtf8() + " ${1##*/}\" >> '" + log.toUtf8() + "'\n" + end +
                          "\n");
            program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        };
        if (!nautilus.isEmpty())
            install(QStringLiteral("nautilus"), nautilus);
        install(QStringLiteral("xdg-open"), "exit 0");
        QVERIFY(QDir(stage.folder.path()).mkdir(QStringLiteral("music")));
        stage.model.add({stage.song(QStringLiteral("music/a b.mp3"))});

        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(stage.folder.path()));
        stage.model.locate(0);
        stage.model.locate(1);
        stage.model.locate(-1);
        qputenv("PATH", path);
        QFile lines(log);
        QVERIFY(lines.open(QIODevice::ReadOnly));
        QTEST(QString::fromUtf8(lines.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_MainModel)
#include "tst_mainmodel.moc"
