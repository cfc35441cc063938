// SPDX-License-Identifier: MIT
#pragma once

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "ui/AppPalette.h"

#include <functional>
#include <memory>

class LyricsSearch;
class MainWindow;
class QMainWindow;
class QQuickItem;

// What the program puts around its window, in this process; nothing is searched for.
struct Program
{
    Program();
    ~Program();

    // Makes the window, shows it and waits until its scene was painted.
    void showWindow();
    [[nodiscard]] QQuickItem *songList() const;
    // Adds the files and waits until all are read.
    void load(const QList<QUrl> &songs);

    Settings settings;
    MainModel model;
    ProxyModel proxy;
    FolderScanner scanner;
    AppPalette palette;
    QObject app;
    std::unique_ptr<MainWindow> window;
};

// Shows a window whose central widget is a QQuickWidget, until a frame of its scene was painted. Returns the moment
// when it was (Measuring.h).
double paintOnce(QMainWindow *window);
// The same for a frame whose scene held what `isThere` asks for when it was rendered.
double paintOnce(QMainWindow *window, const std::function<bool()> &isThere);
// The moment when a frame was rendered whose scene held that: one that looks like the last one is not painted.
double renderOnce(const QMainWindow *window, const std::function<bool()> &isThere);
// The list in such a window; null before it was made, which is after the first frame.
[[nodiscard]] QQuickItem *findSongList(const QMainWindow *window);
