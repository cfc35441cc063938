// SPDX-License-Identifier: MIT
#include "Program.h"

#include "Measuring.h"

#include "ui/MainWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

#include <optional>

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
    turnUntil([this] { return findSongList(window.get()) != nullptr; });
}

QQuickItem *Program::songList() const
{
    QQuickItem *list = findSongList(window.get());
    if (!list)
        qFatal("the scene has no list");
    return list;
}

void Program::load(const QList<QUrl> &songs)
{
    model.add(songs, MainModel::IsRegularFile);
    turnUntil([&] { return model.rowCount() >= songs.size() && model.itemAt(songs.size() - 1)->tagsLoaded(); });
}

QQuickItem *findSongList(const QMainWindow *window)
{
    const auto *scene = qobject_cast<QQuickWidget *>(window->centralWidget());
    return scene->rootObject()->findChild<QQuickItem *>(QStringLiteral("songList"));
}

double paintOnce(QMainWindow *window)
{
    return paintOnce(window, [] { return true; });
}

double paintOnce(QMainWindow *window, const std::function<bool()> &isThere)
{
    // A paint before the scene was rendered shows nothing of it.
    struct PaintWatch : QObject
    {
        bool eventFilter(QObject *scene, QEvent *event) override
        {
            if (!isRendered || painted || event->type() != QEvent::Paint)
                return false;
            scene->event(event);
            painted = now();
            return true;
        }
        bool isRendered = false;
        std::optional<double> painted;
    } watch;
    auto *scene = qobject_cast<QQuickWidget *>(window->centralWidget());
    scene->installEventFilter(&watch);
    QObject::connect(scene->quickWindow(), &QQuickWindow::afterRendering, &watch,
                     [&] { watch.isRendered = watch.isRendered || isThere(); });
    window->show();
    turnUntil([&watch] { return watch.painted.has_value(); });
    return *watch.painted;
}

double renderOnce(const QMainWindow *window, const std::function<bool()> &isThere)
{
    const auto *scene = qobject_cast<QQuickWidget *>(window->centralWidget());
    std::optional<double> rendered;
    const QObject watch;
    QObject::connect(scene->quickWindow(), &QQuickWindow::afterRendering, &watch, [&] {
        if (!rendered && isThere())
            rendered = now();
    });
    turnUntil([&rendered] { return rendered.has_value(); });
    return *rendered;
}
