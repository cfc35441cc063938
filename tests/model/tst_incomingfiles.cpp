// SPDX-License-Identifier: MIT
#include "model/IncomingFiles.h"
#include "support/TestTable.h"

#include <QSemaphore>
#include <QSet>
#include <QTest>

using Kind = DelayedFileCheck::Kind;

// Files on disks that do not answer for a while.
class tst_IncomingFiles : public QObject
{
    Q_OBJECT

private slots:
    void aFolderThatDoesNotAnswerHoldsUpItsOwnFilesOnly()
    {
        IncomingFiles incoming(look);
        QList<QUrl> out;
        int requests = 0; // for a read, each of which would overtake the one under way
        connect(&incoming, &IncomingFiles::block, this, [&out, &requests](const QList<QUrl> &files, bool isFirst) {
            out += files;
            requests += isFirst ? 1 : 0;
        });
        const QList<QUrl> dead{song("/dead/a/x/1.mp3"), song("/dead/a/x/2.mp3"), song("/dead/a/y/3.mp3")};
        const QList<QUrl> healthy{song("/music/b/x/1.mp3"), song("/music/b/x/2.mp3"), song("/music/c/1.mp3")};
        const QList<QUrl> kept{dead.at(0), healthy.at(0), dead.at(1), healthy.at(1), dead.at(2), healthy.at(2)};
        incoming.keep(QUrl::toStringList(kept));
        incoming.restore();
        QTRY_COMPARE(out, healthy);
        QCOMPARE(incoming.waiting(), dead);

        QList<QUrl> found; // a drop meanwhile
        incoming.look({healthy.at(0), dead.at(0)},
                      [&found](const IncomingFiles::Found &some, bool) { found += some.files; });
        QTRY_COMPARE(found, healthy.mid(0, 1));
        m_answers.release(100);
        QTRY_COMPARE(out.size(), kept.size());
        QCOMPARE(QSet<QUrl>(out.begin(), out.end()), QSet<QUrl>(kept.begin(), kept.end())); // whichever disk is first
        QCOMPARE(requests, 1);
        QTRY_COMPARE(found.size(), 2);
        QVERIFY(incoming.waiting().isEmpty());
        m_answers.acquire(m_answers.available());
    }

    // As songs of the command line, which are there before the kept list is looked at.
    void theKeptListComesFirst()
    {
        IncomingFiles incoming(look);
        QList<QUrl> out;
        int requests = 0;
        connect(&incoming, &IncomingFiles::block, this, [&out, &requests](const QList<QUrl> &files, bool isFirst) {
            out += files;
            requests += isFirst ? 1 : 0;
        });
        const QList<QUrl> kept{song("/music/1.mp3"), song("/music/2.mp3")};
        incoming.keep(QUrl::toStringList(kept));
        incoming.look({song("/music/3.mp3"), kept.at(1)}, [&incoming](const IncomingFiles::Found &some, bool isFirst) {
            incoming.add(some.files, isFirst);
        });
        QTest::qWait(100); // longer than a look takes
        QVERIFY(out.isEmpty());
        incoming.restore();
        QTRY_COMPARE(out, kept + (QList<QUrl>{song("/music/3.mp3"), kept.at(1)}));
        QCOMPARE(requests, 1); // a second one would overtake a read of the kept list
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
        QTRY_COMPARE(incoming.away(), QList<QUrl>{away});
        QTRY_VERIFY(!incoming.isRestoring()); // although the other may never answer
        QList<QUrl> many;
        for (int i = 0; i < 2500; ++i)
            many.append(QUrl::fromLocalFile("/music/%1.mp3"_s.arg(i)));
        incoming.add(many);
        incoming.clear();
        QVERIFY(incoming.waiting().isEmpty() && incoming.away().isEmpty());
        const int before = out.size();
        m_answers.release(100);
        QTest::qWait(100);
        QCOMPARE(out.size(), before);
        incoming.add({away}); // goes on
        QCOMPARE(out.size(), before + 1);
    }

private:
    static QUrl song(const char *path) { return QUrl::fromLocalFile(QLatin1String(path)); }
    static Kind look(const QUrl &url)
    {
        if (url.path().startsWith(QLatin1String("/dead/")))
            m_answers.acquire();
        return url.path().startsWith(QLatin1String("/away/")) ? Kind::Away : Kind::File;
    }

    static inline QSemaphore m_answers{0};
};

QTEST_GUILESS_MAIN(tst_IncomingFiles)
#include "tst_incomingfiles.moc"
