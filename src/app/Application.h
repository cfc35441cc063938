// SPDX-License-Identifier: MIT
#pragma once

#include "app/SingleInstance.h"
#include "lyrics/LyricsSearch.h"
#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "network/AccessManager.h"
#include "settings/Settings.h"
#include "settings/SettingsFile.h"
#include "settings/SettingsStandIn.h"
#include "tags/SavesMending.h"
#include "tracking/AppTracker.h"
#include "ui/AppPalette.h"
#include "ui/SceneEngine.h"
#include "ui/UsageConsent.h"
#include "updates/Updater.h"

#include <QApplication>
#include <QStringList>
#include <QTimer>
#include <QTranslator>

#include <memory>

// The application object: owns every long-lived object and wires them.
//
// The members stand in the order in which they are made, and go in the reverse one. Nothing below this folder knows it.
class Application : public QApplication
{
    Q_OBJECT
    Q_PROPERTY(AppPalette *palette READ appPalette CONSTANT)
    Q_PROPERTY(OSType osType READ osType CONSTANT)
    Q_PROPERTY(bool isWindows READ isWindows CONSTANT)
    Q_PROPERTY(bool isMacOS READ isMacOS CONSTANT)
    Q_PROPERTY(bool isLinux READ isLinux CONSTANT)
    Q_PROPERTY(Settings *settings READ settings CONSTANT)

public:
    enum OSType { OS_Mac, OS_Windows, OS_Linux, OS_Unknown };
    Q_ENUM(OSType)

    // Where this program holds the lock, a damaged settings file is kept aside and mended, and the undoing of saves
    // that were cut off begins; the settings are loaded. `readerProgram` reads the tags of files
    // (tags/MediaInfoExtractor.h).
    Application(int &argc, char **argv, const QString &readerProgram);
    ~Application() override;

    // The settings file of this user; can be asked before there is an application object.
    [[nodiscard]] static QString settingsFile();

    // What was found wrong with the settings file at the start; to be told to the user.
    [[nodiscard]] SettingsMending settingsMending() const { return m_settingsMending; }

    // Whether the settings could be stored when that was last tried; false when this run cannot store any. To be told
    // to the user.
    [[nodiscard]] bool areSettingsStored() const { return m_settingsStored; }

    // What is known of saves that were cut off before this run; to be told to the user when that is all there is to
    // know, and with each savesMended().
    [[nodiscard]] tags::MendedSaves mendedSaves() const;
    [[nodiscard]] bool areSavesMended() const { return !m_savesMending || m_savesMending->isDone(); }

    [[nodiscard]] bool isOtherInstanceRunning() const { return m_instance.isOtherRunning(); }
    // Lets another instance start while this one ends; nothing may be stored from here on.
    void makeWayForRestart() { m_instance.release(); }
    // Gives the saved list of files to the model, when this program holds the lock and the settings say so. Once,
    // before the window is made; its files are looked at when the window is there (MainModel::restore).
    void restoreFilesList();

    [[nodiscard]] static OSType osType();
    [[nodiscard]] static bool isWindows() { return osType() == OS_Windows; }
    [[nodiscard]] static bool isMacOS() { return osType() == OS_Mac; }
    [[nodiscard]] static bool isLinux() { return osType() == OS_Linux; }

    [[nodiscard]] MainModel *mainModel() { return &m_mainModel; }
    [[nodiscard]] ProxyModel *proxyModel() { return &m_proxyModel; }
    [[nodiscard]] FolderScanner *folderScanner() { return &m_folderScanner; }
    [[nodiscard]] Settings *settings() { return &m_settings; }
    // For the window, whose scene must not outlive what it shows. Null where there is to be no window, and later.
    [[nodiscard]] std::unique_ptr<SceneEngine> takeSceneEngine() { return std::move(m_sceneEngine); }
    [[nodiscard]] AppPalette *appPalette() { return &m_palette; }
    [[nodiscard]] LyricsSearch *lyricsSearch() { return &m_search; }
    // Made with the first request.
    [[nodiscard]] QNetworkAccessManager *networkManager() { return made(m_networkManager); }
    // Its events wait until it is released, once the window is there.
    [[nodiscard]] AppTracker *tracker() { return &m_tracker; }
    [[nodiscard]] UsageConsent *usageConsent() { return &m_usageConsent; }
    // Asks nobody by itself before it has a window for its dialogs.
    [[nodiscard]] Updater *updater() { return m_updater.get(); }

    // File name of the executable without any suffix; the translation files begin with it.
    [[nodiscard]] QString executableBaseName() const;
    [[nodiscard]] QString translationsFolder() const;
    [[nodiscard]] QString qtTranslationsFolder() const;

    // Reports a search for a song, by its artist and its title; nothing when the first text is blank.
    void trackUsage(const QString &first, const QString &second);
    // Reports that the scene could not be drawn with OpenGL.
    void reportOpenGLError();

    // Finds the installed languages, publishes their codes as the dynamic property "languageList" and installs the one
    // to use.
    void setUpLanguages();
    // Notes and reports that this version ran, and opens the welcome page at the first start or the what's-new page
    // after an update, which is reported too.
    void noteStart();

signals:
    // More is known of saves that were cut off: all are undone that can be, or some take long.
    void savesMended();
    // Something could not be stored since the start.
    void settingsNotStored();
    // The settings file was damaged since the start; as SettingsMending::copy.
    void settingsDamaged(const QString &copy);

public slots:
    // Installs the translators of the language that the settings name, or else of the system's.
    void changeLanguage();
    // Hands the proxy that the settings describe to the access managers and the updater.
    void proxyChanged();
    void onPaletteChanged(const QPalette &palette);

private:
    static void setNames();
    void readSettings();
    void noteCommit(bool isStored, const SettingsMending &mended);
    AccessManager *made(std::unique_ptr<AccessManager> &manager) const;
    void setUpTracker();
    void createSearch();
    void connectModels();
    void mendSaves();
    void noteMending();
    void openStartPage(const QString &lastVersion);
    void openMakerPage(const QString &path) const;
    [[nodiscard]] QString systemLanguage() const;
    [[nodiscard]] bool hasTranslation(const QString &code) const;
    [[nodiscard]] static std::unique_ptr<QTranslator> loadTranslator(const QString &name, const QString &folder);

    SingleInstance m_instance;
    std::unique_ptr<SceneEngine> m_sceneEngine; // loads the scene while the others are made; until it is taken
    SettingsMending m_settingsMending;
    std::unique_ptr<SettingsStandIn> m_standIn; // where the settings file must not be read
    bool m_settingsStored = true;
    std::unique_ptr<tags::SavesMending> m_savesMending; // of the holder of the lock
    QTimer m_mendingPatience;
    MainModel m_mainModel;
    ProxyModel m_proxyModel;
    FolderScanner m_folderScanner;
    const std::shared_ptr<ProxyLogin> m_proxyLogin = std::make_shared<ProxyLogin>(); // of all access managers
    std::unique_ptr<AccessManager> m_networkManager; // null until it is needed, as is the other (NetworkSource)
    std::unique_ptr<AccessManager> m_trackerManager;
    AppTracker m_tracker;
    std::unique_ptr<Updater> m_updater; // made as soon as the names are set, by which it finds its folder
    Settings m_settings;
    AppPalette m_palette;
    UsageConsent m_usageConsent{&m_tracker};
    LyricsSearch m_search;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<QTranslator> m_qtTranslator;
    QString m_installedLanguage;
};
