// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "model/MainModel.h"
#include "settings/Settings.h"
#include "settings/SettingsChange.h"

#include <QFileInfo>
#include <QDir>
#include <QLabel>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickWidget>
#include <QStatusBar>

#include <algorithm>
#include <chrono>

using std::chrono::milliseconds;

namespace {

// Long enough to be read and noted down; the status line is needed for the work on the songs as well.
constexpr std::chrono::minutes settingsMessageTime(1);

} // namespace

// The scene lies in a static library, so its resources have to be asked for; the macro must stand outside any
// namespace.
static void initSceneResources()
{
    Q_INIT_RESOURCE(qml);
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

MainWindow::MainWindow(MainModel *model, Settings *settings, QWidget *parent)
    : QMainWindow(parent)
    , m_model(model)
    , m_settings(settings)
    , m_scene(new QQuickWidget(this))
    , m_statusLabel(new QLabel(this))
    , m_noticeLabel(new QLabel(this))
{
    setWindowTitle(QStringLiteral("Versewell"));
    setMinimumSize(480, 320);
    resize(1040, 680);
    createScene();
    createStatusBar();
    connect(m_model, &MainModel::activeCountChanged, this, &MainWindow::updateStatusLabel);
    connect(m_model, &MainModel::filesLeftOut, this, &MainWindow::showFilesLeftOut);
    updateStatusLabel();
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
    QQmlContext *context = m_scene->rootContext();
    context->setContextProperty(QStringLiteral("settings"), m_settings);
    context->setContextProperty(QStringLiteral("mainModel"), m_model);
    m_scene->setSource(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    setCentralWidget(m_scene);
    m_scene->setFocus();
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
    const int count = m_model->activeCount();
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
    statusBar()->showMessage(text, static_cast<int>(milliseconds(settingsMessageTime).count()));
}

void MainWindow::saveState() const
{
    m_settings->save();
    if (!m_settings->saveFilesList())
        return;
    QStringList files;
    for (const QUrl &url : m_model->urls())
        files.append(url.toString(QUrl::FullyEncoded));
    SettingsChange change;
    change.set(SettingsKey::FilesList, files);
    change.commit();
}
