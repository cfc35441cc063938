// SPDX-License-Identifier: MIT
#include "ui/SceneWidget.h"

#include "model/MainModel.h"
#include "ui/ButtonImageProvider.h"
#include "ui/FileImageProvider.h"
#include "ui/Pictures.h"
#include "ui/SceneAccessibility.h"
#include "ui/SceneEngine.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickWindow>
#include <QResizeEvent>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

// The version of Qt that the scene is told, as one number: it opens its menus in the way of 5.5 and later.
static constexpr int qtVersion = 551;

static const char listWidthName[] = "listWidth";

// So long the frame has to reach the screen before the thread is busy again.
static constexpr std::chrono::milliseconds frameTime(10);
// A window that nobody sees is not painted; by then one that is seen has been.
static constexpr std::chrono::seconds framePatience(2);

// A line for each module of the scene that is not installed, with the Debian package that holds it. Sound is left out:
// without it the scene is loaded as well.
static QStringList missingModules(const QStringList &importPaths)
{
    QStringList lines;
    const auto check = [&lines, &importPaths](const QString &folder, const QString &package) {
        const bool isInstalled = std::any_of(importPaths.begin(), importPaths.end(), [&folder](const QString &path) {
            return QFileInfo::exists(path + QLatin1Char('/') + folder + QLatin1String("/qmldir"));
        });
        if (!isInstalled)
            lines.append(SceneWidget::tr("The Qt module %1 is missing (package %2).").arg(folder, package));
    };
    check(QStringLiteral("QtQuick.2"), QStringLiteral("qml-module-qtquick2"));
    check(QStringLiteral("QtQuick/Window.2"), QStringLiteral("qml-module-qtquick-window2"));
    check(QStringLiteral("QtQuick/Layouts"), QStringLiteral("qml-module-qtquick-layouts"));
    check(QStringLiteral("QtQuick/Controls"), QStringLiteral("qml-module-qtquick-controls"));
    return lines;
}

SceneWidget::SceneWidget(SceneEngine *engine, const Names &names, const MainModel *model, QWidget *parent)
    : QQuickWidget(engine, parent)
{
    initPictures();
    setResizeMode(SizeRootObjectToView);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    for (const auto &[name, object] : names)
        rootContext()->setContextProperty(name, object);
    auto *covers = new FileImageProvider;
    covers->setModel(model);
    // Both are owned by the engine.
    engine->addImageProvider(QStringLiteral("btnimage"), new ButtonImageProvider);
    engine->addImageProvider(QStringLiteral("file-cover"), covers);
    connect(quickWindow(), &QQuickWindow::activeFocusItemChanged, this, &SceneWidget::watchFocus);
    connect(quickWindow(), &QQuickWindow::afterRendering, this, [this] { m_isRendered = true; });
    QTimer::singleShot(framePatience, this, &SceneWidget::endFirstFrame);
    SceneAccessibility::install(this);
    setSource(SceneEngine::document());
    if (rootObject())
        rootObject()->setProperty("qtVersion", qtVersion);
    connectRoot("partFailed(QUrl)", this, "reportPart(QUrl)");
}

SceneWidget::~SceneWidget()
{
    // The scene goes with the base class and moves its focus then.
    disconnect(quickWindow(), nullptr, this, nullptr);
}

QString SceneWidget::loadErrors() const
{
    // Those that the first frame does without are needed as well.
    QStringList lines = missingModules(engine()->importPathList());
    for (const QQmlError &error : errors())
        lines.append(error.toString());
    return lines.join(QLatin1Char('\n'));
}

void SceneWidget::connectRoot(const char *signal, QObject *receiver, const char *slot) const
{
    const QObject *root = rootObject();
    const int signalIndex = root ? root->metaObject()->indexOfSignal(signal) : -1;
    const int slotIndex = receiver->metaObject()->indexOfSlot(slot);
    Q_ASSERT(slotIndex >= 0);
    if (signalIndex >= 0)
        connect(root, root->metaObject()->method(signalIndex), receiver, receiver->metaObject()->method(slotIndex));
}

int SceneWidget::listWidth() const
{
    return rootObject() ? rootObject()->property(listWidthName).toInt() : 0;
}

void SceneWidget::setListWidth(int width)
{
    if (rootObject() && width > 0)
        rootObject()->setProperty(listWidthName, width);
}

void SceneWidget::setBlocked(bool blocked)
{
    if (rootObject())
        rootObject()->setProperty("blocked", blocked);
}

QSize SceneWidget::leastSize() const
{
    const QQuickItem *root = rootObject();
    return root ? QSize(root->property("leastWidth").toInt(), root->property("leastHeight").toInt()) : QSize(0, 0);
}

void SceneWidget::focusLyrics()
{
    setFocus();
    if (rootObject())
        QMetaObject::invokeMethod(rootObject(), "focusLyrics");
}

QQuickItem *SceneWidget::firstTabStop() const
{
    return rootObject() ? rootObject()->nextItemInFocusChain(true) : nullptr;
}

bool SceneWidget::focusNextPrevChild(bool next)
{
    QQuickItem *current = quickWindow()->activeFocusItem();
    QQuickItem *first = firstTabStop();
    if (!current || !first)
        return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): past the scene
    QQuickItem *beyond = next ? first : first->nextItemInFocusChain(false);
    const bool isAtEnd = current->nextItemInFocusChain(next) == beyond;
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): QQuickWidget would keep the keyboard in the scene
    return isAtEnd ? QWidget::focusNextPrevChild(next) : QQuickWidget::focusNextPrevChild(next);
}

void SceneWidget::focusInEvent(QFocusEvent *event)
{
    QQuickWidget::focusInEvent(event);
    QQuickItem *first = firstTabStop();
    if (first && event->reason() == Qt::TabFocusReason)
        first->forceActiveFocus(Qt::TabFocusReason);
    else if (first && event->reason() == Qt::BacktabFocusReason)
        first->nextItemInFocusChain(false)->forceActiveFocus(Qt::BacktabFocusReason);
}

void SceneWidget::watchFocus()
{
    QQuickItem *item = quickWindow()->activeFocusItem();
    watchText(item);
    disconnect(m_focusHidden);
    if (!item)
        return;
    // Not at once: much may be changing.
    m_focusHidden = connect(item, &QQuickItem::visibleChanged, this, &SceneWidget::rescueFocus, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &SceneWidget::rescueFocus, Qt::QueuedConnection);
}

// What is hidden keeps the keyboard in Qt, and of what is disabled or deleted its scope gets it, where no key does
// anything.
void SceneWidget::rescueFocus()
{
    const QQuickItem *item = quickWindow()->activeFocusItem();
    if (item && rootObject() && (!item->isVisible() || item->isFocusScope()))
        QMetaObject::invokeMethod(rootObject(), "rescueKeyboard");
}

void SceneWidget::watchText(QQuickItem *item)
{
    if (m_focusedText)
        m_focusedText->removeEventFilter(this);
    const bool isText = item && (item->inherits("QQuickTextEdit") || item->inherits("QQuickTextInput"));
    m_focusedText = isText ? item : nullptr;
    if (isText)
        item->installEventFilter(this);
    if (isText && !hasFocus())
        setFocus(); // F2 begins an edit from a button of the window, too
}

void SceneWidget::paintEvent(QPaintEvent *event)
{
    QQuickWidget::paintEvent(event);
    if (!m_isRendered || !std::exchange(m_isFirstPaint, false))
        return;
    QMetaObject::invokeMethod(this, &SceneWidget::firstFramePainted, Qt::QueuedConnection);
    QTimer::singleShot(frameTime, this, &SceneWidget::endFirstFrame);
}

void SceneWidget::resizeEvent(QResizeEvent *event)
{
    QQuickWidget::resizeEvent(event);
    if (event->size() == size())
        return;
    // A scene that needs more room at this width has resized the widget, and Qt forgets to tell that of a widget that
    // is being shown.
    QResizeEvent last(size(), event->size());
    QQuickWidget::resizeEvent(&last);
}

void SceneWidget::endFirstFrame()
{
    if (!m_isFirstFrame)
        return;
    m_isFirstFrame = false;
    if (rootObject())
        rootObject()->setProperty("complete", true);
    if (!m_isPartMissing)
        emit firstFrameShown();
}

void SceneWidget::reportPart(const QUrl &source)
{
    m_isPartMissing = true;
    const QString reason = QQmlComponent(engine(), source).errorString();
    QTimer::singleShot(0, this, [this, reason] { emit partFailed(reason); }); // not while the scene makes its parts
}

void SceneWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        engine()->retranslate();
    QQuickWidget::changeEvent(event);
}

bool SceneWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_focusedText && event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Delete) || key->matches(QKeySequence::SelectAll)) {
            key->accept();
            return true;
        }
    }
    return QQuickWidget::eventFilter(watched, event);
}
