// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPointer>

class QQuickItem;
class QQuickWidget;

// An item of a scene in a QQuickWidget as screen readers see it: what Qt says of it, but that it is visible when the
// widget is and disabled when the item is, that it has the focus when the keys act on it (SpokenFocus), and that the
// way up from the scene's root leads to the widget. Qt asks the window that the item is drawn in, which is never shown.
// Owned by Qt's cache of interfaces.
class SceneItemAccessibility : public QAccessibleInterface
{
public:
    // `inner` is Qt's interface of the item; it goes with this one.
    SceneItemAccessibility(QQuickWidget *scene, QAccessibleInterface *inner);
    ~SceneItemAccessibility() override;

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QAccessibleInterface *parent() const override;

    [[nodiscard]] bool isValid() const override { return m_inner->isValid(); }
    [[nodiscard]] QObject *object() const override { return m_inner->object(); }
    [[nodiscard]] QWindow *window() const override { return m_inner->window(); }
    [[nodiscard]] QAccessibleInterface *focusChild() const override { return m_inner->focusChild(); }
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override { return m_inner->childAt(x, y); }
    [[nodiscard]] QAccessibleInterface *child(int index) const override { return m_inner->child(index); }
    [[nodiscard]] int childCount() const override { return m_inner->childCount(); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override
    {
        return m_inner->indexOfChild(child);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override { return m_inner->text(kind); }
    void setText(QAccessible::Text kind, const QString &text) override { m_inner->setText(kind, text); }
    [[nodiscard]] QRect rect() const override { return m_inner->rect(); }
    [[nodiscard]] QAccessible::Role role() const override { return m_inner->role(); }
    [[nodiscard]] QColor foregroundColor() const override { return m_inner->foregroundColor(); }
    [[nodiscard]] QColor backgroundColor() const override { return m_inner->backgroundColor(); }
    void *interface_cast(QAccessible::InterfaceType type) override { return m_inner->interface_cast(type); }
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        return m_inner->relations(match);
    }

private:
    QPointer<QQuickWidget> m_scene;
    QAccessibleInterface *m_inner;
    QAccessible::Id m_innerId;
};
