// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Program.h"
#include "SongFolder.h"
#include "Table.h"

#include "ui/MainWindow.h"

#include <QQuickItem>

#include <algorithm>
#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds frame = 16ms;
constexpr int pixelsAFrame = 60; // a wheel that is turned fast
constexpr int framesAPage = 12;  // somebody holds Page Down

// A frame of somebody who scrolls and goes through the list meanwhile.
void scroll(QQuickItem *list, ProxyModel *proxy, int frames)
{
    const double most = list->property("contentHeight").toDouble() - list->height();
    const double y = list->property("contentY").toDouble() + pixelsAFrame;
    list->setProperty("contentY", y < most ? std::max(y, 0.0) : 0.0);
    if (frames % framesAPage == 0 && proxy->rowCount() > 0)
        proxy->setCurrentIndex((proxy->currentIndex() + list->property("rowsInView").toInt()) % proxy->rowCount());
}

// While the songs load; how many frames were scrolled goes to `frameCount`.
Turn longestTurn(const QList<QUrl> &songs, int *frameCount)
{
    Program program;
    program.showWindow();
    QQuickItem *list = program.songList();
    QTimer frames;
    QObject::connect(&frames, &QTimer::timeout, &frames, [&] { scroll(list, &program.proxy, ++*frameCount); });
    frames.start(frame);
    const TurnWatch watch;
    program.load(songs);
    return watch.longest();
}

} // namespace

void benchScrolling()
{
    SongFolder folder;
    folder.addOriginal(QStringLiteral("plain-v23.mp3"), coverPicture(1500));
    const QList<QUrl> songs = folder.links(benchSize(10000));
    int frameCount = 0;
    BenchTable::printTurn(QStringLiteral("longest turn while songs with covers of 1500x1500 load, scrolled"),
                          songs.size(), longestTurn(songs, &frameCount), 50);
    BenchTable::printNote(QStringLiteral("%1 frames were scrolled meanwhile").arg(frameCount));
}
