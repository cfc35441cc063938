// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "model/MainModel.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

#include <QLabel>
#include <QQmlContext>
#include <QQmlError>
#include <QQuickWidget>
#include <QSettings>
#include <QStatusBar>

// The scene lies in a static library, so its resources have to be asked for; the macro must stand outside any
// namespace.
static void initSceneResources()
{
    Q_INIT_RESOURCE(qml);
}

MainWindow::MainWindow(MainModel *model, Settings *settings, QWidget *parent)
    : QMainWindow(parent)
    , m_model(model)
    , m_settings(settings)
    , m_scene(new QQuickWidget(this))
    , m_statusLabel(new QLabel(this))
{
    setWindowTitle(QStringLiteral("Versewell"));
    resize(1040, 680);
    createScene();
    m_statusLabel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_statusLabel);
    statusBar()->setSizeGripEnabled(false);
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
    QQmlContext *context = m_scene->rootContext();
    context->setContextProperty(QStringLiteral("settings"), m_settings);
    context->setContextProperty(QStringLiteral("mainModel"), m_model);
    m_scene->setSource(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    setCentralWidget(m_scene);
    m_scene->setFocus();
}

QString MainWindow::sceneErrors() const
{
    QStringList lines;
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
    statusBar()->showMessage(tr("The list is full: %n file(s) left out", nullptr, count));
}

void MainWindow::saveState() const
{
    m_settings->save();
    QSettings store;
    if (!m_settings->saveFilesList())
        return;
    QStringList files;
    for (const QUrl &url : m_model->urls())
        files.append(url.toString(QUrl::FullyEncoded));
    store.setValue(SettingsKeys::filesList, files);
}
