// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

// Tells screen readers which item the keys act on where that item never has the keyboard itself, as in the menus of Qt
// Quick Controls 1: type SpokenFocus of the module com.quillmarsh. Main thread only.
class SpokenFocus : public QObject
{
    Q_OBJECT
    // Null: none; whoever has the keyboard is not told of once more. Not owned.
    Q_PROPERTY(QQuickItem *item READ item WRITE setItem NOTIFY itemChanged)

public:
    using QObject::QObject;

    // The module must know the type before a document with it is loaded.
    static void registerType();

    // Whether any object of this type says that the keys act on the item.
    [[nodiscard]] static bool isOn(const QQuickItem *item);

    [[nodiscard]] QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item);

signals:
    void itemChanged();

private:
    QPointer<QQuickItem> m_item;
};
