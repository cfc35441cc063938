// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/SongFiles.h"
#include "tags/TagReader.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <cerrno>
#include <thread>

#include <sys/wait.h>

Q_DECLARE_METATYPE(tags::ReadFailure)

using tags::ReadFailure;
using tags::TagReader;
using namespace std::chrono_literals;

namespace {

const QString reader = QStringLiteral(VERSEWELL_READER);
const QString song = "The Song"_s;

TagReader::Limits quickLimits()
{
    TagReader::Limits limits;
    limits.file = 1s; // of a busy machine
    return limits;
}

QString titleOf(const tags::TagSummary &summary)
{
    return *tags::valueIn(summary.values, tags::keys::title);
}

} // namespace

class tst_TagReader : public QObject
{
    Q_OBJECT

private slots:
    // Whatever a test did, no process of it is left, not even as a zombie.
    void cleanup()
    {
        QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
        QCOMPARE(errno, ECHILD);
    }

    void misbehaviourCostsOneFile_data()
    {
        QTest::addColumn<ReadFailure>("failure");
        addRow("crash", ReadFailure::Died);
        addRow("crash-by-itself", ReadFailure::Stalled); // by the signal of its own time limit
        addRow("stall", ReadFailure::Stalled);
        addRow("loop", ReadFailure::Stalled);
        addRow("drip", ReadFailure::Stalled);
        addRow("endless", ReadFailure::Nonsense);
        addRow("noise", ReadFailure::Nonsense);
        addRow("wrong-number", ReadFailure::Nonsense);
    }

    void misbehaviourCostsOneFile()
    {
        const SongFiles files;
        const QString good = files.copy("plain-v23.mp3"_s);
        const QString bad = files.copy("plain-v23.mp3"_s, QString::fromLatin1(QTest::currentDataTag()) + ".mp3"_s);
        TagReader tagReader(reader, quickLimits());
        QCOMPARE(titleOf(tagReader.read(good, true)), song);
        const tags::TagSummary summary = tagReader.read(bad, true);
        QTEST(summary.failure, "failure");
        QCOMPARE(titleOf(summary), QString());
        QCOMPARE(titleOf(tagReader.read(good, true)), song);
    }

    void patienceIsForSlowDisksAndEndsWhenAsked()
    {
        const SongFiles files;
        const QString slow = files.copy("plain-v23.mp3"_s, "slow.mp3"_s);
        TagReader::Limits limits = quickLimits();
        TagReader tagReader(reader, limits);
        tagReader.skip(); // for no read that begins later
        QCOMPARE(tagReader.read(slow, true).failure, ReadFailure::Stalled);
        QCOMPARE(titleOf(tagReader.read(slow, true, tags::ReadPatience::Long)), song);
        limits.slowFile = 200s;
        TagReader patient(reader, limits);
        std::thread skipper([&patient] {
            for (int i = 0; i < 20; ++i) {
                std::this_thread::sleep_for(100ms); // during the read, or a hundred more times
                patient.skip();
            }
        });
        const QString stalling = files.copy("plain-v23.mp3"_s, "stall.mp3"_s);
        QCOMPARE(patient.read(stalling, true, tags::ReadPatience::Long).failure, ReadFailure::Stalled);
        skipper.join();
    }

    // A song on which a process dies that has read others is tried again with a new one, and a process is renewed.
    void noFileStandsForWhatOthersLeft()
    {
        const SongFiles files;
        TagReader::Limits limits = quickLimits();
        TagReader tagReader(reader, limits);
        QCOMPARE(titleOf(tagReader.read(files.copy("plain.ogg"_s), true)), song);
        QCOMPARE(titleOf(tagReader.read(files.copy("plain.flac"_s, "crash-when-tired.flac"_s), true)), song);
        limits.filesOfProcess = 1;
        TagReader renewing(reader, limits);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(titleOf(renewing.read(files.copy("plain.ogg"_s, "forget-when-tired.ogg"_s), true)), song);
    }

    // No song stands for a start that failed; that none succeeds is said all the same.
    void aReaderThatDoesNotStart_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("starts");
        QTest::addColumn<ReadFailure>("failure");
        addRow("a program that says something else", QByteArray("exec yes"), QByteArray(5, '+'), ReadFailure::NoReader);
        addRow("a program that ends at once", QByteArray("exit"), QByteArray(5, '+'), ReadFailure::NoReader);
        addRow("a program that starts the fifth time", "grep -qF +++++ starts && exec " + reader.toUtf8() + " \"$@\"",
               QByteArray(5, '+'), ReadFailure::None);
    }

    void aReaderThatDoesNotStart()
    {
        QFETCH(QByteArray, script);
        const SongFiles files;
        files.write("starts"_s, {});
        const QString program =
            files.write("reader"_s, "#!/bin/sh\ncd \"${0%/*}\"\nprintf + >> starts\n" + script + "\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        TagReader::Limits limits = quickLimits();
        limits.retryStart = 1ms;
        TagReader tagReader(program, limits);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("could not be started"_s));
        QTEST(tagReader.read(files.copy("plain.ogg"_s), true).failure, "failure");
        QTEST(files.read("starts"_s), "starts");
        TagReader missing("/no/such/program"_s, limits);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("could not be started: No such file"_s));
        QCOMPARE(missing.read(files.path("any.mp3"_s), true).failure, ReadFailure::NoReader);
    }

    void aReadIsGivenUp()
    {
        const SongFiles files;
        const QString path = files.copy("plain.ogg"_s, "stall.ogg"_s);
        TagReader::Limits limits;
        limits.file = 1h;
        TagReader tagReader(reader, limits);
        std::thread stopper([&tagReader] {
            std::this_thread::sleep_for(100ms); // either before or during the read: both must end it
            tagReader.stop();
        });
        QCOMPARE(tagReader.read(path, true).failure, ReadFailure::NoReader);
        stopper.join();
        QCOMPARE(tagReader.read(path, true).failure, ReadFailure::NoReader);
    }

    // What the reader process itself does: without a program at the other end it goes, in the middle of a file as well.
    void theProcessEndsWithTheProgram()
    {
        const SongFiles files;
        QProcess idle;
        idle.start(reader, {"--read-tags"_s});
        QVERIFY(idle.waitForReadyRead());
        QProcess busy;
        busy.start(reader, {"--read-tags"_s});
        QVERIFY(busy.waitForReadyRead());
        busy.write(encoded(tags::ReadRequest{1, "loop.mp3"_s, true}));
        busy.closeWriteChannel();
        idle.closeWriteChannel();
        QVERIFY(idle.waitForFinished());
        QCOMPARE(idle.exitCode(), 0);
        QVERIFY(busy.waitForFinished());
        QCOMPARE(busy.exitStatus(), QProcess::CrashExit);
    }
};

QTEST_GUILESS_MAIN(tst_TagReader)
#include "tst_tagreader.moc"
