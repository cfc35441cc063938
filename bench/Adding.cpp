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

QList<QUrl> makeEmptyFiles(const QString &folder, int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        QFile file(QStringLiteral("%1/Artist - Song %2.mp3").arg(folder).arg(i));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot make the file %s", qPrintable(file.fileName()));
        urls.append(QUrl::fromLocalFile(file.fileName()));
    }
    return urls;
}

void lookUpAll(const QList<QUrl> &urls)
{
    QSet<QUrl> found;
    for (const QUrl &url : urls) {
        const QUrl made = QUrl::fromLocalFile(url.toLocalFile());
        if (QFileInfo(made.toLocalFile()).isFile())
            found.insert(made);
    }
    if (found.size() != urls.size())
        qFatal("a file is missing");
}

struct Times
{
    double first = 0;
    double again = 0;
    double lookUp = 0;
};

Times timesOf(const QList<QUrl> &urls)
{
    constexpr int rounds = 5;
    std::vector<double> first;
    std::vector<double> again;
    std::vector<double> lookUp;
    for (int round = 0; round < rounds; ++round) {
        MainModel model;
        lookUp.push_back(processorSecondsOf([&] { lookUpAll(urls); }));
        first.push_back(processorSecondsOf([&] { model.add(urls); }));
        again.push_back(processorSecondsOf([&] { model.add(urls); }));
        if (model.rowCount() != urls.size())
            qFatal("%d rows instead of %d", model.rowCount(), int(urls.size()));
    }
    return {median(first), median(again), median(lookUp)};
}

// The longest time that the event loop stands still while files that were found in folders become rows.
double longestStandStill(const QList<QUrl> &urls)
{
    MainModel model;
    ProxyModel proxy;
    proxy.setSourceModel(&model);
    double longest = processorSecondsOf([&] { model.add(urls, MainModel::IsRegularFile); });
    while (model.rowCount() < urls.size())
        longest = std::max(longest, processorSecondsOf([] { QCoreApplication::processEvents(); }));
    return longest;
}

} // namespace

void benchAdding()
{
    const QTemporaryDir folder;
    const QList<QUrl> many = makeEmptyFiles(folder.path(), benchSize(60000));
    const QList<QUrl> few = many.mid(0, many.size() / 4);
    const Times fewTimes = timesOf(few);
    const Times manyTimes = timesOf(many);
    const BenchTable::Aim aim{4, BenchTable::inStep};
    BenchTable::printRow(QStringLiteral("add urls / url, look-up and hash insert for each"), many.size(),
                         manyTimes.first, manyTimes.lookUp, fewTimes.first, 4, aim);
    BenchTable::printRow(QStringLiteral("add the same urls again / the same"), many.size(), manyTimes.again,
                         manyTimes.lookUp, fewTimes.again, 4, aim);
    BenchTable::print({QStringLiteral("longest turn while found files become rows"),
                       many.size(),
                       longestStandStill(many) * 1000,
                       0,
                       longestStandStill(few) * 1000,
                       4,
                       {0, 0, 100}});
}
