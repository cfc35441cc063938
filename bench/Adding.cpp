// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "model/MainModel.h"
#include "model/ProxyModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>

namespace {

QStringList makeEmptyFiles(const QString &folder, int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        QFile file(QStringLiteral("%1/Artist - Song %2.mp3").arg(folder).arg(i));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot make the file %s", qPrintable(file.fileName()));
        paths.append(file.fileName());
    }
    return paths;
}

double referenceFor(const QStringList &paths)
{
    return secondsOf([&paths] {
        QSet<QUrl> urls;
        for (const QString &path : paths) {
            const QUrl url = QUrl::fromLocalFile(path);
            if (QFileInfo(url.toLocalFile()).isFile())
                urls.insert(url);
        }
    });
}

struct Times
{
    double first;
    double again;
};

Times addTwice(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    MainModel model;
    const double first = secondsOf([&] { model.add(urls); });
    const double again = secondsOf([&] { model.add(urls); });
    if (model.rowCount() != paths.size())
        qFatal("%d rows instead of %d", model.rowCount(), int(paths.size()));
    return {first, again};
}

// The longest time that the event loop stands still while files that were found in folders become rows.
double longestStandStill(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    MainModel model;
    ProxyModel proxy;
    proxy.setSourceModel(&model);
    double longest = secondsOf([&] { model.add(urls, MainModel::IsRegularFile); });
    while (model.rowCount() < urls.size())
        longest = std::max(longest, secondsOf([] { QCoreApplication::processEvents(); }));
    return longest;
}

} // namespace

void benchAdding()
{
    const QTemporaryDir folder;
    const QStringList many = makeEmptyFiles(folder.path(), 60000);
    const QStringList few = many.mid(0, 15000);
    const Times fewTimes = addTwice(few);
    const Times manyTimes = addTwice(many);
    const double fewReference = referenceFor(few);
    const double manyReference = referenceFor(many);
    const QString first = QStringLiteral("add files / url, look-up and hash insert");
    const QString again = QStringLiteral("add the same files again / the same");
    BenchTable::printRow(first, few.size(), fewTimes.first, fewReference);
    BenchTable::printRow(first, many.size(), manyTimes.first, manyReference, fewTimes.first, 4);
    BenchTable::printRow(again, few.size(), fewTimes.again, fewReference);
    BenchTable::printRow(again, many.size(), manyTimes.again, manyReference, fewTimes.again, 4);
    const QString standStill = QStringLiteral("longest stand-still while found files are added / the same");
    const double fewGap = longestStandStill(few);
    BenchTable::printRow(standStill, few.size(), fewGap, fewReference);
    BenchTable::printRow(standStill, many.size(), longestStandStill(many), manyReference, fewGap, 4);
}
