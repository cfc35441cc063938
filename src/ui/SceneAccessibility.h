// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class QQuickWidget;

// Lets screen readers into the scene: the widget with the scene's root as its one child, which needs an accessible
// role. Qt 5.15 shows nothing inside a QQuickWidget; it takes the invisible window that the scene is drawn in for a
// window of the program, and all items for invisible.
//
// The items' interfaces are Qt's own, but for their state and the root's parent; what happens to them is told as screen
// readers understand it. Main thread only.
class SceneAccessibility : public QAccessibleWidget
{
public:
    // Before the scene is loaded. The widget lies in a window already and stays in it.
    static void install(QQuickWidget *scene);

    explicit SceneAccessibility(QQuickWidget *scene);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

private:
    [[nodiscard]] QQuickWidget *scene() const;
};
