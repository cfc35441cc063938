// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "lyrics/LyricsSearch.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "settings/Settings.h"
#include "support/LoopbackServer.h"
#include "ui/AppPalette.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QQuickWidget>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <vector>

#include <malloc.h>

namespace {

QList<QUrl> copiesOf(const QString &sample, const QString &folder, int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString copy = QStringLiteral("%1/%2 %3").arg(folder).arg(i).arg(sample);
        if (!QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample, copy))
            qFatal("cannot copy the sample %s", qPrintable(sample));
        urls.append(QUrl::fromLocalFile(copy));
    }
    return urls;
}

// What the program puts around its window; nothing is searched for.
struct Program
{
    Program()
    {
        model.setReaderProgram(QCoreApplication::applicationFilePath());
        model.setAutoStart(false);
        proxy.setSourceModel(&model);
    }

    Settings settings;
    MainModel model;
    ProxyModel proxy;
    FolderScanner scanner;
    AppPalette palette;
    QObject app;
};

void loadAll(const MainModel &model, int count)
{
    while (model.rowCount() < count || !model.itemAt(count - 1)->tagsLoaded())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Shows the window and returns when its scene was painted once.
void paintOnce(QMainWindow *window)
{
    struct PaintWatcher : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            hasPainted = hasPainted || event->type() == QEvent::Paint;
            return false;
        }
        bool hasPainted = false;
    } watcher;
    window->centralWidget()->installEventFilter(&watcher);
    window->show();
    while (!watcher.hasPainted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    window->centralWidget()->removeEventFilter(&watcher);
}

double firstFrame(const QList<QUrl> &restored)
{
    return secondsOf([&restored] {
        Program program;
        program.model.restore(restored);
        MainWindow window(
            {&program.model, &program.proxy, &program.scanner, &program.settings, &program.palette, &program.app});
        paintOnce(&window);
    });
}

double bareFirstFrame(const QString &document)
{
    return secondsOf([&document] {
        QMainWindow window;
        auto *scene = new QQuickWidget(QUrl::fromLocalFile(document), &window);
        window.setCentralWidget(scene);
        paintOnce(&window);
    });
}

// Times between the turns of the event loop, in milliseconds.
class TurnWatch : public QObject
{
public:
    TurnWatch()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this,
                [this] { m_gaps.push_back(m_clock.nsecsElapsed() / 1e6), m_clock.start(); });
        m_clock.start();
        m_timer.start(1);
    }

    [[nodiscard]] QString summary()
    {
        std::sort(m_gaps.begin(), m_gaps.end());
        return QStringLiteral("median %1 ms, longest %2 ms")
            .arg(m_gaps.at(m_gaps.size() / 2), 0, 'f', 1)
            .arg(m_gaps.back(), 0, 'f', 1);
    }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    std::vector<double> m_gaps;
};

// Searches on a site that knows no song; its answers are part of what is measured.
struct Searches
{
    Searches()
    {
        server.routeOthers([](const LoopbackRequest &) {
            return LoopbackResponse::page("<div data-sorting-artist=\"Nobody\" data-sorting-song=\"Else\"><a "
                                          "href=\"/song\" class=\"song\">Else</a></div>");
        });
        QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(Endpoint::LyricsFreak), server.base());
        reloadEndpoints();
        search.addProvider(std::make_unique<LyricsFreakProvider>(&manager));
    }

    LoopbackServer server;
    AccessManager manager;
    LyricsSearch search;
};

QString gapsWhileLoading(const QList<QUrl> &songs)
{
    Searches searches;
    Program program;
    program.model.setSearch(&searches.search);
    program.model.setAutoStart(true);
    MainWindow window(
        {&program.model, &program.proxy, &program.scanner, &program.settings, &program.palette, &program.app});
    paintOnce(&window);
    TurnWatch watch;
    program.model.add(songs, MainModel::IsRegularFile);
    // Goes through the list meanwhile, as somebody who holds Page Down.
    QTimer pages;
    QObject::connect(&pages, &QTimer::timeout, &window, [&program] {
        program.proxy.setCurrentIndex((program.proxy.currentIndex() + 8) % std::max(1, program.proxy.rowCount()));
    });
    pages.start(100);
    loadAll(program.model, songs.size());
    const int searched = songs.size() - program.model.activeCount();
    program.model.setSearch(nullptr);
    return watch.summary() + QStringLiteral("; %1 songs were searched for meanwhile").arg(searched);
}

// What is allocated now, whatever the process has kept of the benches before.
size_t allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

double bytesPerRow(const QList<QUrl> &songs)
{
    const size_t before = allocatedBytes();
    Program program;
    program.model.add(songs, MainModel::IsRegularFile);
    loadAll(program.model, songs.size());
    return double(allocatedBytes() - before) / songs.size();
}

} // namespace

void benchWindow()
{
    const QTemporaryDir folder;
    QFile document(folder.filePath(QStringLiteral("bare.qml")));
    if (!document.open(QIODevice::WriteOnly) || document.write("import QtQuick 2.15\nRectangle {}\n") < 0)
        qFatal("cannot write %s", qPrintable(document.fileName()));
    document.close();
    const QList<QUrl> plain = copiesOf(QStringLiteral("plain-v23.mp3"), folder.path(), 10000);
    const QList<QUrl> covers = copiesOf(QStringLiteral("cover.mp3"), folder.path(), 10000);
    bareFirstFrame(document.fileName()); // what Qt loads once is loaded
    firstFrame({});
    const double bare = bareFirstFrame(document.fileName());
    BenchTable::printRow(QStringLiteral("first frame, empty list / a bare window with a scene"), 0, firstFrame({}),
                         bare);
    BenchTable::printRow(QStringLiteral("first frame, restored list / a bare window with a scene"), plain.size(),
                         firstFrame(plain), bare);
    BenchTable::printNote(QStringLiteral("10,000 songs with covers load and are searched for while the list is "
                                         "scrolled: turns of the event loop, ") +
                          gapsWhileLoading(covers));
    BenchTable::printNote(QStringLiteral("memory: %1 bytes a row without a cover").arg(bytesPerRow(plain), 0, 'f', 0));
}
