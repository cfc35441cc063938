// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVector>

class ItemStore;
class ModelItem;

// The songs whose last write failed, and why: it tells the songs, and counts them by their reasons. Main thread only.
class FailedWrites : public QObject
{
    Q_OBJECT

public:
    // Not owned; must outlive the object.
    explicit FailedWrites(const ItemStore *items, QObject *parent = nullptr);

    // The last write of this song failed; `isForeignChange`: since another program has changed the file, which the user
    // is told.
    void note(ModelItem *item, const QString &reason, bool isForeignChange);
    // These songs, which may have left the list, were saved or need not be any more. However many they are, one signal
    // a reason.
    void forget(const QVector<quint16> &ids);
    [[nodiscard]] bool isForeignChangeTold(quint16 id) const { return m_foreignChanges.contains(id); }

signals:
    // For so many songs the last write failed for this one reason; at every failure.
    void counted(const QString &reason, int count);
    // So many are left of them.
    void left(const QString &reason, int count);

private:
    const ItemStore *m_items;
    QHash<quint16, QString> m_reasons; // by ids
    QHash<QString, int> m_counts;      // by reasons
    QSet<quint16> m_foreignChanges;
};
