// SPDX-License-Identifier: MIT
#include "ui/SceneItemAccessibility.h"

#include "ui/SpokenFocus.h"

#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

SceneItemAccessibility::SceneItemAccessibility(QQuickWidget *scene, QAccessibleInterface *inner)
    : m_scene(scene)
    , m_inner(inner)
    , m_innerId(QAccessible::uniqueId(inner))
{
}

SceneItemAccessibility::~SceneItemAccessibility()
{
    QAccessible::deleteAccessibleInterface(m_innerId);
}

QAccessible::State SceneItemAccessibility::state() const
{
    QAccessible::State state = m_inner->state();
    const auto *item = qobject_cast<QQuickItem *>(object());
    if (item && m_scene && item->window() == m_scene->quickWindow())
        state.invisible = !m_scene->isVisible() || !item->isVisible() || rect().isNull();
    if (item)
        state.disabled = !item->isEnabled();
    if (item && SpokenFocus::isOn(item)) {
        state.focusable = true;
        state.focused = true;
    }
    return state;
}

QAccessibleInterface *SceneItemAccessibility::parent() const
{
    QAccessibleInterface *parent = m_inner->parent();
    const bool isRoot = m_scene && parent && parent->object() == m_scene->quickWindow();
    return isRoot ? QAccessible::queryAccessibleInterface(m_scene) : parent;
}
