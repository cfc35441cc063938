// SPDX-License-Identifier: MIT
#include "model/IncomingFiles.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QMultiMap>
#include <QSemaphore>
#include <QTest>

using Kind = DelayedFileCheck::Kind;
Q_DECLARE_METATYPE(Kind)

// Files on disks that do not answer for a while.
class tst_IncomingFiles : public QObject
{
    Q_OBJECT

private slots:
    void aFolderThatDoesNotAnswerHoldsUpItsOwnFilesOnly()
    {
        IncomingFiles incoming(look);
        QList<QUrl> out;
        QMap<quint64, QUrl> places;
        int requests = 0; // for a read, each of which would overtake the one under way
        connect(&incoming, &IncomingFiles::block, this, [&](const QList<QUrl> &files, bool isFirst) {
            out += files;
            requests += isFirst ? 1 : 0;
            for (const QUrl &file : files)
                places.insert(incoming.takePlace(file), file);
        });
        const QList<QUrl> dead{song("/dead/a/x/1.mp3"), song("/dead/a/x/2.mp3"), song("/dead/a/y/3.mp3")};
        const QList<QUrl> healthy{song("/music/b/x/1.mp3"), song("/music/b/x/2.mp3"), song("/music/c/1.mp3")};
        const QList<QUrl> kept{dead.at(0), healthy.at(0), dead.at(1), healthy.at(1), dead.at(2), healthy.at(2)};
        incoming.keep(QUrl::toStringList(kept));
        incoming.restore();
        QTRY_COMPARE(out, healthy);

        QList<QUrl> found; // a drop meanwhile
        incoming.look({healthy.at(0), song("/dead/4.mp3")},
                      [&found](const IncomingFiles::Found &some, bool) { found += some.files; });
        QTRY_COMPARE(found, healthy.mid(0, 1));
        QCOMPARE(waiting(incoming), dead + QList<QUrl>{song("/dead/4.mp3")}); // what is kept if the program ends now
        m_answers.release(100);
        QTRY_COMPARE(out.size(), kept.size());
        QCOMPARE(places.values(), kept); // whichever disk is first
        QCOMPARE(requests, 1);
        QTRY_COMPARE(found.size(), 2);
        QVERIFY(incoming.waiting().isEmpty());
        m_answers.acquire(m_answers.available());
    }

    // As songs of the command line, which are there before the kept list is looked at.
    void thePlacesOfTheKeptListAreKnownFirst()
    {
        IncomingFiles incoming(look);
        QList<QUrl> out;
        QVector<quint64> places;
        int requests = 0;
        connect(&incoming, &IncomingFiles::block, this, [&](const QList<QUrl> &files, bool isFirst) {
            out += files;
            requests += isFirst ? 1 : 0;
            for (const QUrl &file : files)
                places.append(incoming.takePlace(file));
        });
        const QList<QUrl> kept{song("/music/1.mp3"), song("/dead/2.mp3")};
        incoming.keep(QUrl::toStringList(kept));
        incoming.look({song("/music/3.mp3"), song("/music/1.mp3")},
                      [&incoming](const auto &found, bool isFirst) { incoming.add(found.files, isFirst); });
        QTest::qWait(100); // longer than a look takes
        QVERIFY(out.isEmpty());
        incoming.restore();
        QTRY_VERIFY(out.contains(kept.at(0)) && out.contains(song("/music/3.mp3")));
        QCOMPARE(requests, 1); // a second one would overtake a read of the kept list
        QCOMPARE(places.count(0), 1);
        QCOMPARE(places.count(1), 0);
        incoming.clear();
        m_answers.release();
        QTRY_COMPARE(m_answers.available(), 0);
    }

    void aSongIsAwayWhenItsDiskMayComeBack_data()
    {
        addTextColumns("path");
        QTest::addColumn<Kind>("expected");
        addRow("deleted", "album/gone.mp3"_s, Kind::Nothing);
        addRow("its album is renamed", "artist/album/gone.mp3"_s, Kind::Nothing);
        addRow("its folder has become a file", "album/a.mp3/gone.mp3"_s, Kind::Nothing);
        addRow("a place to mount at", "empty/artist/album/a.mp3"_s, Kind::Away);
        addRow("behind a link to nothing", "link/album/a.mp3"_s, Kind::Away);
        addRow("where the desktop mounts disks", "/run/media/nobody/stick/a.mp3"_s, Kind::Away);
        addRow("a whole part of the system", "/no such disk/a.mp3"_s, Kind::Away);
    }

    void aSongIsAwayWhenItsDiskMayComeBack()
    {
        QFETCH(QString, path);
        const TestFolder folder;
        folder.write("album/a.mp3"_s);
        QVERIFY(QDir(folder.path()).mkdir("empty"_s) && QFile::link("/no such disk"_s, folder.path("link"_s)));
        const QString place = path.startsWith(QLatin1Char('/')) ? path : folder.path(path);
        QTEST(DelayedFileCheck::kindOf(QUrl::fromLocalFile(place)), "expected");
    }

    void aMissingSongThatIsAddedAgainIsANewOne()
    {
        IncomingFiles incoming(look);
        const QUrl gone = song("/gone/1.mp3");
        const QUrl away = song("/away/2.mp3");
        incoming.keep(QUrl::toStringList({gone, away, song("/music/3.mp3")}));
        incoming.restore();
        QTRY_COMPARE(waiting(incoming), QList<QUrl>{away});
        QVERIFY(incoming.isAnyWaiting());
        QCOMPARE(incoming.takePlace(gone), IncomingFiles::noPlace);
        QCOMPARE(incoming.takePlace(away), quint64(1));
        QVERIFY(!incoming.isAnyWaiting());
    }

    void whatIsClearedDoesNotComeBack()
    {
        IncomingFiles incoming(look);
        QList<QUrl> out;
        connect(&incoming, &IncomingFiles::block, this, [&out](const QList<QUrl> &files) { out += files; });
        const QUrl away = song("/away/1.mp3");
        const QUrl dead = song("/dead/a/x/1.mp3");
        incoming.keep(QUrl::toStringList({away, dead}));
        incoming.restore();
        QTRY_COMPARE(waiting(incoming), (QList<QUrl>{away, dead}));
        QTRY_VERIFY(!incoming.isRestoring()); // although the other may never answer
        QList<QUrl> many;
        for (int i = 0; i < 2500; ++i)
            many.append(QUrl::fromLocalFile("/music/%1.mp3"_s.arg(i)));
        incoming.add(many);
        incoming.clear();
        QVERIFY(incoming.waiting().isEmpty());
        const int before = out.size();
        m_answers.release(100);
        QTest::qWait(100);
        QCOMPARE(out.size(), before);
        incoming.add({away}); // goes on
        QCOMPARE(out.size(), before + 1);
    }

private:
    static QUrl song(const char *path) { return QUrl::fromLocalFile(QLatin1String(path)); }
    // By their places.
    static QList<QUrl> waiting(const IncomingFiles &incoming)
    {
        QMultiMap<quint64, QUrl> urls;
        for (const IncomingFiles::Waiting &file : incoming.waiting())
            urls.insert(file.place, file.url);
        return urls.values();
    }
    static Kind look(const QUrl &url)
    {
        if (url.path().startsWith(QLatin1String("/dead/")))
            m_answers.acquire();
        if (url.path().startsWith(QLatin1String("/gone/")))
            return Kind::Nothing;
        return url.path().startsWith(QLatin1String("/away/")) ? Kind::Away : Kind::File;
    }

    static inline QSemaphore m_answers{0};
};

QTEST_GUILESS_MAIN(tst_IncomingFiles)
#include "tst_incomingfiles.moc"
