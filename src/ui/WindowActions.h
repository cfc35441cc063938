// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QToolButton;

// The main window's actions, and the menus and the tool bar that show them.
//
// The actions belong to the window and carry the names that its slots on_<name>_triggered() are bound by.
class WindowActions
{
public:
    explicit WindowActions(QMainWindow *window);

    // Puts all texts in the language of the moment.
    void retranslate();

    QAction *addFile;
    QAction *addFolder;
    QAction *hideWithLyrics; // checkable
    QAction *selectAll;
    QAction *removeWithLyrics;
    QAction *clearList;
    QAction *removeSelected;
    QAction *facebook;
    QAction *twitter;
    QAction *quit;
    QAction *about;
    QAction *website;
    QAction *settings;
    QAction *exportLyrics;
    QAction *checkForUpdates;

private:
    struct Row;
    static const Row rows[];

    void createActions(QMainWindow *window);
    void createMenus(QMainWindow *window);
    void createToolBar(QMainWindow *window);
    void createGearButton(QToolBar *bar);

    QMenu *m_file;
    QMenu *m_edit;
    QMenu *m_view;
    QMenu *m_help;
    QToolBar *m_toolBar;
    QToolButton *m_gear;
};
