// SPDX-License-Identifier: MIT
#include "model/ItemStore.h"

#include <algorithm>

ModelItem *ItemStore::find(quint16 id) const
{
    const auto entry = m_entries.find(id);
    return entry == m_entries.end() ? nullptr : entry->second.item.get();
}

int ItemStore::rowOf(quint16 id) const
{
    const auto entry = m_entries.find(id);
    return entry == m_entries.end() ? -1 : rowFor(entry->second.sequence);
}

int ItemStore::rowFor(quint64 sequence) const
{
    const auto row = std::lower_bound(m_rows.begin(), m_rows.end(), sequence,
                                      [](const Row &r, quint64 wanted) { return r.sequence < wanted; });
    return static_cast<int>(row - m_rows.begin());
}

QString ItemStore::pathOf(quint16 id) const
{
    const auto entry = m_entries.find(id);
    return entry == m_entries.end() ? QString() : entry->second.path;
}

quint64 ItemStore::sequenceOf(quint16 id) const
{
    const auto entry = m_entries.find(id);
    Q_ASSERT(entry != m_entries.end());
    return entry->second.sequence;
}

void ItemStore::insert(std::vector<LooseItem> items)
{
    const int countBefore = count();
    for (LooseItem &loose : items) {
        const quint16 id = loose.item->id();
        const QUrl url = loose.item->url();
        Q_ASSERT(!find(id) && !contains(url));
        m_rows.append({loose.sequence, id});
        m_ids.insert(url, id);
        m_entries.emplace(id, Entry{std::move(loose.item), loose.sequence, url, url.toLocalFile()});
    }
    std::inplace_merge(m_rows.begin(), m_rows.begin() + countBefore, m_rows.end(),
                       [](const Row &a, const Row &b) { return a.sequence < b.sequence; });
}

ItemStore::LooseItem ItemStore::takeEntry(quint16 id)
{
    auto node = m_entries.extract(id);
    m_ids.remove(node.mapped().url);
    return {std::move(node.mapped().item), node.mapped().sequence};
}

std::vector<ItemStore::LooseItem> ItemStore::take(int first, int last)
{
    std::vector<ItemStore::LooseItem> taken;
    taken.reserve(static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1);
    for (int row = first; row <= last; ++row)
        taken.push_back(takeEntry(idAt(row)));
    m_rows.remove(first, last - first + 1);
    return taken;
}

std::vector<ItemStore::LooseItem> ItemStore::takeScattered(const QVector<int> &rows)
{
    std::vector<ItemStore::LooseItem> taken;
    taken.reserve(static_cast<std::size_t>(rows.size()));
    QVector<Row> kept;
    kept.reserve(count() - rows.size());
    auto next = rows.begin();
    for (int row = 0; row < count(); ++row) {
        if (next != rows.end() && *next == row) {
            taken.push_back(takeEntry(idAt(row)));
            ++next;
        } else {
            kept.append(m_rows.at(row));
        }
    }
    m_rows = kept;
    return taken;
}
