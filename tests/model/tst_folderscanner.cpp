// SPDX-License-Identifier: MIT
#include "model/DelayedFolderScanner.h"
#include "model/FolderScanner.h"
#include "model/WalkedEntries.h"
#include "support/TestTable.h"

#include "support/AsOrdinaryUser.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static QSemaphore deadDisk;

// In the stead of the C library's, for walks into folders called "dead".
extern "C" DIR *opendir(const char *path)
{
    using Open = DIR *(*)(const char *);
    static const auto next = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "opendir"));
    if (getpid() != gettid() && QByteArray(path).endsWith("/dead"))
        deadDisk.acquire();
    return next(path);
}

namespace {

// A tree of empty files, and a scanner for it.
struct Tree
{
    // A name that ends with "/" is a folder.
    explicit Tree(const QStringList &names)
    {
        scanner.setTypes({"ogg"_s, "mp3"_s});
        for (const QString &name : names) {
            if (name.endsWith(QLatin1Char('/')))
                QDir(folder.path()).mkpath(name);
            else
                folder.write(name);
        }
    }
    [[nodiscard]] QByteArray native(const QString &name) const { return QFile::encodeName(folder.path(name)); }
    bool scan(const QList<QUrl> &folders)
    {
        scanner.addFolders(folders);
        return QTest::qWaitFor([this] { return !scanner.processing(); }, 20000);
    }
    // All that was found, relative to the root.
    [[nodiscard]] QStringList found() const
    {
        QStringList names;
        for (const QVariantList &batch : batches) {
            for (const QUrl &file : batch.at(0).value<QList<QUrl>>())
                names.append(QDir(folder.path()).relativeFilePath(file.toLocalFile()));
        }
        return names;
    }

    TestFolder folder;
    FolderScanner scanner;
    QSignalSpy batches{&scanner, &FolderScanner::found};
};

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

class tst_FolderScanner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<QList<QUrl>>("QList<QUrl>"); }
    void filesAreFoundInOrder_data()
    {
        QTest::addColumn<QStringList>("tree");
        QTest::addColumn<QStringList>("expected");
        addRow("only the types asked for, whatever their case", words("a.mp3|b.OGG|c.Mp3|d.txt|e.mp3.bak|mp3|f.mp"),
               words("a.mp3|b.OGG|c.Mp3"));
        addRow("by name, without regard to case", words("b.mp3|A.mp3|c.mp3|B2.mp3|10.mp3|9.mp3"),
               words("10.mp3|9.mp3|A.mp3|b.mp3|B2.mp3|c.mp3"));
        addRow("the files of a folder before those of its subfolders", words("z.mp3|b/y.mp3|b/a/x.mp3|a/w.mp3|empty/"),
               words("z.mp3|a/w.mp3|b/y.mp3|b/a/x.mp3"));
        addRow("names with odd characters", words("#1 50%.mp3|new\nline.mp3|Слово.mp3|-rf.mp3|[x]*?.mp3"),
               words("#1 50%.mp3|-rf.mp3|[x]*?.mp3|new\nline.mp3|Слово.mp3"));
        addRow("hidden ones are left out", words(".hidden.mp3|.folder/a.mp3|seen.mp3"), words("seen.mp3"));
        addRow("a folder that is called like a song", words("a.mp3/b.mp3"), words("a.mp3/b.mp3"));
    }

    void filesAreFoundInOrder()
    {
        QFETCH(QStringList, tree);
        Tree songs(tree);
        QVERIFY(songs.scan({songs.folder.url()}));
        QTEST(songs.found(), "expected");
    }

    void linksLeadNowhereTwice()
    {
        Tree songs(words("music/a.mp3|music/deep/b.mp3|elsewhere/c.mp3"));
        const QStringList links = words("music/deep/loop > music|music/deep/self > music/deep|music/link > elsewhere|"
                                        "music/file.mp3 > elsewhere/c.mp3|" // comes before the file itself
                                        "music/deep/again.mp3 > music/a.mp3|music/0 best.mp3 > music/a.mp3|"
                                        "music/0 deep > music/deep|music/broken.mp3 > gone");
        for (const QString &link : links)
            QVERIFY(QFile::link(songs.folder.path(link.section(" > "_s, 1)),
                                songs.folder.path(link.section(" > "_s, 0, 0))));
        QCOMPARE(::link(songs.native("music/a.mp3"_s).constData(), songs.native("music/hard.mp3"_s).constData()),
                 0); // a file of its own
        QVERIFY(songs.scan({songs.folder.url("music"_s), songs.folder.url("elsewhere"_s)}));
        QCOMPARE(songs.found(), words("music/a.mp3|music/hard.mp3|music/deep/b.mp3|music/link/c.mp3"));
        QVERIFY(songs.scan({songs.folder.url("elsewhere"_s)})); // in a queue of its own
        QCOMPARE(songs.found().last(), "elsewhere/c.mp3"_s);
    }

    void whatCannotBeOpenedIsLeftOut()
    {
        Tree songs(words("good.mp3|secret.mp3|closed/a.mp3"));
        QCOMPARE(mkfifo(songs.native("pipe.mp3"_s).constData(), 0600), 0);
        for (const char *name : {"secret.mp3", "closed"})
            QVERIFY(QFile::setPermissions(songs.folder.path(QString::fromLatin1(name)), {}));
        QCOMPARE(chmod(QFile::encodeName(songs.folder.path()).constData(), 0755), 0);
        {
            const AsOrdinaryUser user;
            QVERIFY(songs.scan({songs.folder.url("gone"_s), songs.folder.url("good.mp3"_s), songs.folder.url()}));
        }
        QVERIFY(QFile::setPermissions(songs.folder.path("closed"_s),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(songs.found(), words("good.mp3"));
    }

    void namesThatAreNoTextAreCounted()
    {
        Tree songs(words("good.mp3|deep/"));
        QSignalSpy leftOut(&songs.scanner, &FolderScanner::filesLeftOut);
        const QByteArray notUtf8 = songs.native("x"_s) + "\xff\xfe";
        const QByteArray song = notUtf8 + ".mp3";
        const int file = open(song.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        QVERIFY(file >= 0 && close(file) == 0);
        // A path beyond what can be opened in one go is made step by step.
        const QByteArray step(250, 'd');
        const int home = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QCOMPARE(chdir(songs.native("deep"_s).constData()), 0);
        for (int depth = 0; depth < 20; ++depth)
            QVERIFY(mkdir(step.constData(), 0755) == 0 && chdir(step.constData()) == 0);
        QVERIFY(fchdir(home) == 0 && close(home) == 0);
        const bool scanned = songs.scan({songs.folder.url()});
        QVERIFY(unlink(song.constData()) == 0); // QTemporaryDir cannot
        QProcess::execute("rm"_s, {"-r"_s, songs.folder.path("deep"_s)});
        QVERIFY(scanned);
        QCOMPARE(songs.found(), words("good.mp3"));
        QCOMPARE(leftOut.count(), 1);
        QCOMPARE(leftOut.at(0).at(0).toInt(), 2); // the song, and the folder that is too deep
    }

    void foldersAreWalkedOneAfterAnother()
    {
        Tree songs(words("a/1.mp3|b/2.mp3|c/"));
        QSignalSpy processing(&songs.scanner, &FolderScanner::processingChanged);
        const QUrl a = songs.folder.url("a"_s);
        const QUrl b = songs.folder.url("b"_s);
        songs.scanner.addFolder(a);
        songs.scanner.addFolders({b, a, b, songs.folder.url("c"_s)});
        QCOMPARE(songs.scanner.folders().size(), 3);
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.found(), words("a/1.mp3|b/2.mp3"));
        QCOMPARE(songs.batches.count(), 2);
        QCOMPARE(songs.scanner.folders(), QStringList());
        QCOMPARE(processing, (QList<QVariantList>{{true}, {true}, {true}, {false}})); // on for each folder, off once
    }

    void cancellingEmptiesTheQueueAndReportsNothing()
    {
        Tree songs(words("a/1.mp3|b/2.mp3"));
        const QList<QUrl> folders{songs.folder.url("a"_s), songs.folder.url("b"_s)};
        songs.scanner.addFolders(folders);
        songs.scanner.cancel();
        QVERIFY(songs.scanner.processing() && songs.scanner.folders().isEmpty());
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.batches.count(), 0);

        songs.scanner.addFolders(folders);
        songs.scanner.cancel();
        songs.scanner.addFolder(folders.first()); // again, before the cancelled walk has ended
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.found(), words("a/1.mp3"));
    }

    void aFolderThatDoesNotAnswerHoldsUpItsOwnFilesOnly()
    {
        Tree songs(words("a/1.mp3|a/dead/2.mp3|a/dead/3/4.mp3|a/last/5.mp3|b/6.mp3"));
        songs.scanner.setPatience(std::chrono::milliseconds(100));
        const QStringList others = words("a/1.mp3|a/last/5.mp3|b/6.mp3");
        QSignalSpy processing(&songs.scanner, &FolderScanner::processingChanged);
        for (const bool isCancelled : {true, false}) {
            songs.batches.clear();
            songs.scanner.addFolders({songs.folder.url("a"_s), songs.folder.url("b"_s)});
            QTRY_COMPARE(songs.found(), others);
            QVERIFY(songs.scanner.processing() && processing.last() == QVariantList{true}); // can be cancelled
            QCOMPARE(songs.scanner.lastCount(), 1);                                         // of the one that waits
            if (isCancelled)
                songs.scanner.cancel();
            QCOMPARE(songs.scanner.processing(), !isCancelled);
            deadDisk.release();
            QTRY_VERIFY(!songs.scanner.processing() && processing.last() == QVariantList{false});
            QVERIFY(QThreadPool::globalInstance()->waitForDone(20000));
            QCoreApplication::processEvents();
            QCOMPARE(songs.found(), isCancelled ? others : others + words("a/dead/2.mp3|a/dead/3/4.mp3"));
        }
    }

    void aCancelledWalkThatDoesNotEndHoldsUpNothing()
    {
        Tree songs(words("a/1.mp3"));
        QThreadPool &pool = *QThreadPool::globalInstance();
        QSemaphore disk;
        for (int i = 0; i < pool.maxThreadCount(); ++i)
            pool.start([&disk] { disk.acquire(); });
        songs.scanner.addFolder(songs.folder.url("a"_s));
        songs.scanner.cancel();
        QTRY_VERIFY(!songs.scanner.processing());
        songs.scanner.addFolder(songs.folder.url("a"_s));
        disk.release(pool.maxThreadCount()); // the walk that was given up reports before the other one
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.found(), words("a/1.mp3"));
    }

    void aWalkThatTakesLongLeavesThePoolToOthers()
    {
        QThreadPool &pool = *QThreadPool::globalInstance();
        const int threads = pool.maxThreadCount();
        pool.setMaxThreadCount(1);
        QSemaphore others;
        bool wentOn = false;
        auto *walk = new DelayedFolderScanner(QString(), std::make_shared<WalkedEntries>());
        connect(
            walk, &DelayedFolderScanner::scanned, walk, [&] { wentOn = others.tryAcquire(1, 5000); },
            Qt::DirectConnection);
        pool.start(walk);
        pool.start([&others] { others.release(); });
        QVERIFY(pool.waitForDone(20000));
        pool.setMaxThreadCount(threads);
        QVERIFY(wentOn);
    }
};

QTEST_GUILESS_MAIN(tst_FolderScanner)
#include "tst_folderscanner.moc"
