// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QObject>

class QQuickWidget;

// Lets screen readers into the scene. Qt 5.15 shows them nothing inside a QQuickWidget, and takes the invisible window
// that the scene is drawn in for a window of the program.
//
// With this, the widget has that invisible window as its one child and the window has the scene's root, which needs an
// accessible role; what lies below is Qt's own. Main thread only.
class SceneAccessibility : public QAccessibleWidget
{
public:
    // After the scene was loaded: what Qt Quick brings itself comes with its first import, and the last one that comes
    // is asked first. The widget lies in a window already and stays in it.
    static void install(QQuickWidget *scene);

    explicit SceneAccessibility(QQuickWidget *scene);

    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

private:
    [[nodiscard]] QQuickWidget *scene() const;
};

// The invisible window as a node between the widget and the scene's root.
class SceneWindowAccessibility : public QAccessibleObject
{
public:
    explicit SceneWindowAccessibility(QQuickWidget *scene);

    // None: with one, Qt would count it among the program's windows.
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *parent() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Client; }
    [[nodiscard]] QAccessible::State state() const override;

private:
    // Null while the widget goes.
    [[nodiscard]] QQuickWidget *scene() const;
    [[nodiscard]] QAccessibleInterface *sceneRoot() const;
};
