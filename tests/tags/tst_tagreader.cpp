// SPDX-License-Identifier: MIT
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

class tst_TagReader : public QObject
{
    Q_OBJECT

private slots:
    void misbehaviourCostsOneFile_data();
    void misbehaviourCostsOneFile();
    void noFileStandsForWhatOthersLeft();
    void theProcessIsRenewed();
    void aReaderThatDoesNotStart_data();
    void aReaderThatDoesNotStart();
    void startsAreNotRepeatedForEveryFile();
    void aReadIsGivenUp();
    void theProcessEndsWithTheProgram();
    void cleanup();
};

namespace {

const QString reader = QStringLiteral(VERSEWELL_READER);

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

const QString song = QStringLiteral("The Song");

} // namespace

// Whatever a test did, no process of it is left, not even as a zombie.
void tst_TagReader::cleanup()
{
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void tst_TagReader::misbehaviourCostsOneFile_data()
{
    QTest::addColumn<ReadFailure>("failure");
    QTest::newRow("crash") << ReadFailure::Died;
    QTest::newRow("crash-by-itself") << ReadFailure::Stalled; // by the signal of its own time limit
    QTest::newRow("stall") << ReadFailure::Stalled;
    QTest::newRow("loop") << ReadFailure::Stalled;
    QTest::newRow("drip") << ReadFailure::Stalled;
    QTest::newRow("endless") << ReadFailure::Nonsense;
    QTest::newRow("noise") << ReadFailure::Nonsense;
    QTest::newRow("wrong-number") << ReadFailure::Nonsense;
}

void tst_TagReader::misbehaviourCostsOneFile()
{
    const SongFiles files;
    const QString good = files.copy(QStringLiteral("plain-v23.mp3"));
    const QString bad = files.copy(QStringLiteral("plain-v23.mp3"),
                                   QString::fromLatin1(QTest::currentDataTag()) + QLatin1String(".mp3"));
    TagReader tagReader(reader, quickLimits());
    QCOMPARE(titleOf(tagReader.read(good, true)), song);
    const tags::TagSummary summary = tagReader.read(bad, true);
    QTEST(summary.failure, "failure");
    QCOMPARE(titleOf(summary), QString());
    QCOMPARE(titleOf(tagReader.read(good, true)), song);
}

void tst_TagReader::noFileStandsForWhatOthersLeft()
{
    const SongFiles files;
    TagReader tagReader(reader, quickLimits());
    QCOMPARE(titleOf(tagReader.read(files.copy(QStringLiteral("plain.ogg")), true)), song);
    const QString victim = files.copy(QStringLiteral("plain.flac"), QStringLiteral("crash-when-tired.flac"));
    QCOMPARE(titleOf(tagReader.read(victim, true)), song);
}

void tst_TagReader::theProcessIsRenewed()
{
    const SongFiles files;
    TagReader::Limits limits = quickLimits();
    limits.filesOfProcess = 1;
    TagReader tagReader(reader, limits);
    // Would die on its second file; and without a second try, that would show.
    const QString path = files.copy(QStringLiteral("plain.ogg"), QStringLiteral("crash-when-tired.ogg"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(titleOf(tagReader.read(path, true)), song);
}

void tst_TagReader::aReaderThatDoesNotStart_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("no such program") << QStringLiteral("/no/such/program");
    QTest::newRow("a program that ends at once") << QStringLiteral("/bin/false");
    QTest::newRow("a program that says something else") << QStringLiteral("/usr/bin/yes");
}

void tst_TagReader::aReaderThatDoesNotStart()
{
    QFETCH(QString, program);
    const SongFiles files;
    const QString path = files.copy(QStringLiteral("plain.ogg"));
    TagReader tagReader(program, quickLimits());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("could not be started")));
    const tags::TagSummary summary = tagReader.read(path, true);
    QCOMPARE(summary.failure, ReadFailure::NoReader);
    QCOMPARE(titleOf(summary), QString());
}

void tst_TagReader::startsAreNotRepeatedForEveryFile()
{
    const SongFiles files;
    const QString starts = files.write(QStringLiteral("starts"), {});
    const QString program = files.write(QStringLiteral("reader"), "#!/bin/sh\necho >> \"${0%/*}/starts\"\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    TagReader::Limits limits;
    limits.retryStart = 1h;
    TagReader tagReader(program, limits);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("could not be started")));
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(tagReader.read(files.path(QStringLiteral("any.mp3")), true).failure, ReadFailure::NoReader);
    QCOMPARE(SongFiles::bytes(starts), QByteArray("\n"));
}

void tst_TagReader::aReadIsGivenUp()
{
    const SongFiles files;
    const QString path = files.copy(QStringLiteral("plain.ogg"), QStringLiteral("stall.ogg"));
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
void tst_TagReader::theProcessEndsWithTheProgram()
{
    const SongFiles files;
    QProcess idle;
    idle.start(reader, {QStringLiteral("--read-tags")});
    QVERIFY(idle.waitForReadyRead());
    QProcess busy;
    busy.start(reader, {QStringLiteral("--read-tags")});
    QVERIFY(busy.waitForReadyRead());
    busy.write(encoded(tags::ReadRequest{1, QStringLiteral("loop.mp3"), true}));
    busy.closeWriteChannel();
    idle.closeWriteChannel();
    QVERIFY(idle.waitForFinished());
    QCOMPARE(idle.exitCode(), 0);
    QVERIFY(busy.waitForFinished());
    QCOMPARE(busy.exitStatus(), QProcess::CrashExit);
}

QTEST_GUILESS_MAIN(tst_TagReader)
#include "tst_tagreader.moc"
