// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "model/FolderScanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <vector>

namespace {

constexpr int filesPerFolder = 100;

void makeTree(const QString &root, int files)
{
    for (int i = 0; i < files; ++i) {
        const QString folder =
            QStringLiteral("%1/%2/%3").arg(root).arg(i / filesPerFolder % 10).arg(i / filesPerFolder);
        if (i % filesPerFolder == 0 && !QDir().mkpath(folder))
            qFatal("cannot make a folder");
        QFile file(QStringLiteral("%1/Song %2.%3").arg(folder).arg(i).arg(QLatin1String(i % 5 ? "mp3" : "jpg")));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot make a file");
    }
}

void scan(const QString &root, int expected)
{
    FolderScanner scanner;
    scanner.setTypes({QStringLiteral("ogg"), QStringLiteral("flac"), QStringLiteral("mp3")});
    int found = 0;
    QObject::connect(&scanner, &FolderScanner::found, [&found](const QList<QUrl> &files) { found += files.size(); });
    scanner.addFolder(QUrl::fromLocalFile(root));
    turnUntil([&scanner] { return !scanner.processing(); });
    if (found != expected)
        qFatal("%d files were found instead of %d", found, expected);
}

// In the midst of a scan, from the user's word until it has ended.
double cancelMilliseconds(const QString &root)
{
    FolderScanner scanner;
    scanner.setTypes({QStringLiteral("mp3")});
    scanner.addFolder(QUrl::fromLocalFile(root));
    while (scanner.lastCount() == 0)
        QCoreApplication::processEvents();
    return 1000 * secondsOf([&scanner] {
               scanner.cancel();
               turnUntil([&scanner] { return !scanner.processing(); });
           });
}

void findFiles(const QString &root)
{
    QProcess find;
    find.setStandardOutputFile(QProcess::nullDevice());
    find.start(QStringLiteral("find"),
               {root, QStringLiteral("-type"), QStringLiteral("f"), QStringLiteral("-readable"), QStringLiteral("("),
                QStringLiteral("-iname"), QStringLiteral("*.ogg"), QStringLiteral("-o"), QStringLiteral("-iname"),
                QStringLiteral("*.flac"), QStringLiteral("-o"), QStringLiteral("-iname"), QStringLiteral("*.mp3"),
                QStringLiteral(")")});
    if (!find.waitForFinished(-1) || find.exitCode() != 0)
        qFatal("find failed");
}

} // namespace

void benchScanning()
{
    const QString name = QStringLiteral("scan a tree / find with the same patterns");
    double fewer = 0;
    for (const int files : {benchSize(12500), benchSize(50000)}) {
        const QTemporaryDir root;
        makeTree(root.path(), files);
        findFiles(root.path()); // both then find the folders in the cache
        const Pair times = medianRound(
            5, [&] { return processorSecondsOf([&] { scan(root.path(), files / 5 * 4); }); },
            [&] { return processorSecondsOf([&] { findFiles(root.path()); }); });
        BenchTable::printRow(name, files, times.work, times.reference, fewer, 4,
                             {2, fewer > 0 ? BenchTable::inStep : 0});
        fewer = times.work;
        if (files == benchSize(50000)) {
            std::vector<double> cancels;
            while (cancels.size() < 9)
                cancels.push_back(cancelMilliseconds(root.path()));
            BenchTable::print(
                {QStringLiteral("cancel a scan, until it has ended"), files, median(cancels), 0, 0, 0, {0, 0, 100}});
        }
    }
}
