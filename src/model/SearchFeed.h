// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelItem.h"

#include <QHash>
#include <QObject>

#include <map>

class ItemStore;
class LyricsSearch;

// Hands the songs of the list that wait for a search to the coordinator, in row order and ten at a time, and passes on
// its answers. An answer counts only while the song is still being searched for: not when the user has saved other
// lyrics or forced another search since, and not under names that are no longer the song's, which is searched for anew
// then. Main thread only.
class SearchFeed : public QObject
{
    Q_OBJECT

public:
    // The store is not owned.
    explicit SearchFeed(const ItemStore *items, QObject *parent = nullptr);

    // Not owned. Without a coordinator nothing is searched for.
    void setSearch(LyricsSearch *search);

    // How many searches the coordinator holds.
    [[nodiscard]] int searchCount() const;
    // Also of songs that have left the list.
    [[nodiscard]] bool isSearching(quint16 id) const;

    // Whether the item's names can be searched for; it becomes not suitable when they cannot.
    [[nodiscard]] bool admit(ModelItem *item) const;
    // Keeps step with the state of an item of the store.
    void follow(const ModelItem &item);
    // An item with this sequence number has left the store.
    void forget(quint64 sequence) { m_waiting.erase(sequence); }
    // Hands over what waits, until the coordinator holds its fill.
    void feed();

signals:
    // A search was handed to the coordinator.
    void started(const QString &artist, const QString &title);
    // An answer that counts, as LyricsSearch::searchFinished(); the next songs are handed over afterwards.
    void finished(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
                  const QString &errorString);
    void searchCountChanged(int count);

private:
    void take(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
              const QString &errorString);

    const ItemStore *const m_items;
    LyricsSearch *m_search = nullptr;
    std::map<quint64, quint16> m_waiting; // with tags loaded: from sequence number in the list to id
    QHash<quint16, SearchNames> m_asked;  // the names under which the coordinator searches
};
