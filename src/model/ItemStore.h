// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelItem.h"

#include <QHash>
#include <QVector>

#include <memory>
#include <unordered_map>
#include <vector>

// The rows of the file list: owns the items and finds them by row, by id and by url.
//
// Each row has a sequence number that never changes and that sorts as the rows do; the row of an id is found by it.
// Nothing here walks the list for a single item.
class ItemStore
{
public:
    // An item that is not in the list, and the sequence number that it is to have there, or had.
    struct LooseItem
    {
        std::unique_ptr<ModelItem> item;
        quint64 sequence;
    };
    // Sequence numbers below this are left to items with places of their own, which stand before all that come without.
    static constexpr quint64 firstWithoutPlace = quint64(1) << 32U;

    [[nodiscard]] int count() const { return m_rows.size(); }
    [[nodiscard]] quint16 idAt(int row) const { return m_rows.at(row).id; }
    [[nodiscard]] ModelItem *itemAt(int row) const { return find(idAt(row)); }
    // Null when no item has this id.
    [[nodiscard]] ModelItem *find(quint16 id) const;
    // -1 when no item has this id.
    [[nodiscard]] int rowOf(quint16 id) const;
    // The row of this sequence number, or the one where it would be inserted.
    [[nodiscard]] int rowFor(quint64 sequence) const;
    [[nodiscard]] quint64 sequenceAt(int row) const { return m_rows.at(row).sequence; }
    [[nodiscard]] bool contains(const QUrl &url) const { return m_ids.contains(url); }
    // Null when no item has this url.
    [[nodiscard]] ModelItem *find(const QUrl &url) const { return contains(url) ? find(m_ids.value(url)) : nullptr; }
    // Path under which the item was inserted; empty when no item has this id.
    [[nodiscard]] QString pathOf(quint16 id) const;
    // Sorts as the rows do; the item must be there.
    [[nodiscard]] quint64 sequenceOf(quint16 id) const;

    // Behind those of all items.
    [[nodiscard]] quint64 nextSequence() { return m_nextSequence++; }
    // The items ascend by sequence number. Neither this nor their ids and urls may be in use here.
    void insert(std::vector<LooseItem> items);
    // Takes out the rows `first` to `last`.
    [[nodiscard]] std::vector<LooseItem> take(int first, int last);
    // Takes out rows that stand anywhere, in one pass; `rows` ascends.
    [[nodiscard]] std::vector<LooseItem> takeScattered(const QVector<int> &rows);

private:
    struct Row
    {
        quint64 sequence;
        quint16 id;
    };
    struct Entry
    {
        std::unique_ptr<ModelItem> item;
        quint64 sequence;
        QUrl url;
        QString path;
    };

    [[nodiscard]] LooseItem takeEntry(quint16 id);

    QVector<Row> m_rows;
    std::unordered_map<quint16, Entry> m_entries;
    QHash<QUrl, quint16> m_ids;
    quint64 m_nextSequence = firstWithoutPlace;
};
