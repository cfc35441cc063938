// SPDX-License-Identifier: MIT
#include "model/FailedWrites.h"

#include "model/ItemStore.h"
#include "model/ModelItem.h"

FailedWrites::FailedWrites(const ItemStore *items, QObject *parent)
    : QObject(parent)
    , m_items(items)
{
}

void FailedWrites::note(ModelItem *item, const QString &reason, bool isForeignChange)
{
    const quint16 id = item->id();
    if (m_reasons.value(id) != reason) {
        forget({id});
        m_reasons.insert(id, reason);
        ++m_counts[reason];
    }
    if (isForeignChange)
        m_foreignChanges.insert(id);
    item->setErrorString(reason);
    item->setWriteError(reason);
    emit counted(reason, m_counts.value(reason));
}

void FailedWrites::forget(const QVector<quint16> &ids)
{
    QSet<QString> reasons;
    for (const quint16 id : ids) {
        m_foreignChanges.remove(id);
        const QString reason = m_reasons.take(id);
        if (reason.isEmpty())
            continue;
        if (--m_counts[reason] == 0)
            m_counts.remove(reason);
        reasons.insert(reason);
        if (ModelItem *item = m_items->find(id))
            item->setWriteError(QString());
    }
    for (const QString &reason : qAsConst(reasons))
        emit left(reason, m_counts.value(reason));
}
