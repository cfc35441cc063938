// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/SearchProvider.h"
#include "tags/SaveJournal.h"
#include "ui/LyricsEdit.h"
#include "ui/SceneEngine.h"
#include "ui/SceneWidget.h"
#include "ui/SongRemoval.h"
#include "ui/UnsavedLyricsGuard.h"
#include "ui/UsageConsent.h"
#include "ui/WindowState.h"

#include <QMainWindow>
#include <QStringList>
#include <QTimer>
#include <QVariantList>

#include <memory>

class AppPalette;
class AppTracker;
class ForcedSearches;
class FolderScanner;
class Leaving;
class LyricsEditGuard;
class LyricsExport;
class MainModel;
class ModelItem;
class ProxyModel;
class QUrl;
class Settings;
class StatusLine;
class Updater;
class WindowActions;

// The program's one window: menus, tool bar and status bar around the scene. It turns actions and signals of the scene
// into calls on the models, and asks before work of the user is lost.
//
// As it goes it gives the songs what was typed for them, queues what is left of an export, and stores its geometry, the
// settings and, when that is wanted, the list of files.
class MainWindow : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(LyricsEdit *lyricsEdit READ lyricsEdit CONSTANT)
    Q_PROPERTY(UsageConsent *usageConsent READ usageConsent CONSTANT)

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
        // Null: nothing is reported, and nobody is asked.
        AppTracker *tracker = nullptr;
        UsageConsent *usageConsent = nullptr;
        // Null: there are no updates.
        Updater *updater = nullptr;
    };

    // An engine of this window's own may have been made before; otherwise the window waits for what it loads.
    explicit MainWindow(const Parts &parts, std::unique_ptr<SceneEngine> sceneEngine = {}, QWidget *parent = nullptr);
    ~MainWindow() override;

    [[nodiscard]] LyricsEdit *lyricsEdit() const { return m_lyricsEdit; }
    [[nodiscard]] UsageConsent *usageConsent() const { return m_parts.usageConsent; }

    // Why the scene could not be loaded, in words for the user; empty when it could.
    [[nodiscard]] QString sceneErrors() const;

    // The search engine that is meant by this name of a setting.
    Q_INVOKABLE QString searchEngine(const QString &name) const { return m_searchProvider.effectiveName(name); }

    // The ids of the songs for which the scene holds names that were typed and not confirmed.
    Q_INVOKABLE void noteTypedNames(const QVariantList &ids);

public slots:
    // Removing asks first when a modified draft of lyrics would be lost. `clearList` leaves hidden songs in the list.
    void clearList();
    void removeSelected();
    // With the names that were typed for them. Many songs are queued in slices, from the event loop.
    void forceSearchSelected();
    // Ends the edit of lyrics; a modified draft is asked about first.
    void leaveEdit();
    // Keeps the window so large that nothing in it is cut.
    void boundSize();
    // Rows are those of the list as it is shown. A row, an id or an address that is not there is ignored.
    void copyPathToClipboard(int itemIndex);
    void searchLyricsInBrowser(int itemIndex);
    void searchLyricsInBrowser(const QUrl &itemUrl);
    void listLyricsToClipboard(int itemId);
    // Exports the lyrics of the selected songs to text files, and says in the status bar how it went.
    void generateLyricsForSelected();
    void on_actionAddFile_triggered();
    void on_actionAddFolder_triggered();
    void on_actionSelectAll_triggered();
    void on_actionRemoveWithLyrics_triggered();
    void on_actionHideWithLyrics_toggled(bool arg1);
    void on_actionClearList_triggered();
    void on_actionRemoveSelected_triggered();
    void on_actionFacebook_triggered();
    void on_actionTwitter_triggered();
    void onProxyShowFoundChanged(bool showFound);
    // Brings back the window's geometry and the width of the list.
    void onRestoreGeometry();
    // Paths that were chosen in a dialog; their folder is where the next dialog begins.
    void addFilesSelected(const QStringList &files);
    void addFolderSelected(const QString &folder);
    // Keeps the number of songs that are still to be searched for in the status line.
    void updateStatusLabel();
    // Quits after asking, when there is something to ask; then hides the window and reports the end of the session, and
    // ends the event loop when the report is through, or after a second.
    void quit_app();
    void quit_app_accepted();
    void quit_app_force();
    void on_actionAbout_triggered();
    void on_actionWebsite_triggered();
    void on_actionSettings_triggered();
    // Says in the status line that the settings file was damaged. `copy` is the path of the damaged file as it was;
    // empty when no copy could be made.
    void showSettingsDamaged(const QString &copy);
    // Says that no settings can be read or stored.
    void showSettingsUnreadable();
    // What became of saves that were cut off. Replaces what was shown of them before.
    void showSavesMended(const tags::MendedSaves &mended);

signals:
    // Once: the window is on the screen, or nobody sees it (SceneWidget::firstFrameShown). For work that must not delay
    // it.
    void firstFrameShown();
    // The scene was loaded but cannot be drawn, because OpenGL fails; the reason is in words for the user.
    void sceneFailed(const QString &reason);
    // A part of the scene that is made later cannot be made; the reason is in words for the user.
    void scenePartFailed(const QString &reason);
    // The scene is to call noteTypedNames() before this returns.
    void typedNamesAsked();
    // The scene is to give these songs, by their ids, the names that were typed for them and not confirmed. Without ids
    // all songs are meant.
    void typedNamesWanted(const QVariantList &ids);

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    // Tells the scene when a dialog blocks the window: its shortcuts would work on behind it.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] SceneWidget::Names sceneNames();
    void connectSceneSignals();
    void connectModels();
    void connectTypedNames();
    // The scene gives these songs the names that were typed for them and not confirmed.
    void takeTypedNames(const QVector<quint16> &owners);
    void setUpLinks();
    void setUpUpdates();
    void updateActions();
    void searchInBrowser(const ModelItem *item);
    [[nodiscard]] const ModelItem *itemAtRow(int row) const;

    const Parts m_parts;
    const std::unique_ptr<SceneEngine> m_sceneEngine;
    LyricsEdit *const m_lyricsEdit;
    LyricsEditGuard *const m_editGuard;
    UnsavedLyricsGuard m_unsavedGuard;
    QVector<quint16> m_typedNames; // as they were noted last
    SongRemoval m_removal;
    ForcedSearches *const m_forcedSearches;
    LyricsExport *const m_export;
    Leaving *const m_leaving;
    const std::unique_ptr<WindowActions> m_actions;
    StatusLine *const m_status;
    const SearchProvider m_searchProvider;
    QTimer m_statusUpdate; // one update for all changes of a turn of the event loop
    // After the others, since it has to go before what it shows.
    const std::unique_ptr<SceneWidget> m_scene;
    WindowState m_state;
};
