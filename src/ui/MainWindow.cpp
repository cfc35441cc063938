// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "model/FolderScanner.h"
#include "model/MainModel.h"
#include "model/ProxyModel.h"
#include "settings/Settings.h"
#include "settings/SettingsChange.h"
#include "settings/SettingsKeys.h"
#include "ui/AppPalette.h"
#include "ui/ButtonImageProvider.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickWidget>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>

// The scene and its pictures lie in static libraries, so their resources have to be asked for; the macro must stand
// outside any namespace.
static void initSceneResources()
{
    Q_INIT_RESOURCE(qml);
    Q_INIT_RESOURCE(pictures);
}

// A line for each module of the scene that is not installed, with the Debian package that holds it.
static QStringList missingModules(const QStringList &importPaths)
{
    QStringList lines;
    const auto check = [&lines, &importPaths](const QString &folder, const QString &package) {
        const bool isInstalled = std::any_of(importPaths.begin(), importPaths.end(), [&folder](const QString &path) {
            return QFileInfo::exists(path + QLatin1Char('/') + folder + QLatin1String("/qmldir"));
        });
        if (!isInstalled)
            lines.append(MainWindow::tr("The Qt module %1 is missing (package %2).").arg(folder, package));
    };
    check(QStringLiteral("QtQuick.2"), QStringLiteral("qml-module-qtquick2"));
    return lines;
}

MainWindow::MainWindow(const Parts &parts, QWidget *parent)
    : QMainWindow(parent)
    , m_parts(parts)
    , m_scene(new QQuickWidget(this))
    , m_statusLabel(new QLabel(this))
    , m_noticeLabel(new QLabel(this))
{
    setWindowTitle(QStringLiteral("Versewell"));
    setMinimumSize(480, 320);
    resize(1040, 680);
    createScene();
    createStatusBar();
    connect(m_parts.mainModel, &MainModel::activeCountChanged, this, &MainWindow::updateStatusLabel);
    connect(m_parts.mainModel, &MainModel::filesLeftOut, this, &MainWindow::showFilesLeftOut);
    updateStatusLabel();
    QTimer::singleShot(0, this, &MainWindow::onRestoreGeometry);
}

MainWindow::~MainWindow()
{
    saveState();
}

void MainWindow::createScene()
{
    initSceneResources();
    m_scene->setResizeMode(QQuickWidget::SizeRootObjectToView);
    m_scene->setAcceptDrops(true);
    m_scene->setFocusPolicy(Qt::ClickFocus);
    connect(m_scene, &QQuickWidget::sceneGraphError, this,
            [this](QQuickWindow::SceneGraphError, const QString &message) { emit sceneFailed(message); });
    publishToScene();
    m_scene->setSource(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    setCentralWidget(m_scene);
    m_scene->setFocus();
}

void MainWindow::publishToScene()
{
    QQmlContext *context = m_scene->rootContext();
    context->setContextProperty(QStringLiteral("app"), m_parts.app);
    context->setContextProperty(QStringLiteral("settings"), m_parts.settings);
    context->setContextProperty(QStringLiteral("mainWindow"), this);
    context->setContextProperty(QStringLiteral("mainModel"), m_parts.mainModel);
    context->setContextProperty(QStringLiteral("proxyModel"), m_parts.proxyModel);
    context->setContextProperty(QStringLiteral("folderScanner"), m_parts.folderScanner);
    context->setContextProperty(QStringLiteral("appPalette"), m_parts.palette);
    m_scene->engine()->addImageProvider(QStringLiteral("btnimage"), new ButtonImageProvider); // owned by the engine
}

void MainWindow::createStatusBar()
{
    m_statusLabel->setTextFormat(Qt::PlainText);
    m_noticeLabel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_statusLabel);
    statusBar()->addPermanentWidget(m_noticeLabel);
    statusBar()->setSizeGripEnabled(false);
}

QString MainWindow::sceneErrors() const
{
    if (m_scene->errors().isEmpty())
        return {};
    QStringList lines = missingModules(m_scene->engine()->importPathList());
    for (const QQmlError &error : m_scene->errors())
        lines.append(error.toString());
    return lines.join(QLatin1Char('\n'));
}

void MainWindow::updateStatusLabel()
{
    const int count = m_parts.mainModel->activeCount();
    m_statusLabel->setText(count > 0 ? tr("Searching... %n left...", nullptr, count) : QString());
}

void MainWindow::showFilesLeftOut(int count)
{
    m_filesLeftOut += count;
    m_noticeLabel->setText(tr("The list is full. Files left out: %n", nullptr, m_filesLeftOut));
}

void MainWindow::showSettingsDamaged(const QString &copy)
{
    const QString text =
        copy.isEmpty() ? tr("The settings file is damaged. What could be read is used, but no copy could be made.")
                       : tr("The settings file was damaged. What could be read is kept; the damaged file is now %1",
                            "%1 is the path of a file")
                             .arg(QDir::toNativeSeparators(copy));
    m_noticeLabel->setText(text);
}

void MainWindow::onRestoreGeometry()
{
    const QSettings store;
    restoreGeometry(storedValue(store, SettingsKey::Geometry).toByteArray());
    const int listWidth = storedValue(store, SettingsKey::ListWidth).toInt();
    if (QQuickItem *root = m_scene->rootObject(); root && listWidth > 0)
        root->setProperty("listWidth", listWidth);
}

QStringList MainWindow::fileUrls() const
{
    QStringList files;
    for (const QUrl &url : m_parts.mainModel->urls())
        files.append(url.toString(QUrl::FullyEncoded));
    return files;
}

void MainWindow::saveState() const
{
    m_parts.settings->save();
    SettingsChange change;
    change.set(SettingsKey::Geometry, saveGeometry());
    if (const QQuickItem *root = m_scene->rootObject())
        change.set(SettingsKey::ListWidth, root->property("listWidth").toInt());
    if (m_parts.settings->saveFilesList())
        change.set(SettingsKey::FilesList, fileUrls());
    change.commit();
}
