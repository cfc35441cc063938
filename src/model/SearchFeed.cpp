// SPDX-License-Identifier: MIT
#include "model/SearchFeed.h"

#include "lyrics/LyricsSearch.h"
#include "model/ItemStore.h"

// How many searches the coordinator may hold at once.
static constexpr int searchLimit = 10;

SearchFeed::SearchFeed(const ItemStore *items, QObject *parent)
    : QObject(parent)
    , m_items(items)
{
}

void SearchFeed::setSearch(LyricsSearch *search)
{
    if (m_search)
        disconnect(m_search, nullptr, this, nullptr);
    m_search = search;
    m_asked.clear();
    if (!m_search)
        return;
    connect(m_search, &LyricsSearch::searchFinished, this, &SearchFeed::take);
    connect(m_search, &LyricsSearch::searchCountChanged, this, &SearchFeed::searchCountChanged);
}

int SearchFeed::searchCount() const
{
    return m_search ? m_search->searchCount() : 0;
}

bool SearchFeed::isSearching(quint16 id) const
{
    return m_search && m_search->isSearching(id);
}

bool SearchFeed::admit(ModelItem *item) const
{
    const SearchNames names = item->searchArtistTitle();
    if (m_search && m_search->canSearch(names.artist, names.title))
        return true;
    item->setErrorString(QString()); // what an earlier search met says nothing of such names
    item->setProcessState(ModelItem::ProcessNotSuitable);
    return false;
}

void SearchFeed::follow(const ModelItem &item)
{
    const quint64 sequence = m_items->sequenceOf(item.id());
    if (item.processState() == ModelItem::ProcessWaiting && item.tagsLoaded())
        m_waiting.emplace(sequence, item.id());
    else
        m_waiting.erase(sequence);
}

void SearchFeed::feed()
{
    while (m_search && m_search->searchCount() < searchLimit && !m_waiting.empty()) {
        const quint16 id = m_waiting.begin()->second;
        if (isSearching(id))
            return; // an earlier search of it is still under way; its end feeds again
        ModelItem *item = m_items->find(id);
        if (!admit(item))
            continue;
        const SearchNames names = item->searchArtistTitle();
        m_asked.insert(id, names);
        m_search->search(id, names.artist, names.title);
        emit started(names.artist, names.title);
        item->setProcessState(ModelItem::ProcessWorking);
    }
}

void SearchFeed::take(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
                      const QString &errorString)
{
    const SearchNames asked = m_asked.take(id);
    ModelItem *item = m_items->find(id);
    if (item && item->processState() == ModelItem::ProcessWorking) {
        const SearchNames names = item->searchArtistTitle();
        if (names.artist == asked.artist && names.title == asked.title)
            emit finished(id, artist, title, lyrics, errorString);
        else
            item->setProcessState(ModelItem::ProcessWaiting);
    }
    feed();
}
