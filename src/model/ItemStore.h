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
// Rows keep the order in which they were appended, so each has a sequence number that never changes and that sorts as
// the rows do; the row of an id is found by it. Nothing here walks the list for a single item.
class ItemStore
{
public:
    // An item that has left the list, and the sequence number it had.
    struct Taken
    {
        std::unique_ptr<ModelItem> item;
        quint64 sequence;
    };

    [[nodiscard]] int count() const { return m_rows.size(); }
    [[nodiscard]] quint16 idAt(int row) const { return m_rows.at(row).id; }
    [[nodiscard]] ModelItem *itemAt(int row) const { return find(idAt(row)); }
    // Null when no item has this id.
    [[nodiscard]] ModelItem *find(quint16 id) const;
    // -1 when no item has this id.
    [[nodiscard]] int rowOf(quint16 id) const;
    [[nodiscard]] bool contains(const QUrl &url) const { return m_ids.contains(url); }
    // Null when no item has this url.
    [[nodiscard]] ModelItem *find(const QUrl &url) const { return contains(url) ? find(m_ids.value(url)) : nullptr; }
    // Path under which the item was appended; empty when no item has this id.
    [[nodiscard]] QString pathOf(quint16 id) const;
    // Sorts as the rows do; the item must be there.
    [[nodiscard]] quint64 sequenceOf(quint16 id) const;

    // The item's id and url must not be in use here.
    void append(std::unique_ptr<ModelItem> item);
    // Takes out the rows `first` to `last`.
    [[nodiscard]] std::vector<Taken> take(int first, int last);
    // Takes out rows that stand anywhere, in one pass; `rows` ascends.
    [[nodiscard]] std::vector<Taken> takeScattered(const QVector<int> &rows);

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

    [[nodiscard]] Taken takeEntry(quint16 id);

    QVector<Row> m_rows;
    std::unordered_map<quint16, Entry> m_entries;
    QHash<QUrl, quint16> m_ids;
    quint64 m_nextSequence = 0;
};
