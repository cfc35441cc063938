// SPDX-License-Identifier: MIT
#include "model/FolderScanner.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A tree of empty files, and a scanner for it.
class Tree
{
public:
    Tree() { scanner.setTypes({QStringLiteral("ogg"), QStringLiteral("mp3")}); }

    // A name that ends with "/" is a folder.
    void make(const QStringList &names)
    {
        for (const QString &name : names) {
            const QString full = path(name);
            QDir().mkpath(name.endsWith(QLatin1Char('/')) ? full : QFileInfo(full).path());
            QFile file(full);
            if (!name.endsWith(QLatin1Char('/')) && !file.open(QIODevice::WriteOnly))
                qFatal("cannot make %s", qPrintable(full));
        }
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QUrl url(const QString &name = {}) const { return QUrl::fromLocalFile(m_folder.path() + QLatin1Char('/') + name); }
    bool scan(const QList<QUrl> &folders)
    {
        scanner.addFolders(folders);
        return QTest::qWaitFor([this] { return !scanner.processing(); }, 20000);
    }
    // All that was found, relative to the root.
    QStringList found() const
    {
        QStringList names;
        for (const QVariantList &batch : m_found) {
            for (const QUrl &file : batch.at(0).value<QList<QUrl>>())
                names.append(QDir(m_folder.path()).relativeFilePath(file.toLocalFile()));
        }
        return names;
    }
    int batches() const { return m_found.count(); }

    FolderScanner scanner;

private:
    QTemporaryDir m_folder;
    QSignalSpy m_found{&scanner, &FolderScanner::found};
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
        QTest::newRow("an empty folder") << words("") << words("");
        QTest::newRow("only the types asked for, whatever their case")
            << words("a.mp3|b.OGG|c.Mp3|d.txt|e.mp3.bak|mp3|f.mp") << words("a.mp3|b.OGG|c.Mp3");
        QTest::newRow("by name, without regard to case")
            << words("b.mp3|A.mp3|c.mp3|B2.mp3|10.mp3|9.mp3") << words("10.mp3|9.mp3|A.mp3|b.mp3|B2.mp3|c.mp3");
        QTest::newRow("the files of a folder before those of its subfolders")
            << words("z.mp3|b/y.mp3|b/a/x.mp3|a/w.mp3|empty/") << words("z.mp3|a/w.mp3|b/y.mp3|b/a/x.mp3");
        QTest::newRow("names with odd characters") << words("#1 50%.mp3|new\nline.mp3|Слово.mp3|-rf.mp3|[x]*?.mp3")
                                                   << words("#1 50%.mp3|-rf.mp3|[x]*?.mp3|new\nline.mp3|Слово.mp3");
        QTest::newRow("hidden ones are left out") << words(".hidden.mp3|.folder/a.mp3|seen.mp3") << words("seen.mp3");
        QTest::newRow("a folder that is called like a song") << words("a.mp3/b.mp3") << words("a.mp3/b.mp3");
    }

    void filesAreFoundInOrder()
    {
        QFETCH(QStringList, tree);
        Tree songs;
        songs.make(tree);
        QVERIFY(songs.scan({songs.url()}));
        QTEST(songs.found(), "expected");
    }

    void linksAreFollowedOnce()
    {
        Tree songs;
        songs.make(words("music/a.mp3|music/deep/b.mp3|elsewhere/c.mp3"));
        // Round and round, and out of the tree.
        QVERIFY(QFile::link(songs.path(QStringLiteral("music")), songs.path(QStringLiteral("music/deep/loop"))));
        QVERIFY(QFile::link(songs.path(QStringLiteral("music/deep")), songs.path(QStringLiteral("music/deep/self"))));
        QVERIFY(QFile::link(songs.path(QStringLiteral("elsewhere")), songs.path(QStringLiteral("music/link"))));
        QVERIFY(
            QFile::link(songs.path(QStringLiteral("elsewhere/c.mp3")), songs.path(QStringLiteral("music/file.mp3"))));
        QVERIFY(QFile::link(songs.path(QStringLiteral("gone")), songs.path(QStringLiteral("music/broken.mp3"))));
        QVERIFY(songs.scan({songs.url(QStringLiteral("music"))}));
        QCOMPARE(songs.found(), words("music/a.mp3|music/file.mp3|music/deep/b.mp3|music/link/c.mp3"));
    }

    void oddEntriesDoNoHarm()
    {
        Tree songs;
        songs.make(words("good.mp3|secret.mp3|closed/a.mp3"));
        QCOMPARE(mkfifo(QFile::encodeName(songs.path(QStringLiteral("pipe.mp3"))).constData(), 0600), 0);
        const QByteArray notUtf8 = QFile::encodeName(songs.path(QStringLiteral("x"))) + "\xff\xfe.mp3";
        const int file = open(notUtf8.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        QVERIFY(file >= 0 && close(file) == 0);
        QVERIFY(QFile::setPermissions(songs.path(QStringLiteral("secret.mp3")), {}));
        QVERIFY(QFile::setPermissions(songs.path(QStringLiteral("closed")), {}));
        const bool isRoot = geteuid() == 0;
        // Root may read everything, so for this test it is somebody else; the threads of the pool follow.
        QVERIFY(!isRoot || (chown(QFile::encodeName(songs.path(QString())).constData(), 65534, 65534) == 0 &&
                            seteuid(65534) == 0));
        const bool scanned =
            songs.scan({songs.url(QStringLiteral("gone")), songs.url(QStringLiteral("good.mp3")), songs.url()});
        QVERIFY(!isRoot || seteuid(0) == 0);
        QFile::setPermissions(songs.path(QStringLiteral("closed")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        unlink(notUtf8.constData()); // QTemporaryDir cannot
        QVERIFY(scanned);
        QVERIFY(songs.found().contains(QStringLiteral("good.mp3")));
        QCOMPARE(songs.found().filter(QRegularExpression(QStringLiteral("secret|closed|pipe"))), QStringList());
    }

    void foldersAreWalkedOneAfterAnother()
    {
        Tree songs;
        songs.make(words("a/1.mp3|b/2.mp3|c/"));
        QSignalSpy processing(&songs.scanner, &FolderScanner::processingChanged);
        QSignalSpy queue(&songs.scanner, &FolderScanner::foldersChanged);
        const QUrl a = songs.url(QStringLiteral("a"));
        const QUrl b = songs.url(QStringLiteral("b"));
        songs.scanner.addFolder(a);
        songs.scanner.addFolders({b, a, b, songs.url(QStringLiteral("c"))});
        QVERIFY(songs.scanner.processing());
        QCOMPARE(songs.scanner.folders().size(), 3);
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.found(), words("a/1.mp3|b/2.mp3"));
        QCOMPARE(songs.batches(), 2);
        QCOMPARE(songs.scanner.folders(), QStringList());
        QCOMPARE(processing.count(), 4); // on for each folder, off once
        QCOMPARE(processing.last(), QVariantList{false});
        QCOMPARE(queue.count(), 5);
        QCOMPARE(songs.scanner.lastCount(), 0);
    }

    void cancellingEmptiesTheQueueAndReportsNothing()
    {
        Tree songs;
        songs.make(words("a/1.mp3|b/2.mp3"));
        const QUrl a = songs.url(QStringLiteral("a"));
        songs.scanner.cancel();
        songs.scanner.addFolders({a, songs.url(QStringLiteral("b"))});
        songs.scanner.cancel();
        QVERIFY(songs.scanner.processing());
        QCOMPARE(songs.scanner.folders(), QStringList());
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.batches(), 0);

        songs.scanner.addFolder(a);
        songs.scanner.cancel();
        songs.scanner.addFolder(a); // again, before the cancelled walk has ended
        QTRY_VERIFY(!songs.scanner.processing());
        QCOMPARE(songs.found(), words("a/1.mp3"));
    }
};

QTEST_GUILESS_MAIN(tst_FolderScanner)
#include "tst_folderscanner.moc"
