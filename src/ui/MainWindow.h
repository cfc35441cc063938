// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class AppPalette;
class FolderScanner;
class MainModel;
class ProxyModel;
class QLabel;
class QQuickWidget;
class Settings;

// The program's one window: the scene with the list of songs, and a status line.
//
// As it goes it stores its geometry, the settings and, when that is wanted, the list of files.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // What the window shows and works on. Nothing is owned, and all must outlive the window.
    struct Parts
    {
        MainModel *mainModel;
        ProxyModel *proxyModel;
        FolderScanner *folderScanner;
        Settings *settings;
        AppPalette *palette;
        QObject *app; // for the scene
    };

    explicit MainWindow(const Parts &parts, QWidget *parent = nullptr);
    ~MainWindow() override;

    // Why the scene could not be loaded, in words for the user; empty when it could.
    [[nodiscard]] QString sceneErrors() const;

public slots:
    // Keeps the number of songs that are still to be searched for in the status line.
    void updateStatusLabel();
    // Brings back the window's geometry and the width of the list.
    void onRestoreGeometry();
    // Says in the status line that the settings file was damaged. `copy` is the path of the damaged file as it was;
    // empty when no copy could be made.
    void showSettingsDamaged(const QString &copy);

signals:
    // The scene was loaded but cannot be drawn, because OpenGL fails; the reason is in words for the user.
    void sceneFailed(const QString &reason);

private:
    void createScene();
    void publishToScene();
    void createStatusBar();
    void showFilesLeftOut(int count);
    [[nodiscard]] QStringList fileUrls() const;
    void saveState() const;

    const Parts m_parts;
    QQuickWidget *m_scene;
    QLabel *m_statusLabel;
    QLabel *m_noticeLabel;
    int m_filesLeftOut = 0;
};
