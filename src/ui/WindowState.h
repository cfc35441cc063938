// SPDX-License-Identifier: MIT
#pragma once

class MainModel;
class QMainWindow;
class SceneWidget;
class Settings;

// How large the main window is and where, and what is stored when it goes. Main thread only.
class WindowState
{
public:
    // Nothing is owned; all must outlive the object.
    WindowState(QMainWindow *window, SceneWidget *scene, const MainModel *model, const Settings *settings);

    // Makes the window as large as it is at first: with the desktop's text, as far as the screen has room.
    void resizeToText();
    // Keeps the window so large that nothing in it is cut, but no larger than the screen.
    void bound();
    // Brings back the window's geometry and the width of the list.
    void restore();
    // Stores these, the settings and, when that is wanted, the list of files.
    void store() const;

private:
    QMainWindow *m_window;
    SceneWidget *m_scene;
    const MainModel *m_model;
    const Settings *m_settings;
};
