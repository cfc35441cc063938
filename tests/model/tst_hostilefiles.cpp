// SPDX-License-Identifier: MIT
#include "model/MainModel.h"
#include "support/TestTable.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

namespace {

qint64 peakMegabytes(int who)
{
    rusage usage{};
    ::getrusage(who, &usage);
    return usage.ru_maxrss / 1024;
}

bool isDone(const ModelItem *item)
{
    return item->tagsLoaded() || item->unreadable();
}

} // namespace

// The list is given files on which readers crash, hang or take all memory, and thousands of broken ones.
class tst_HostileFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void whatIsNoFileStaysOut();
    void hostileFilesAreGivenUp();
    void brokenFilesAreRead();

private:
    QList<QUrl> files(const QString &part) const;
    void read(MainModel &model, const QString &part) const;

    QTemporaryDir m_folder;
};

// More than the address space that a reader may have; and what the program itself may take for a list of such files.
constexpr qint64 readerMegabytes = 600;
constexpr qint64 programMegabytes = 200;

void tst_HostileFiles::initTestCase()
{
    QProcess maker;
    maker.start("/usr/bin/python3"_s,
                {QStringLiteral(VERSEWELL_HOSTILE_MAKER), QStringLiteral(VERSEWELL_SAMPLES_DIR), m_folder.path()});
    QVERIFY2(maker.waitForFinished(200'000) && maker.exitCode() == 0, maker.readAllStandardError().constData());
}

QList<QUrl> tst_HostileFiles::files(const QString &part) const
{
    const QDir folder(m_folder.filePath(part));
    QList<QUrl> urls;
    for (const QString &name : folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
        urls.append(QUrl::fromLocalFile(folder.filePath(name)));
    return urls;
}

void tst_HostileFiles::read(MainModel &model, const QString &part) const
{
    model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
    model.setAutoStart(false);
    QElapsedTimer timer;
    timer.start();
    model.add(files(part));
    QVERIFY(model.rowCount() > 0);
    QVERIFY(QTest::qWaitFor([&model] { return isDone(model.itemAt(model.rowCount() - 1)); }, 200'000));
    qInfo("%s: %d files, %lld ms, at most %lld MB in the reader and %lld MB in the program", qPrintable(part),
          model.rowCount(), timer.elapsed(), peakMegabytes(RUSAGE_CHILDREN), peakMegabytes(RUSAGE_SELF));
    QVERIFY(peakMegabytes(RUSAGE_CHILDREN) < readerMegabytes);
    QVERIFY(peakMegabytes(RUSAGE_SELF) < programMegabytes);
}

void tst_HostileFiles::whatIsNoFileStaysOut()
{
    const QList<QUrl> urls = files("special"_s);
    QCOMPARE(urls.size(), 5);
    MainModel model;
    model.add(urls);
    QCOMPARE(model.rowCount(), 0);
}

void tst_HostileFiles::hostileFilesAreGivenUp()
{
    MainModel model;
    read(model, "refused"_s);
    for (int row = 0; row < model.rowCount(); ++row) {
        const ModelItem *item = model.itemAt(row);
        qInfo("  %s: %s", qPrintable(item->filename()), qPrintable(item->errorString()));
        QVERIFY2(item->unreadable() && !item->errorString().isEmpty(), qPrintable(item->filename()));
        QCOMPARE(item->processState(), ModelItem::ProcessNotSuitable);
    }
}

void tst_HostileFiles::brokenFilesAreRead()
{
    MainModel model;
    read(model, "odd"_s);
    int withReason = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const ModelItem *item = model.itemAt(row);
        QVERIFY(isDone(item));
        QCOMPARE(item->unreadable(), !item->errorString().isEmpty());
        QVERIFY(item->titleTag().size() <= 64 * 1024 && item->lyricsTag().size() <= 1024 * 1024);
        QVERIFY(!item->titleTag().contains(QLatin1Char('\x07')));
        if (item->unreadable())
            qInfo("  %s: %s", qPrintable(item->filename()), qPrintable(item->errorString()));
        withReason += item->unreadable() ? 1 : 0;
    }
    // All but a few are only broken, and their names may still be searched for.
    QVERIFY(withReason < model.rowCount() / 20);
}

QTEST_GUILESS_MAIN(tst_HostileFiles)
#include "tst_hostilefiles.moc"
