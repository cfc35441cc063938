// SPDX-License-Identifier: MIT
#include "Program.h"

#include "Measuring.h"

#include "ui/MainWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

Program::Program()
{
    model.setReaderProgram(QCoreApplication::applicationFilePath());
    model.setAutoStart(false);
    proxy.setSourceModel(&model);
}

Program::~Program() = default;

void Program::showWindow()
{
    window = std::make_unique<MainWindow>(MainWindow::Parts{&model, &proxy, &scanner, &settings, &palette, &app});
    paintOnce(window.get());
    turnUntil([this] { return findSongList() != nullptr; }); // it is made after the first frame
}

QQuickItem *Program::findSongList() const
{
    const auto *scene = qobject_cast<QQuickWidget *>(window->centralWidget());
    return scene->rootObject()->findChild<QQuickItem *>(QStringLiteral("songList"));
}

QQuickItem *Program::songList() const
{
    QQuickItem *list = findSongList();
    if (!list)
        qFatal("the scene has no list");
    return list;
}

void Program::load(const QList<QUrl> &songs)
{
    model.add(songs, MainModel::IsRegularFile);
    turnUntil([&] { return model.rowCount() >= songs.size() && model.itemAt(songs.size() - 1)->tagsLoaded(); });
}

void paintOnce(QMainWindow *window)
{
    // A paint before the scene was rendered shows nothing of it.
    struct PaintWatch : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            isPainted = isPainted || (isRendered && event->type() == QEvent::Paint);
            return false;
        }
        bool isRendered = false;
        bool isPainted = false;
    } watch;
    auto *scene = qobject_cast<QQuickWidget *>(window->centralWidget());
    scene->installEventFilter(&watch);
    QObject::connect(scene->quickWindow(), &QQuickWindow::afterRendering, &watch,
                     [&watch] { watch.isRendered = true; });
    window->show();
    turnUntil([&watch] { return watch.isPainted; });
}
