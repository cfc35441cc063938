// SPDX-License-Identifier: MIT
#pragma once

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "ui/AppPalette.h"

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

private:
    // Null before the first frame was painted.
    [[nodiscard]] QQuickItem *findSongList() const;
};

// Shows a window whose central widget is a QQuickWidget, and returns when a frame of its scene was painted.
void paintOnce(QMainWindow *window);
