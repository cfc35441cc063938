// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Program.h"
#include "SongFolder.h"
#include "Table.h"

#include "ui/MainWindow.h"

namespace {

// Of the whole process, with its window, over that without rows.
double bytesPerRow(const QList<QUrl> &songs)
{
    Program program;
    program.showWindow();
    const double before = residentBytes();
    program.load(songs);
    return (residentBytes() - before) / songs.size();
}

} // namespace

void benchMemory()
{
    SongFolder plain;
    plain.addOriginal(QStringLiteral("plain-v23.mp3"));
    plain.addOriginal(QStringLiteral("plain.flac"));
    SongFolder covers;
    covers.addOriginal(QStringLiteral("plain-v23.mp3"), coverPicture(500));
    // One window before, so that what is loaded once is not counted.
    (void)bytesPerRow(plain.links(benchSize(1000)));
    const auto print = [](const QString &name, const QList<QUrl> &songs, double most) {
        BenchTable::print({name, songs.size(), bytesPerRow(songs), 0, 0, 0, {0, 0, most}, QStringLiteral("B")});
    };
    print(QStringLiteral("memory of a row without a cover"), plain.links(benchSize(60000)), 6000);
    print(QStringLiteral("memory of a row with its thumbnail"), covers.links(benchSize(10000)), 16000);
}
