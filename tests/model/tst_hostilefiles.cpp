// SPDX-License-Identifier: MIT
#include "model/MainModel.h"
#include "support/TestTable.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

namespace {

// More than the address space that a reader may have; and what the program itself may take for a list of such files.
constexpr qint64 readerMegabytes = 600;
constexpr qint64 programMegabytes = 200;

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
    void initTestCase()
    {
        QProcess maker;
        maker.start("/usr/bin/python3"_s,
                    {QStringLiteral(VERSEWELL_HOSTILE_MAKER), QStringLiteral(VERSEWELL_SAMPLES_DIR), m_folder.path()});
        QVERIFY2(maker.waitForFinished(200'000) && maker.exitCode() == 0, maker.readAllStandardError().constData());
    }

    void filesAreReadOrGivenUp_data()
    {
        QTest::addColumn<bool>("isRefused");
        addRow("refused", true);
        addRow("odd", false);
    }

    void filesAreReadOrGivenUp()
    {
        QFETCH(bool, isRefused);
        MainModel model;
        model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        model.setAutoStart(false);
        model.add(files(QTest::currentDataTag()));
        QVERIFY(model.rowCount() > 0);
        int done = 0; // one that stalls is tried again when all others are read
        const auto areAllDone = [&model, &done] {
            while (done < model.rowCount() && isDone(model.itemAt(done)))
                ++done;
            return done == model.rowCount();
        };
        QVERIFY(QTest::qWaitFor(areAllDone, 300'000));
        QVERIFY(peakMegabytes(RUSAGE_CHILDREN) < readerMegabytes);
        QVERIFY(peakMegabytes(RUSAGE_SELF) < programMegabytes);
        int unreadable = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            const ModelItem *item = model.itemAt(row);
            QVERIFY2(item->unreadable() || !isRefused, qPrintable(item->filename()));
            QCOMPARE(item->unreadable(), !item->errorString().isEmpty());
            QVERIFY(item->processState() == ModelItem::ProcessNotSuitable || !isRefused);
            QVERIFY(item->titleTag().size() <= 64 * 1024 && item->lyricsTag().size() <= 1024 * 1024);
            QVERIFY(!item->titleTag().contains(QLatin1Char('\x07')));
            unreadable += item->unreadable() ? 1 : 0;
        }
        // All but a few are only broken, and their names may still be searched for.
        QVERIFY(isRefused || unreadable < model.rowCount() / 20);
    }

private:
    QList<QUrl> files(const char *part) const
    {
        const QDir folder(m_folder.filePath(QLatin1String(part)));
        QList<QUrl> urls;
        for (const QString &name : folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
            urls.append(QUrl::fromLocalFile(folder.filePath(name)));
        return urls;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_HostileFiles)
#include "tst_hostilefiles.moc"
