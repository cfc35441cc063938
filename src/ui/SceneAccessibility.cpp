// SPDX-License-Identifier: MIT
#include "ui/SceneAccessibility.h"

#include "ui/SceneItemAccessibility.h"

#include <QApplication>
#include <QEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

namespace {

template<typename Test>
QQuickWidget *findScene(Test isIt)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *scene = qobject_cast<QQuickWidget *>(widget);
        if (scene && isIt(scene))
            return scene;
    }
    return nullptr;
}

QQuickWidget *sceneOf(QQuickWindow *window)
{
    return findScene([window](const QQuickWidget *scene) { return scene->quickWindow() == window; });
}

// By the engine: items are asked for before they lie in a window.
QQuickWidget *sceneOf(QQuickItem *item)
{
    return findScene([item](const QQuickWidget *scene) { return scene->engine() == qmlEngine(item); });
}

// The invisible window itself: nothing to see, nothing in it.
class HiddenWindow : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    [[nodiscard]] QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text) const override { return {}; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Client; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = true;
        return state;
    }
};

// Qt's own interface of an item, which is found when this factory has none; it is the last one that comes into Qt's
// cache for an item that is found there.
QAccessibleInterface *itemInterface(QQuickWidget *scene, QQuickItem *item)
{
    static bool isAskingQt = false;
    if (isAskingQt)
        return nullptr;
    isAskingQt = true;
    QAccessibleInterface *inner = QAccessible::queryAccessibleInterface(item);
    isAskingQt = false;
    return inner ? new SceneItemAccessibility(scene, inner) : nullptr;
}

// What it returns is owned by Qt's cache of interfaces.
QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *scene = qobject_cast<QQuickWidget *>(object))
        return new SceneAccessibility(scene);
    if (auto *window = qobject_cast<QQuickWindow *>(object))
        return sceneOf(window) ? new HiddenWindow(window) : nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    QQuickWidget *scene = item ? sceneOf(item) : nullptr;
    return scene ? itemInterface(scene, item) : nullptr;
}

// Hands every event on to the screen readers, but two that Qt 5.15 tells amiss: that the keyboard has come to the
// widget, which never acts on it, comes after the scene has told of its item; and that a row is or is not selected any
// more is told in a way that Qt's bridge to the bus takes no notice of.
void passOn(QAccessibleEvent *event)
{
    const bool isFocus = event->type() == QAccessible::Focus;
    auto *scene = isFocus ? qobject_cast<QQuickWidget *>(event->object()) : nullptr;
    QQuickItem *focused = scene ? scene->quickWindow()->activeFocusItem() : nullptr;
    const bool isSelection = event->type() == QAccessible::StateChanged && event->object() &&
                             static_cast<QAccessibleStateChangeEvent *>(event)->changedStates().selected;
    QAccessible::installUpdateHandler(nullptr);
    if (focused || isSelection) {
        QAccessibleEvent instead(focused ? focused : event->object(),
                                 focused ? QAccessible::Focus : QAccessible::Selection);
        QAccessible::updateAccessibility(&instead);
    } else {
        QAccessible::updateAccessibility(event);
    }
    QAccessible::installUpdateHandler(passOn);
}

// Keeps the invisible window where the scene is seen when the window around it moves, which the widget is not told:
// the places of all items on the screen are reckoned from there.
class PlaceKeeper : public QObject
{
public:
    explicit PlaceKeeper(QQuickWidget *scene)
        : QObject(scene)
        , m_scene(scene)
    {
        scene->window()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move)
            m_scene->quickWindow()->setPosition(m_scene->mapToGlobal({0, 0}));
        return QObject::eventFilter(watched, event);
    }

private:
    QQuickWidget *m_scene;
};

} // namespace

void SceneAccessibility::install(QQuickWidget *scene)
{
    // Qt Quick's own interfaces come with its first import, and what comes last is asked first.
    QQmlComponent(scene->engine()).setData("import QtQuick 2.2; Item {}", QUrl());
    QAccessible::installFactory(makeInterface); // once, however often it is called
    QAccessible::installUpdateHandler(passOn);
    new PlaceKeeper(scene); // owned by the scene
}

SceneAccessibility::SceneAccessibility(QQuickWidget *scene)
    : QAccessibleWidget(scene, QAccessible::Pane)
{
}

QQuickWidget *SceneAccessibility::scene() const
{
    return static_cast<QQuickWidget *>(widget());
}

int SceneAccessibility::childCount() const
{
    return child(0) ? 1 : 0;
}

QAccessibleInterface *SceneAccessibility::child(int index) const
{
    QQuickItem *root = index == 0 ? scene()->rootObject() : nullptr;
    return root ? QAccessible::queryAccessibleInterface(root) : nullptr;
}

int SceneAccessibility::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child == this->child(0) ? 0 : -1;
}

QAccessibleInterface *SceneAccessibility::childAt(int x, int y) const
{
    return rect().contains(x, y) ? child(0) : nullptr;
}

QAccessibleInterface *SceneAccessibility::focusChild() const
{
    QQuickItem *item = scene()->hasFocus() ? scene()->quickWindow()->activeFocusItem() : nullptr;
    return item ? QAccessible::queryAccessibleInterface(item) : nullptr;
}
