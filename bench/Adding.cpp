// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Program.h"
#include "Table.h"

#include "ui/MainWindow.h"

#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QSet>
#include <QTemporaryDir>
#include <QThreadPool>

namespace {

constexpr int rounds = 5;
constexpr double mostStill = 100; // milliseconds

// While it lives, no file is read: reading is a row of its own.
class ReadingWaits
{
public:
    ReadingWaits()
    {
        for (int i = 0; i < m_pool.maxThreadCount(); ++i)
            m_pool.start([this] { m_end.acquire(); });
    }
    ~ReadingWaits()
    {
        m_end.release(m_pool.maxThreadCount());
        m_pool.waitForDone();
    }
    Q_DISABLE_COPY(ReadingWaits)

private:
    QThreadPool &m_pool = *QThreadPool::globalInstance();
    QSemaphore m_end;
};

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

// As the window adds what was chosen in its dialog, until the list has so many rows.
void addUntil(MainModel &model, const QList<QUrl> &urls, int rows)
{
    model.addUrls(urls);
    turnUntil([&model, rows] { return model.rowCount() >= rows; });
}

struct Times
{
    double first = 0;
    double again = 0;
    double lookUp = 0;
};

// The last url is kept for the second time: when it is in the list, all others have been looked at again.
Times timesOf(const QList<QUrl> &urls)
{
    const QList<QUrl> most = urls.mid(0, urls.size() - 1);
    std::vector<double> first;
    std::vector<double> again;
    std::vector<double> lookUp;
    for (int round = 0; round < rounds; ++round) {
        MainModel model;
        ProxyModel proxy;
        proxy.setSourceModel(&model);
        const ReadingWaits wait;
        lookUp.push_back(processorSecondsOf([&] { lookUpAll(urls); }));
        first.push_back(processorSecondsOf([&] { addUntil(model, most, most.size()); }));
        again.push_back(processorSecondsOf([&] { addUntil(model, urls, urls.size()); }));
        if (model.rowCount() != urls.size())
            qFatal("%d rows instead of %d", model.rowCount(), int(urls.size()));
    }
    return {median(first), median(again), median(lookUp)};
}

// In the window, which begins to read them meanwhile.
Turn longestTurn(int rows, const std::function<void(MainModel &)> &add)
{
    Program program;
    program.showWindow();
    const TurnWatch watch;
    add(program.model);
    turnUntil([&] { return program.model.rowCount() >= rows; });
    program.model.stopReading();
    return watch.longest();
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
    BenchTable::printTurn(QStringLiteral("longest turn while urls become rows"), many.size(),
                          longestTurn(many.size(), [&](MainModel &model) { model.addUrls(many); }), mostStill);
    BenchTable::printTurn(
        QStringLiteral("longest turn while files of a folder become rows"), many.size(),
        longestTurn(many.size(), [&](MainModel &model) { model.add(many, MainModel::IsRegularFile); }), mostStill);
}
