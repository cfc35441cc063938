// SPDX-License-Identifier: MIT
#pragma once

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ModelItem.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "support/TestFolder.h"
#include "ui/AppPalette.h"
#include "ui/MainWindow.h"

#include <QMessageBox>
#include <QSemaphore>

#include <memory>

// A main window with all that it shows and works on, for classes of tests to derive from; they need the samples and the
// reader of tests. Settings lie in a folder of their own. A step that fails fails the test that runs.
class WindowStage
{
public:
    WindowStage(const WindowStage &) = delete;
    WindowStage &operator=(const WindowStage &) = delete;

    // One of the samples.
    static QUrl sample(const char *name);

protected:
    WindowStage();
    ~WindowStage();

    // Everything but the window, anew, with the settings that are stored.
    void makeParts();
    // `size`: an invalid one leaves the window as it comes. Whatever is null is done without.
    void openWindow(QObject *app, QSize size = {}, AppTracker *tracker = nullptr, UsageConsent *consent = nullptr,
                    Updater *updater = nullptr);

    // Lists songs without names, which nobody searches for, in a folder of their own: "0.mp3" and so on.
    void addCopies(int count);
    // Makes a song the only selected one and types "new" as its lyrics.
    void beginDraft(int row);
    // Writes wait until m_disk is released.
    void holdWrites();

    [[nodiscard]] ModelItem *song(int row) const { return m_model->itemAt(row); }
    [[nodiscard]] QAction *action(const char *name) const;
    // The one that is open; null when there is none.
    [[nodiscard]] QMessageBox *question() const { return m_window->findChild<QMessageBox *>(); }

    const TestFolder m_folder{};
    std::unique_ptr<TestFolder> m_songs;
    QSemaphore m_disk;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<MainModel> m_model;
    std::unique_ptr<ProxyModel> m_proxy;
    std::unique_ptr<FolderScanner> m_scanner;
    AppPalette m_palette;
    std::unique_ptr<MainWindow> m_window;
};
