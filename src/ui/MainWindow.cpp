// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "network/Endpoints.h"
#include "settings/Settings.h"
#include "tracking/AppTracker.h"
#include "ui/AboutDialog.h"
#include "ui/AddDialogs.h"
#include "ui/AppPalette.h"
#include "ui/ForcedSearches.h"
#include "ui/Leaving.h"
#include "ui/LyricsEdit.h"
#include "ui/LyricsEditGuard.h"
#include "ui/LyricsExport.h"
#include "ui/MakerSite.h"
#include "ui/SettingsDialog.h"
#include "ui/StatusLine.h"
#include "ui/WindowActions.h"
#include "updates/Updater.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStatusBar>
#include <QTimer>
#include <QWindow>

#include <limits>

static bool isId(int number)
{
    return number >= 0 && number <= std::numeric_limits<quint16>::max();
}

static void openMakerPage(const QString &path, const QString &source)
{
    const QUrl page = makerPage(path, source);
    if (!page.isEmpty())
        QDesktopServices::openUrl(page);
}

MainWindow::MainWindow(const Parts &parts, std::unique_ptr<SceneEngine> sceneEngine, QWidget *parent)
    : QMainWindow(parent)
    , m_parts(parts)
    , m_sceneEngine(sceneEngine ? std::move(sceneEngine) : std::make_unique<SceneEngine>())
    , m_lyricsEdit(new LyricsEdit(parts.mainModel, this))
    , m_editGuard(new LyricsEditGuard(m_lyricsEdit, parts.mainModel, parts.proxyModel, this))
    , m_unsavedGuard(parts.mainModel, this)
    , m_removal(parts.mainModel, parts.proxyModel, m_lyricsEdit, m_editGuard, &m_unsavedGuard)
    , m_forcedSearches(new ForcedSearches(parts.mainModel, &m_unsavedGuard, this))
    , m_export(new LyricsExport(parts.mainModel, this))
    , m_leaving(new Leaving(this, parts.mainModel, m_editGuard, &m_unsavedGuard, parts.tracker))
    , m_actions(std::make_unique<WindowActions>(this))
    , m_status(new StatusLine(statusBar()))
    , m_scene(std::make_unique<SceneWidget>(m_sceneEngine.get(), sceneNames(), parts.mainModel, this))
    , m_state(this, m_scene.get(), parts.mainModel, parts.settings)
{
    setWindowTitle(QStringLiteral("Versewell"));
    connectTypedNames();
    setUpLinks();
    setUpUpdates();
    setCentralWidget(m_scene.get());
    boundSize();
    m_state.resizeToText();
    m_scene->setFocus();
    connectSceneSignals();
    connectModels();
    QMetaObject::connectSlotsByName(this);
    connect(m_actions->quit, &QAction::triggered, this, &MainWindow::quit_app);
    connect(m_actions->exportLyrics, &QAction::triggered, this, &MainWindow::generateLyricsForSelected);
    updateActions();
    updateStatusLabel();
    QTimer::singleShot(0, this, &MainWindow::onRestoreGeometry);
    // At the end of a session Qt would close the window and take its question for a refusal. The program is told to
    // quit then, which it does without asking.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
}

MainWindow::~MainWindow()
{
    emit typedNamesWanted({});
    m_lyricsEdit->handOver();
    m_export->queueRest();
    m_state.store();
}

// Making the window

SceneWidget::Names MainWindow::sceneNames()
{
    return {{QStringLiteral("app"), m_parts.app},
            {QStringLiteral("settings"), m_parts.settings},
            {QStringLiteral("mainWindow"), this},
            {QStringLiteral("mainModel"), m_parts.mainModel},
            {QStringLiteral("proxyModel"), m_parts.proxyModel},
            {QStringLiteral("folderScanner"), m_parts.folderScanner},
            {QStringLiteral("appPalette"), m_parts.palette}};
}

void MainWindow::connectSceneSignals()
{
    const auto connectSignal = [this](const char *signal, const char *slot) {
        m_scene->connectRoot(signal, this, slot);
    };
    connectSignal("listExportLyricsSelected()", "generateLyricsForSelected()");
    connectSignal("listRemoveSelected()", "removeSelected()");
    connectSignal("listRemoveAll()", "clearList()");
    connectSignal("listForceSearchSelected()", "forceSearchSelected()");
    connectSignal("listCopyPathToClipboard(int)", "copyPathToClipboard(int)");
    connectSignal("listSearchLyricsInBrowser(int)", "searchLyricsInBrowser(int)");
    connectSignal("listSearchLyricsInBrowser_url(QUrl)", "searchLyricsInBrowser(QUrl)");
    connectSignal("listLyricsToClipboard(int)", "listLyricsToClipboard(int)");
    connectSignal("listRemoveWithLyrics()", "on_actionRemoveWithLyrics_triggered()");
    connectSignal("leaveEditRequested()", "leaveEdit()");
    connectSignal("leastWidthChanged()", "boundSize()");
    connectSignal("leastHeightChanged()", "boundSize()");
    connectSignal("addFilesRequested()", "on_actionAddFile_triggered()");
    connectSignal("addFolderRequested()", "on_actionAddFolder_triggered()");
    connect(m_scene.get(), &SceneWidget::firstFramePainted, m_parts.mainModel, &MainModel::lookAtKept);
    connect(m_scene.get(), &SceneWidget::firstFrameShown, this, &MainWindow::firstFrameShown);
    connect(m_scene.get(), &SceneWidget::partFailed, this, &MainWindow::scenePartFailed);
    connect(m_scene.get(), &QQuickWidget::sceneGraphError, this,
            [this](QQuickWindow::SceneGraphError, const QString &message) { emit sceneFailed(message); });
}

void MainWindow::connectTypedNames()
{
    const auto songs = [this] {
        m_typedNames.clear();
        emit typedNamesAsked();
        return m_typedNames;
    };
    m_unsavedGuard.setTypedNames({songs, [this](const QVector<quint16> &owners) {
                                      takeTypedNames(owners);
                                  }});
}

void MainWindow::takeTypedNames(const QVector<quint16> &owners)
{
    QVariantList ids;
    for (const quint16 id : owners)
        ids.append(id);
    if (!ids.isEmpty()) // none would stand for all
        emit typedNamesWanted(ids);
}

void MainWindow::noteTypedNames(const QVariantList &ids)
{
    for (const QVariant &id : ids) {
        if (isId(id.toInt()))
            m_typedNames.append(static_cast<quint16>(id.toInt()));
    }
}

QString MainWindow::sceneErrors() const
{
    return m_scene->loadErrors();
}

void MainWindow::boundSize()
{
    m_state.bound();
}

void MainWindow::connectModels()
{
    connect(m_parts.proxyModel, &ProxyModel::showFoundChanged, this, &MainWindow::onProxyShowFoundChanged);
    onProxyShowFoundChanged(m_parts.proxyModel->showFound());
    m_statusUpdate.setSingleShot(true);
    m_statusUpdate.setInterval(0);
    connect(&m_statusUpdate, &QTimer::timeout, this, &MainWindow::updateStatusLabel);
    connect(m_parts.mainModel, &MainModel::activeCountChanged, &m_statusUpdate, qOverload<>(&QTimer::start));
    connect(m_editGuard, &LyricsEditGuard::draftKept, m_scene.get(), &SceneWidget::focusLyrics);
    connect(m_parts.mainModel, &MainModel::filesLeftOut, m_status, &StatusLine::addFilesLeftOut);
    connect(m_parts.mainModel, &MainModel::filesUnsupported, m_status, &StatusLine::addUnsupportedFiles);
    connect(m_parts.folderScanner, &FolderScanner::filesLeftOut, m_status, &StatusLine::addUnusableNames);
    connect(m_parts.mainModel, &MainModel::writesFailed, m_status, &StatusLine::showWritesFailed);
    connect(m_parts.mainModel, &MainModel::failedWritesLeft, m_status, &StatusLine::updateWritesFailed);
    connect(m_export, &LyricsExport::finished, m_status, &StatusLine::showExported);
    connect(m_parts.proxyModel, &ProxyModel::selectedCountChanged, this, &MainWindow::updateActions);
    connect(m_parts.proxyModel, &QAbstractItemModel::rowsInserted, this, &MainWindow::updateActions);
    connect(m_parts.proxyModel, &QAbstractItemModel::rowsRemoved, this, &MainWindow::updateActions);
    connect(m_parts.proxyModel, &QAbstractItemModel::modelReset, this, &MainWindow::updateActions);
    connect(m_parts.mainModel, &MainModel::restoringChanged, this, &MainWindow::updateActions);
    connect(m_parts.mainModel, &MainModel::cleared, this, &MainWindow::updateActions);
}

// The links are in no menu but in the status bar; without a site of the maker they are nowhere.
void MainWindow::setUpLinks()
{
    for (QAction *link : {m_actions->website, m_actions->facebook, m_actions->twitter}) {
        link->setVisible(endpointExists(Endpoint::Maker));
        m_status->addButton(link);
    }
}

void MainWindow::setUpUpdates()
{
    m_actions->checkForUpdates->setVisible(m_parts.updater && endpointExists(Endpoint::Maker));
    if (!m_parts.updater)
        return;
    m_parts.updater->setBeforeInstall([this](const std::function<void()> &install) { m_leaving->before(install); });
    connect(m_actions->checkForUpdates, &QAction::triggered, m_parts.updater, &Updater::checkByUser);
}

void MainWindow::updateActions()
{
    const bool hasRows = m_parts.proxyModel->rowCount() > 0;
    const bool hasSelection = m_parts.proxyModel->selectedCount() > 0;
    m_actions->selectAll->setEnabled(hasRows);
    // An empty list may hold songs whose disk is away, which clearing forgets.
    const bool isAnyWaiting = m_parts.mainModel->rowCount() == 0 && m_parts.mainModel->isAnyWaiting();
    m_actions->clearList->setEnabled(hasRows || isAnyWaiting);
    m_actions->removeSelected->setEnabled(hasSelection);
    m_actions->exportLyrics->setEnabled(hasSelection);
    m_actions->removeWithLyrics->setEnabled(m_parts.mainModel->rowCount() > 0);
}

void MainWindow::showEvent(QShowEvent *event)
{
    windowHandle()->installEventFilter(this);
    QMainWindow::showEvent(event);
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isBlocked = event->type() == QEvent::WindowBlocked;
    if (watched == windowHandle() && (isBlocked || event->type() == QEvent::WindowUnblocked))
        m_scene->setBlocked(isBlocked);
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_actions->retranslate();
        m_status->retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::updateStatusLabel()
{
    m_status->setSearchesLeft(m_parts.mainModel->activeCount());
}

void MainWindow::showSettingsDamaged(const QString &copy)
{
    m_status->showSettingsDamaged(copy);
}

void MainWindow::showSettingsUnreadable()
{
    m_status->showSettingsUnreadable();
}

void MainWindow::showSavesMended(const tags::MendedSaves &mended)
{
    m_status->showSavesMended(mended);
}

// Adding

void MainWindow::on_actionAddFile_triggered()
{
    const MainModel *model = m_parts.mainModel;
    QFileDialog *dialog = makeAddFilesDialog(model->supportedTypesMask(QStringLiteral(" ")), this);
    connect(dialog, &QFileDialog::filesSelected, this, &MainWindow::addFilesSelected);
    dialog->open();
}

void MainWindow::addFilesSelected(const QStringList &files)
{
    if (files.isEmpty())
        return;
    rememberFilesFolder(QFileInfo(files.first()).absolutePath());
    QList<QUrl> urls;
    for (const QString &file : files)
        urls.append(QUrl::fromLocalFile(file));
    m_parts.mainModel->addUrls(urls);
}

void MainWindow::on_actionAddFolder_triggered()
{
    QFileDialog *dialog = makeAddFolderDialog(this);
    connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::addFolderSelected);
    dialog->open();
}

void MainWindow::addFolderSelected(const QString &folder)
{
    if (folder.isEmpty())
        return;
    rememberAddedFolder(folder);
    m_parts.folderScanner->addFolder(QUrl::fromLocalFile(folder));
}

// Selecting, hiding and removing

void MainWindow::on_actionSelectAll_triggered()
{
    m_parts.proxyModel->selectAll();
}

void MainWindow::on_actionHideWithLyrics_toggled(bool arg1)
{
    m_parts.proxyModel->setShowFound(!arg1);
}

void MainWindow::onProxyShowFoundChanged(bool showFound)
{
    m_actions->hideWithLyrics->setChecked(!showFound);
}

void MainWindow::removeSelected()
{
    m_removal.removeSelected();
}

void MainWindow::clearList()
{
    m_removal.removeAll();
}

void MainWindow::on_actionRemoveWithLyrics_triggered()
{
    m_removal.removeWithLyrics();
}

void MainWindow::on_actionClearList_triggered()
{
    clearList();
}

void MainWindow::on_actionRemoveSelected_triggered()
{
    removeSelected();
}

// What the scene asks for

const ModelItem *MainWindow::itemAtRow(int row) const
{
    const QModelIndex sourceRow = m_parts.proxyModel->mapToSource(m_parts.proxyModel->index(row, 0));
    return sourceRow.isValid() ? m_parts.mainModel->itemAt(sourceRow.row()) : nullptr;
}

void MainWindow::forceSearchSelected()
{
    const QVector<quint16> ids = m_parts.proxyModel->selectedIds();
    takeTypedNames(ids);
    m_forcedSearches->add(ids);
}

void MainWindow::leaveEdit()
{
    m_editGuard->before([this] { m_lyricsEdit->cancel(); });
}

void MainWindow::copyPathToClipboard(int itemIndex)
{
    if (const ModelItem *item = itemAtRow(itemIndex))
        QGuiApplication::clipboard()->setText(item->url().toLocalFile());
}

void MainWindow::listLyricsToClipboard(int itemId)
{
    const ModelItem *item = isId(itemId) ? m_parts.mainModel->item(static_cast<quint16>(itemId)) : nullptr;
    if (item && !item->lyricsTag().isEmpty())
        QGuiApplication::clipboard()->setText(item->lyricsTag());
}

void MainWindow::searchLyricsInBrowser(int itemIndex)
{
    searchInBrowser(itemAtRow(itemIndex));
}

void MainWindow::searchLyricsInBrowser(const QUrl &itemUrl)
{
    searchInBrowser(m_parts.mainModel->item(itemUrl));
}

void MainWindow::searchInBrowser(const ModelItem *item)
{
    if (!item)
        return;
    takeTypedNames({item->id()});
    const SearchNames names = item->searchArtistTitle();
    const QString query = (names.artist + QLatin1Char(' ') + names.title).trimmed();
    const QString engine = m_parts.settings->searchProvider();
    if (!query.isEmpty())
        m_searchProvider.search(query, engine.isEmpty() ? QStringLiteral("default") : engine);
}

void MainWindow::generateLyricsForSelected()
{
    m_export->add(m_parts.proxyModel->selectedIds());
}

// Links

void MainWindow::on_actionFacebook_triggered()
{
    openMakerPage(QStringLiteral("/facebook/"), QStringLiteral("app"));
    if (m_parts.tracker)
        m_parts.tracker->trackFacebook();
}

void MainWindow::on_actionTwitter_triggered()
{
    openMakerPage(QStringLiteral("/twitter/"), QStringLiteral("app"));
    if (m_parts.tracker)
        m_parts.tracker->trackTwitter();
}

void MainWindow::on_actionWebsite_triggered()
{
    openMakerPage(QStringLiteral("/"), QStringLiteral("app-statusbar"));
}

void MainWindow::on_actionAbout_triggered()
{
    auto *dialog = new AboutDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::on_actionSettings_triggered()
{
    auto *dialog = new SettingsDialog(m_parts.settings, m_parts.usageConsent, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

// Quitting

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_leaving->isDecided());
    m_leaving->quit();
}

void MainWindow::quit_app()
{
    m_leaving->quit();
}

void MainWindow::quit_app_accepted()
{
    m_leaving->accept();
}

void MainWindow::quit_app_force()
{
    m_leaving->force();
}

void MainWindow::onRestoreGeometry()
{
    m_state.restore();
}
