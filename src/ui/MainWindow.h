// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class MainModel;
class QLabel;
class QQuickWidget;
class Settings;

// The program's one window: the scene with the list of songs, and a status line.
//
// The model and the settings are not owned and must outlive the window, which stores the settings and, when that is
// wanted, the list of files as it goes.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(MainModel *model, Settings *settings, QWidget *parent = nullptr);
    ~MainWindow() override;

    // Why the scene could not be loaded, in words for the user; empty when it could.
    [[nodiscard]] QString sceneErrors() const;

public slots:
    // Keeps the number of songs that are still to be searched for in the status line.
    void updateStatusLabel();
    // Says in the status line that the settings file was damaged. `copy` is the path of the damaged file as it was;
    // empty when no copy could be made.
    void showSettingsDamaged(const QString &copy);

signals:
    // The scene was loaded but cannot be drawn, because OpenGL fails; the reason is in words for the user.
    void sceneFailed(const QString &reason);

private:
    void createScene();
    void createStatusBar();
    void showFilesLeftOut(int count);
    void saveState() const;

    MainModel *m_model;
    Settings *m_settings;
    QQuickWidget *m_scene;
    QLabel *m_statusLabel;
    QLabel *m_noticeLabel;
    int m_filesLeftOut = 0;
};
