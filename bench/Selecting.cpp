// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Program.h"
#include "Table.h"

#include "ui/MainWindow.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <numeric>

namespace {

enum Work { SelectAll, Hide, Show, RemoveScattered, RemoveSelected, WorkCount };
using Times = std::array<double, WorkCount>;

// Rows of one file under many urls, which is all that the list needs to know of them; every second has lyrics.
void fill(MainModel *model, const QString &path, int rows)
{
    QList<QUrl> urls;
    for (int i = 0; i < rows; ++i) {
        QUrl url = QUrl::fromLocalFile(path);
        url.setQuery(QString::number(i));
        urls.append(url);
    }
    model->stopReading();
    model->add(urls);
    for (int row = 0; row < rows; ++row) {
        model->itemAt(row)->setTags({});
        if (row % 2)
            model->itemAt(row)->setFoundLyricsTag({}, {}, QStringLiteral("la"));
    }
}

// Turns of the event loop until all is done that the step has left to it; `longest` is that of the longest, in seconds.
void settle(double *longest)
{
    constexpr int turns = 100; // songs that were removed are deleted in blocks
    for (int turn = 0; turn < turns; ++turn)
        *longest = std::max(*longest, processorSecondsOf([] {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }));
}

// In the window, each with the turns of the event loop that follow: the rows that are seen are made anew, and the songs
// that were removed are deleted.
Times work(const QString &path, int rows, double *longestTurn)
{
    Program program;
    program.showWindow();
    fill(&program.model, path, rows);
    double before = 0;
    settle(&before);
    const auto timeOf = [longestTurn](const std::function<void()> &step) {
        return processorSecondsOf([&] {
            *longestTurn = std::max(*longestTurn, processorSecondsOf([&step] {
                step();
                QCoreApplication::processEvents();
            }));
            settle(longestTurn);
        });
    };
    Times times;
    times[SelectAll] = timeOf([&] { program.proxy.selectAll(); });
    times[Hide] = timeOf([&] { program.proxy.setShowFound(false); });
    times[Show] = timeOf([&] { program.proxy.setShowFound(true); });
    program.proxy.selectAll();
    settle(&before);
    times[RemoveScattered] = timeOf([&] { program.model.removeWithLyrics(); });
    times[RemoveSelected] = timeOf([&] { program.proxy.removeSelected(); });
    if (program.model.rowCount() != 0)
        qFatal("rows are left");
    return times;
}

Times medianWork(const QString &path, int rows, double *longestTurn)
{
    constexpr int rounds = 5;
    std::array<std::vector<double>, WorkCount> all;
    std::vector<double> longest;
    for (int round = 0; round < rounds; ++round) {
        const Times times = work(path, rows, &longest.emplace_back());
        for (std::size_t i = 0; i < times.size(); ++i)
            all[i].push_back(times[i]);
    }
    *longestTurn = median(longest);
    Times medians;
    std::transform(all.begin(), all.end(), medians.begin(), median);
    return medians;
}

double passOverFlags(int rows)
{
    std::vector<char> flags(static_cast<std::size_t>(rows), 1);
    volatile long sum = 0;
    return processorSecondsOf([&] { sum = std::accumulate(flags.begin(), flags.end(), 0L); });
}

} // namespace

void benchSelecting()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.mp3")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot make a file");
    const int rows = benchSize(60000);
    double fewLongest = 0;
    double longest = 0;
    const Times few = medianWork(file.fileName(), rows / 4, &fewLongest);
    const Times many = medianWork(file.fileName(), rows, &longest);
    const std::array<QString, WorkCount> names{QStringLiteral("select all rows / a pass over flags"),
                                               QStringLiteral("hide every second row / the same"),
                                               QStringLiteral("show them again / the same"),
                                               QStringLiteral("remove every second row, all selected / the same"),
                                               QStringLiteral("remove all that are left and selected / the same")};
    const double pass = passOverFlags(rows);
    for (std::size_t i = 0; i < names.size(); ++i)
        BenchTable::printRow(names[i], rows, many[i], pass, few[i], 4, {0, BenchTable::inStep});
    BenchTable::print({QStringLiteral("longest turn of the event loop in all of these"),
                       rows,
                       longest * 1000,
                       0,
                       fewLongest * 1000,
                       4,
                       {0, 0, 100}});
}
