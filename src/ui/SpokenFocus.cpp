// SPDX-License-Identifier: MIT
#include "ui/SpokenFocus.h"

#include <QAccessible>
#include <QtQml>

static constexpr char markName[] = "_versewell_spokenFocus"; // of a property of the item

void SpokenFocus::registerType()
{
    qmlRegisterType<SpokenFocus>("com.quillmarsh", 1, 0, "SpokenFocus");
}

bool SpokenFocus::isOn(const QQuickItem *item)
{
    return item->property(markName).toBool();
}

void SpokenFocus::setItem(QQuickItem *item)
{
    if (item == m_item)
        return;
    if (m_item)
        m_item->setProperty(markName, false);
    m_item = item;
    if (m_item) {
        m_item->setProperty(markName, true);
        QAccessibleEvent focus(m_item, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    }
    emit itemChanged();
}
