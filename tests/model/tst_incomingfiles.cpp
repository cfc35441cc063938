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

namespace {

QSemaphore answers;

Kind look(const QUrl &url)
{
    const QString disk = url.path().section(QLatin1Char('/'), 1, 1);
    if (disk == QLatin1String("dead"))
        answers.acquire();
    return disk == QLatin1String("gone") ? Kind::Nothing : disk == QLatin1String("away") ? Kind::Away : Kind::File;
}

QUrl song(const char *path)
{
    return QUrl::fromLocalFile(QLatin1String(path));
}

// Takes in what comes out, as the list does.
struct Intake
{
    Intake()
    {
        QObject::connect(&incoming, &IncomingFiles::block, &incoming, [this](const QList<QUrl> &files, bool isFirst) {
            out += files;
            requests += isFirst ? 1 : 0;
            for (const QUrl &file : files)
                places.insert(incoming.takePlace(file), file);
        });
    }
    // What is kept if the program ends now, by place.
    [[nodiscard]] QList<QUrl> waiting() const
    {
        QMultiMap<quint64, QUrl> urls;
        for (const IncomingFiles::Waiting &file : incoming.waiting())
            urls.insert(file.place, file.url);
        return urls.values();
    }
    void restore(const QList<QUrl> &kept)
    {
        incoming.keep(QUrl::toStringList(kept));
        incoming.restore();
    }

    IncomingFiles incoming{look};
    QList<QUrl> out;
    QMap<quint64, QUrl> places;
    int requests = 0; // for a read, each of which would overtake the one under way
};

} // namespace

// Files on disks that do not answer for a while.
class tst_IncomingFiles : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { answers.acquire(answers.available()); }
    void aFolderThatDoesNotAnswerHoldsUpItsOwnFilesOnly()
    {
        Intake list;
        const QList<QUrl> dead{song("/dead/a/x/1.mp3"), song("/dead/a/x/2.mp3"), song("/dead/a/y/3.mp3")};
        const QList<QUrl> healthy{song("/music/b/x/1.mp3"), song("/music/b/x/2.mp3"), song("/music/c/1.mp3")};
        const QList<QUrl> kept{dead.at(0), healthy.at(0), dead.at(1), healthy.at(1), dead.at(2), healthy.at(2)};
        list.restore(kept);
        QTRY_COMPARE(list.out, healthy);

        QList<QUrl> found; // a drop meanwhile
        list.incoming.look({healthy.at(0), song("/dead/4.mp3")},
                           [&found](const IncomingFiles::Found &some, bool) { found += some.files; });
        QTRY_COMPARE(found, healthy.mid(0, 1));
        QCOMPARE(list.waiting(), dead + QList<QUrl>{song("/dead/4.mp3")});
        answers.release(100);
        QTRY_COMPARE(list.places.values(), kept); // whichever disk is first
        QCOMPARE(list.requests, 1);
        QTRY_COMPARE(found.size(), 2);
        QVERIFY(list.incoming.waiting().isEmpty());
    }

    // As songs of the command line, which are there before the kept list is looked at.
    void thePlacesOfTheKeptListAreKnownFirst()
    {
        Intake list;
        const QList<QUrl> kept{song("/music/1.mp3"), song("/dead/2.mp3")};
        const QUrl other = song("/music/3.mp3");
        list.incoming.keep(QUrl::toStringList(kept));
        list.incoming.look({other, kept.at(0)},
                           [&list](const auto &found, bool isFirst) { list.incoming.add(found.files, isFirst); });
        QTest::qWait(100); // longer than a look takes
        QVERIFY(list.out.isEmpty());
        list.incoming.restore();
        QTRY_VERIFY(list.out.contains(kept.at(0)) && list.out.contains(other));
        QCOMPARE(list.requests, 1); // a second one would overtake a read of the kept list
        QCOMPARE(list.places.value(0), kept.at(0));
        list.incoming.clear();
        answers.release();
        QTRY_COMPARE(answers.available(), 0);
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
        Intake list;
        const QUrl gone = song("/gone/1.mp3");
        const QUrl away = song("/away/2.mp3");
        list.restore({gone, away, song("/music/3.mp3")});
        QTRY_COMPARE(list.waiting(), QList<QUrl>{away});
        QVERIFY(list.incoming.isAnyWaiting());
        list.incoming.add({gone, away});
        QCOMPARE(list.places.value(IncomingFiles::noPlace), gone);
        QCOMPARE(list.places.value(1), away);
        QVERIFY(!list.incoming.isAnyWaiting());
    }

    void whatIsClearedDoesNotComeBack()
    {
        Intake list;
        const QList<QUrl> kept{song("/away/1.mp3"), song("/dead/a/x/1.mp3")};
        list.restore(kept);
        QTRY_COMPARE(list.waiting(), kept);
        QTRY_VERIFY(!list.incoming.isRestoring()); // although the other may never answer
        QList<QUrl> many;
        for (int i = 0; i < 2500; ++i)
            many.append(QUrl::fromLocalFile("/music/%1.mp3"_s.arg(i)));
        list.incoming.add(many);
        list.incoming.clear();
        QVERIFY(list.incoming.waiting().isEmpty());
        const int before = list.out.size();
        answers.release(100);
        QTest::qWait(100);
        QCOMPARE(list.out.size(), before);
        list.incoming.add(kept.mid(0, 1)); // goes on
        QCOMPARE(list.out.size(), before + 1);
    }
};

QTEST_GUILESS_MAIN(tst_IncomingFiles)
#include "tst_incomingfiles.moc"
