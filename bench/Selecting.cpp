// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "model/MainModel.h"
#include "model/ProxyModel.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <numeric>
#include <vector>

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
    model->setAutoStart(false);
    model->add(urls);
    for (int row = 0; row < rows; ++row) {
        model->itemAt(row)->setTags({});
        if (row % 2)
            model->itemAt(row)->setFoundLyricsTag({}, {}, QStringLiteral("la"));
    }
}

Times work(const QString &path, int rows)
{
    MainModel model;
    ProxyModel proxy;
    fill(&model, path, rows);
    proxy.setSourceModel(&model);
    Times times;
    times[SelectAll] = secondsOf([&] { proxy.selectAll(); });
    times[Hide] = secondsOf([&] { proxy.setShowFound(false); });
    times[Show] = secondsOf([&] { proxy.setShowFound(true); });
    proxy.selectAll();
    times[RemoveScattered] = secondsOf([&] { model.removeWithLyrics(); });
    times[RemoveSelected] = secondsOf([&] { proxy.removeSelected(); });
    if (model.rowCount() != 0)
        qFatal("rows are left");
    return times;
}

double passOverFlags(int rows)
{
    std::vector<char> flags(static_cast<std::size_t>(rows), 1);
    volatile long sum = 0;
    return secondsOf([&] { sum = std::accumulate(flags.begin(), flags.end(), 0L); });
}

} // namespace

void benchSelecting()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.mp3")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot make a file");
    const int fewRows = 15000;
    const int manyRows = 60000;
    const Times few = work(file.fileName(), fewRows);
    const Times many = work(file.fileName(), manyRows);
    const std::array<QString, WorkCount> names{
        QStringLiteral("select all rows / pass over flags"), QStringLiteral("hide every second row, all selected"),
        QStringLiteral("show them again"), QStringLiteral("remove every second row, all selected"),
        QStringLiteral("remove all that are selected")};
    for (std::size_t i = 0; i < names.size(); ++i)
        BenchTable::printRow(names[i], manyRows, many[i], passOverFlags(manyRows), few[i], 4);
}
