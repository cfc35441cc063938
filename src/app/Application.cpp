// SPDX-License-Identifier: MIT
#include "app/Application.h"

#include "lyrics/LastfmTagCorrector.h"
#include "lyrics/LyricsProvider.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "network/Endpoints.h"
#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "settings/SettingsCopy.h"
#include "settings/SettingsKeys.h"
#include "ui/MenuStyle.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>

namespace {

const QString organisation = QStringLiteral("Quillmarsh");
const QString program = QStringLiteral("Versewell");
const QString english = QStringLiteral("en");

// Saves that are undone in this time are told of together.
constexpr std::chrono::seconds mendingPatience(3);

// In the order of the file dialog's filter.
QStringList supportedExtensions()
{
    return {QStringLiteral("aifc"), QStringLiteral("aiff"), QStringLiteral("aif"), QStringLiteral("opus"),
            QStringLiteral("aac"),  QStringLiteral("ogg"),  QStringLiteral("wma"), QStringLiteral("alac"),
            QStringLiteral("ape"),  QStringLiteral("flac"), QStringLiteral("m4p"), QStringLiteral("m4a"),
            QStringLiteral("mp3")};
}

QString lockFile()
{
    return QFileInfo(Application::settingsFile()).absolutePath() + QLatin1String("/Versewell.lock");
}

} // namespace

Application::Application(int &argc, char **argv, const QString &readerProgram)
    : QApplication(argc, argv)
    , m_instance(lockFile())
    , m_sceneEngine(m_instance.isOtherRunning() ? nullptr : std::make_unique<SceneEngine>())
{
    readSettings(); // mended first of all: every look at the settings reads the file
    setAttribute(Qt::AA_UseHighDpiPixmaps);
    m_mainModel.setReaderProgram(readerProgram);
    m_mainModel.setSupportedExtensions(supportedExtensions());
    m_folderScanner.setTypes(supportedExtensions());
    setNames();
    UpdateEnvironment updates;
    updates.proxyLogin = m_proxyLogin;
    m_updater = std::make_unique<Updater>(updates);
    m_settings.load();
    m_settings.setHolder(m_instance.isHolder());
    setUpTracker();
    createSearch();
    connectModels();
    mendSaves();
    proxyChanged();
    connect(&m_settings, &Settings::languageChanged, this, &Application::changeLanguage);
    connect(&m_settings, &Settings::proxyChanged, this, &Application::proxyChanged);
    connect(&m_settings, &Settings::providersOrderChanged, &m_search, &LyricsSearch::setProvidersOrder);
    MenuStyle::install();
    onPaletteChanged(palette());
    connect(this, &QGuiApplication::paletteChanged, this, &Application::onPaletteChanged);
}

Application::~Application()
{
    // The coordinator goes before the model, which would be left with a pointer to it.
    m_mainModel.setSearch(nullptr);
    SettingsChange::setListener({});
}

void Application::readSettings()
{
    const QFileInfo file(settingsFile());
    const SettingsFileAccess access = m_instance.isHolder() ? SettingsFileAccess::Mend : SettingsFileAccess::Look;
    if (m_instance.isHolder())
        SettingsCopy::removeLeft(file.filePath());
    SettingsChange::setListener([this](bool isStored, const SettingsMending &mended) { noteCommit(isStored, mended); });
    m_settingsMending = mendSettingsFile(file.filePath(), access);
    if (!m_settingsMending.standIn)
        return;
    m_standIn = std::make_unique<SettingsStandIn>(file.dir().dirName(), file.fileName(), *m_settingsMending.standIn);
    m_settingsStored = false;
}

void Application::noteCommit(bool isStored, const SettingsMending &mended)
{
    m_settingsStored = isStored;
    if (mended.damaged)
        emit settingsDamaged(mended.copy);
    if (!isStored)
        emit settingsNotStored();
}

void Application::setNames()
{
    setApplicationName(program);
    setOrganizationName(organisation);
    setApplicationVersion(QStringLiteral(VERSEWELL_VERSION));
    setOrganizationDomain(endpointBase(Endpoint::Maker).host());
    setDesktopFileName(QStringLiteral(VERSEWELL_APP_ID)); // where desktops find the window's icon
}

QString Application::settingsFile()
{
    return SettingsStore::path(organisation, program);
}

void Application::setUpTracker()
{
    m_tracker.setNetworkAccessManager(NetworkSource::later([this] { return made(m_trackerManager); }));
    m_tracker.hold();
    if (m_instance.isHolder()) // nobody else may store an answer's consequences
        m_usageConsent.load();
}

void Application::createSearch()
{
    const NetworkSource network = NetworkSource::later([this] { return made(m_networkManager); });
    for (std::unique_ptr<LyricsProvider> &provider : makeProviders(network))
        m_search.addProvider(std::move(provider));
    m_search.setProvidersOrder(m_settings.providersOrder());
    // Stored back, so that the stored order always names every site.
    m_settings.setProvidersOrder(m_search.providersOrder());
    m_search.addCorrector(std::make_unique<LastfmTagCorrector>(network));
}

void Application::onPaletteChanged(const QPalette &palette)
{
    m_palette.setPalette(palette);
}

void Application::connectModels()
{
    m_mainModel.setSettings(&m_settings);
    m_mainModel.setSearch(&m_search);
    m_proxyModel.setSourceModel(&m_mainModel);
    connect(&m_folderScanner, &FolderScanner::found, &m_mainModel,
            [this](const QList<QUrl> &files) { m_mainModel.add(files, MainModel::IsRegularFile); });
    connect(&m_mainModel, &MainModel::scanFolders, &m_folderScanner, &FolderScanner::addFolders);
    connect(&m_mainModel, &MainModel::cleared, &m_folderScanner, &FolderScanner::cancel);
    connect(&m_mainModel, &MainModel::searchStarted, this, &Application::trackUsage);
}

// Songs whose saves were cut off are made whole while the window comes up: their disks may be away, or slow.
void Application::mendSaves()
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1String("/saves");
    m_mainModel.setDataFolder(folder);
    if (!m_instance.isHolder())
        return;
    m_savesMending = std::make_unique<tags::SavesMending>(folder);
    m_mainModel.setSongsInMending(m_savesMending->result().underWay);
    connect(m_savesMending.get(), &tags::SavesMending::progressed, this, &Application::noteMending);
    connect(&m_mendingPatience, &QTimer::timeout, this, &Application::noteMending);
    m_mendingPatience.setSingleShot(true);
    if (!m_savesMending->isDone())
        m_mendingPatience.start(mendingPatience);
}

void Application::noteMending()
{
    m_mainModel.setSongsInMending(m_savesMending->result().underWay);
    if (m_savesMending->isDone())
        m_mendingPatience.stop();
    if (!m_mendingPatience.isActive())
        emit savesMended();
}

tags::MendedSaves Application::mendedSaves() const
{
    return m_savesMending ? m_savesMending->result() : tags::MendedSaves();
}

void Application::restoreFilesList()
{
    if (!m_settings.keepsFilesList())
        return;
    // A list of one comes back from the store as a plain string, which toList() would lose.
    m_mainModel.keep(storedValue(SettingsStore(), SettingsKey::FilesList).toStringList());
}

Application::OSType Application::osType()
{
#if defined(Q_OS_MACOS)
    return OS_Mac;
#elif defined(Q_OS_WIN)
    return OS_Windows;
#elif defined(Q_OS_LINUX)
    return OS_Linux;
#else
    return OS_Unknown;
#endif
}

// The network

AccessManager *Application::made(std::unique_ptr<AccessManager> &manager) const
{
    if (!manager) {
        manager = std::make_unique<AccessManager>();
        manager->shareLogin(m_proxyLogin);
        manager->useProxy(m_settings.proxy());
    }
    return manager.get();
}

void Application::proxyChanged()
{
    for (AccessManager *manager : {m_networkManager.get(), m_trackerManager.get()}) {
        if (manager)
            manager->useProxy(m_settings.proxy());
    }
    m_updater->useProxy(m_settings.proxy());
}

// Usage events

void Application::trackUsage(const QString &first, const QString &second)
{
    m_tracker.trackSearch(first, second);
}

void Application::reportOpenGLError()
{
    m_tracker.trackEvent(QStringLiteral("error"), QStringLiteral("opengl"));
}

// Start pages

void Application::noteStart()
{
    const QString lastVersion = storedValue(SettingsStore(), SettingsKey::FirstStart).toString();
    SettingsChange change;
    change.set(SettingsKey::FirstStart, applicationVersion());
    change.commit();
    if (flagOf(storedValue(SettingsStore(), SettingsKey::OpenQuillmarshSite)) && lastVersion != applicationVersion())
        openStartPage(lastVersion);
    m_tracker.trackStart();
}

void Application::openStartPage(const QString &lastVersion)
{
    if (lastVersion.isEmpty()) {
        openMakerPage(QStringLiteral("/versewell/welcome.html"));
        return;
    }
    openMakerPage(QStringLiteral("/versewell/update.html"));
    m_tracker.trackUpdate(lastVersion);
}

void Application::openMakerPage(const QString &path) const
{
    if (endpointExists(Endpoint::Maker))
        QDesktopServices::openUrl(endpointUrl(Endpoint::Maker, path));
}

// Languages

QString Application::executableBaseName() const
{
    return QFileInfo(applicationFilePath()).baseName();
}

QString Application::translationsFolder() const
{
    const QDir buildTree(applicationDirPath() + QLatin1String("/locale"));
    if (buildTree.exists())
        return buildTree.path();
    // Packages may put a path here that is relative to the program.
    return QStringLiteral("/usr/share/versewell/locale").replace(QLatin1String("@APP_DIR_PATH@"), applicationDirPath());
}

QString Application::qtTranslationsFolder() const
{
    // "qt4" is meant: the folder has kept its name although the program runs on Qt 5.
    return QStringLiteral("/usr/share/qt4/translations").replace(QLatin1String("@APP_DIR_PATH@"), applicationDirPath());
}

bool Application::hasTranslation(const QString &code) const
{
    return QFile::exists(translationsFolder() + QLatin1Char('/') + executableBaseName() + QLatin1Char('.') + code +
                         QLatin1String(".qm"));
}

void Application::setUpLanguages()
{
    QStringList codes;
    const QStringList files =
        QDir(translationsFolder()).entryList({executableBaseName() + QLatin1String(".*.qm")}, QDir::Files);
    for (QString name : files) {
        name.chop(3); // ".qm"
        codes.append(QFileInfo(name).suffix());
    }
    if (!codes.contains(english))
        codes.prepend(english);
    setProperty("languageList", codes);
    changeLanguage();
}

QString Application::systemLanguage() const
{
    const QStringList names = QLocale::system().uiLanguages();
    for (const QString &name : names) {
        const QString localeName = QLocale(name).name();
        QStringList candidates{localeName};
        if (localeName.contains(QLatin1Char('_')))
            candidates.append(localeName.section(QLatin1Char('_'), 0, 0));
        for (const QString &code : qAsConst(candidates)) {
            if (code == english || hasTranslation(code))
                return code;
        }
    }
    return english;
}

void Application::changeLanguage()
{
    QString code = m_settings.language();
    if (code.isEmpty() || !property("languageList").toStringList().contains(code))
        code = systemLanguage();
    if (code == m_installedLanguage)
        return;
    m_translator.reset();
    m_qtTranslator.reset();
    QLocale::setDefault(QLocale(code));
    if (code != english) {
        m_translator = loadTranslator(executableBaseName() + QLatin1Char('.') + code, translationsFolder());
        m_qtTranslator = loadTranslator(QLatin1String("qt_") + code, qtTranslationsFolder());
    }
    m_installedLanguage = code;
}

// Loads and installs; null when there is no such file, which is no error: the texts stay in English.
std::unique_ptr<QTranslator> Application::loadTranslator(const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder))
        return nullptr;
    installTranslator(translator.get());
    return translator;
}
