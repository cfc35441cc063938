// SPDX-License-Identifier: MIT
#include "ui/SceneAccessibility.h"

#include <QApplication>
#include <QEvent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

namespace {

QQuickWidget *sceneOf(const QQuickWindow *window)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *scene = qobject_cast<QQuickWidget *>(widget);
        if (scene && scene->quickWindow() == window)
            return scene;
    }
    return nullptr;
}

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *scene = qobject_cast<QQuickWidget *>(object))
        return new SceneAccessibility(scene); // owned by Qt's cache of interfaces, as is the other
    const auto *window = qobject_cast<QQuickWindow *>(object);
    QQuickWidget *scene = window ? sceneOf(window) : nullptr;
    return scene ? new SceneWindowAccessibility(scene) : nullptr;
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

QAccessibleInterface *focusedItem(const QQuickWidget *scene)
{
    QQuickItem *item = scene->hasFocus() ? scene->quickWindow()->activeFocusItem() : nullptr;
    return item ? QAccessible::queryAccessibleInterface(item) : nullptr;
}

} // namespace

void SceneAccessibility::install(QQuickWidget *scene)
{
    QAccessible::installFactory(makeInterface); // once, however often it is called
    new PlaceKeeper(scene);                     // owned by the scene
}

SceneAccessibility::SceneAccessibility(QQuickWidget *scene)
    : QAccessibleWidget(scene, QAccessible::Pane)
{
}

QQuickWidget *SceneAccessibility::scene() const
{
    return static_cast<QQuickWidget *>(widget());
}

QAccessibleInterface *SceneAccessibility::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(scene()->quickWindow()) : nullptr;
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
    return focusedItem(scene());
}

SceneWindowAccessibility::SceneWindowAccessibility(QQuickWidget *scene)
    : QAccessibleObject(scene->quickWindow())
{
}

QQuickWidget *SceneWindowAccessibility::scene() const
{
    const auto *window = qobject_cast<QQuickWindow *>(QAccessibleObject::object());
    return window ? sceneOf(window) : nullptr;
}

QAccessibleInterface *SceneWindowAccessibility::sceneRoot() const
{
    QQuickItem *root = scene() ? scene()->rootObject() : nullptr;
    return root ? QAccessible::queryAccessibleInterface(root) : nullptr;
}

QAccessibleInterface *SceneWindowAccessibility::parent() const
{
    return scene() ? QAccessible::queryAccessibleInterface(scene()) : nullptr;
}

int SceneWindowAccessibility::childCount() const
{
    return sceneRoot() ? 1 : 0;
}

QAccessibleInterface *SceneWindowAccessibility::child(int index) const
{
    return index == 0 ? sceneRoot() : nullptr;
}

int SceneWindowAccessibility::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child == sceneRoot() ? 0 : -1;
}

QAccessibleInterface *SceneWindowAccessibility::childAt(int x, int y) const
{
    return rect().contains(x, y) ? sceneRoot() : nullptr;
}

QAccessibleInterface *SceneWindowAccessibility::focusChild() const
{
    return scene() ? focusedItem(scene()) : nullptr;
}

QString SceneWindowAccessibility::text(QAccessible::Text) const
{
    return {};
}

QRect SceneWindowAccessibility::rect() const
{
    return scene() ? QRect(scene()->mapToGlobal({0, 0}), scene()->size()) : QRect();
}

QAccessible::State SceneWindowAccessibility::state() const
{
    QAccessible::State state;
    state.invisible = !scene() || !scene()->isVisible();
    state.active = scene() && scene()->isActiveWindow();
    return state;
}
