// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaInfoExtractor.h"
#include "tags/SongFiles.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <memory>

// What the tests of the list, which is its only user, do not show.
class tst_MediaInfoExtractor : public QObject
{
    Q_OBJECT

private slots:
    void coversAreDecodedWhenWanted_data()
    {
        addTextColumns("program");
        QTest::addColumn<bool>("decodeCover");
        QTest::addColumn<QSize>("thumbnail");
        const QString reader = QStringLiteral(VERSEWELL_READER);
        addRow("wanted", reader, true, QSize(50, 33));
        addRow("not wanted", reader, false, QSize(0, 0));
        addRow("without a reader nothing is read", QString(), true, QSize(0, 0));
    }

    void coversAreDecodedWhenWanted()
    {
        QFETCH(QString, program);
        QFETCH(bool, decodeCover);
        const SongFiles files;
        MediaInfoExtractor extractor;
        if (!program.isEmpty())
            extractor.setReaderProgram(program);
        extractor.setDecodeCover(decodeCover);
        QSignalSpy spy(&extractor, &MediaInfoExtractor::infoExtracted);
        const QString path = files.copy("rich.mp3"_s);
        extractor.request(path);
        QVERIFY(spy.wait());
        QCOMPARE(spy.first().at(0).toString(), path);
        const auto tags = spy.first().at(1).value<MediaFileTags>();
        QCOMPARE(tags.value("title"_s), program.isEmpty() ? QString() : "The Song"_s);
        QCOMPARE(tags.readFailure(), program.isEmpty() ? tags::ReadFailure::NoReader : tags::ReadFailure::None);
        QTEST(tags.thumbnail().size(), "thumbnail");
    }

    void extractorMayDieDuringARead()
    {
        const SongFiles files;
        const QString path = files.copy("rich.mp3"_s);
        const QString stalling = files.copy("rich.mp3"_s, "stall.mp3"_s);
        for (int round = 0; round < 20; ++round) {
            auto extractor = std::make_unique<MediaInfoExtractor>();
            extractor->setReaderProgram(QStringLiteral(VERSEWELL_READER));
            extractor->request(round % 2 == 0 ? path : stalling);
            extractor.reset();
            QCoreApplication::processEvents();
        }
        QVERIFY(QThreadPool::globalInstance()->waitForDone(4'000)); // sooner than the limit on a file
        QCoreApplication::processEvents();
    }

    // On a machine with one core the pool has one thread, and the window waits for the pool where it shows large
    // images.
    void aReadThatStallsLeavesThePoolToOthers()
    {
        const SongFiles files;
        QThreadPool &pool = *QThreadPool::globalInstance();
        const int threads = pool.maxThreadCount();
        pool.setMaxThreadCount(1);
        QSemaphore others;
        MediaInfoExtractor extractor;
        extractor.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        extractor.request(files.copy("rich.mp3"_s, "stall.mp3"_s));
        pool.start([&others] { others.release(); });
        const bool wentOn = others.tryAcquire(1, 4'000); // sooner than the limit on a file
        extractor.stop();
        QVERIFY(pool.waitForDone(20'000));
        pool.setMaxThreadCount(threads);
        QVERIFY(wentOn);
    }
};

QTEST_GUILESS_MAIN(tst_MediaInfoExtractor)
#include "tst_mediainfoextractor.moc"
