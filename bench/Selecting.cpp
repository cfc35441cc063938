// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Program.h"
#include "Table.h"

#include "ui/MainWindow.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <numeric>

namespace {

using namespace std::chrono_literals;

// Time for the window to be painted anew, and for songs that were removed to be deleted, a few milliseconds a turn.
constexpr std::chrono::milliseconds settleTime = 600ms;

constexpr int rounds = 3;

enum Work { SelectAll, Hide, Show, RemoveScattered, RemoveSelected, WorkCount };
using Times = std::array<double, WorkCount>;

// Rows of one file under many urls, which is all that the list needs to know of them; every second has lyrics.
void fill(MainModel *model, const QString &path, int rows)
{
    model->setSongsInMending({path}); // so that none is read
    QList<QUrl> urls;
    for (int i = 0; i < rows; ++i) {
        QUrl url = QUrl::fromLocalFile(path);
        url.setQuery(QString::number(i));
        urls.append(url);
    }
    model->add(urls);
    for (int row = 0; row < rows; ++row) {
        model->itemAt(row)->setTags({});
        if (row % 2)
            model->itemAt(row)->setFoundLyricsTag({}, {}, QStringLiteral("la"));
    }
}

// In the window, each with the turns of the event loop that follow: the rows that are seen are made anew, and the songs
// that were removed are deleted. The turns are watched where `longest` is given, at a thousand ticks a second.
Times work(const QString &path, int rows, Turn *longest)
{
    Program program;
    program.showWindow();
    fill(&program.model, path, rows);
    turnFor(settleTime);
    const std::unique_ptr<TurnWatch> watch(longest ? new TurnWatch : nullptr);
    const auto timeOf = [](const std::function<void()> &step) {
        return processorSecondsOf([&step] {
            QTimer::singleShot(0, step);
            turnFor(settleTime);
        });
    };
    Times times;
    times[SelectAll] = timeOf([&] { program.proxy.selectAll(); });
    times[Hide] = timeOf([&] { program.proxy.setShowFound(false); });
    times[Show] = timeOf([&] { program.proxy.setShowFound(true); });
    (void)timeOf([&] { program.proxy.selectAll(); });
    times[RemoveScattered] = timeOf([&] { program.model.removeWithLyrics(); });
    times[RemoveSelected] = timeOf([&] { program.proxy.removeSelected(); });
    if (program.model.rowCount() != 0)
        qFatal("rows are left");
    if (watch) {
        const Turn turn = watch->longest();
        const double mostWork = std::max(longest->mostWork, turn.mostWork);
        *longest = turn.wall > longest->wall ? turn : *longest;
        longest->mostWork = mostWork;
    }
    return times;
}

Times medianWork(const QString &path, int rows)
{
    std::array<std::vector<double>, WorkCount> all;
    for (int round = 0; round < rounds; ++round) {
        const Times times = work(path, rows, nullptr);
        for (std::size_t i = 0; i < times.size(); ++i)
            all[i].push_back(times[i]);
    }
    Times medians;
    std::transform(all.begin(), all.end(), medians.begin(), median);
    return medians;
}

// Of all rounds.
Turn longestTurn(const QString &path, int rows)
{
    Turn longest;
    for (int round = 0; round < rounds; ++round)
        (void)work(path, rows, &longest);
    return longest;
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
    const Times few = medianWork(file.fileName(), rows / 4);
    const Times many = medianWork(file.fileName(), rows);
    const std::array<QString, WorkCount> names{QStringLiteral("select all rows / a pass over flags"),
                                               QStringLiteral("hide every second row / the same"),
                                               QStringLiteral("show them again / the same"),
                                               QStringLiteral("remove every second row, all selected / the same"),
                                               QStringLiteral("remove all that are left and selected / the same")};
    const double pass = passOverFlags(rows);
    for (std::size_t i = 0; i < names.size(); ++i)
        BenchTable::printRow(names[i], rows, many[i], pass, few[i], 4, {0, BenchTable::inStep});
    BenchTable::printTurn(QStringLiteral("longest turn in all of these"), rows, longestTurn(file.fileName(), rows),
                          100);
}
