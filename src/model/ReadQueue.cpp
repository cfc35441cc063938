// SPDX-License-Identifier: MIT
#include "model/ReadQueue.h"

#include "model/ItemStore.h"

#include <algorithm>
#include <iterator>

// Compared with the number of reads in flight; see requestNext().
constexpr int readLimit = 1;

ReadQueue::ReadQueue(const ItemStore *items, QObject *parent)
    : QObject(parent)
    , m_items(items)
{
    connect(&m_reader, &MediaInfoExtractor::infoExtracted, this, &ReadQueue::infoExtracted);
}

void ReadQueue::add(quint16 id)
{
    m_unread.emplace(m_items->sequenceOf(id), id);
}

void ReadQueue::remove(quint16 id, quint64 sequence)
{
    m_unread.erase(sequence);
    m_behind.erase(sequence);
    m_slow.erase(sequence);
    m_inFlight.removeOne(id);
    if (m_current == id)
        m_current = none;
}

void ReadQueue::readAgain(quint16 id)
{
    m_inFlight.removeOne(id);
    add(id);
    if (!isReading() || m_isCurrentSlow)
        requestNext();
}

void ReadQueue::requestNext()
{
    if (m_unread.empty() && !isReading()) {
        m_unread.swap(m_behind);
        m_stallsInARow = 0;
    }
    if (!m_unread.empty())
        putSlowReadBack();
    // "Greater than", not "at least", is meant: while one read is in flight a second one is still asked for. The tag
    // reader then drops the read that was overtaken; its item keeps its place in flight and gets no tags until it is
    // removed or a search of it is forced, and the one place left keeps all further reads strictly one after another.
    if (m_inFlight.size() > readLimit || (m_unread.empty() && (m_slow.empty() || isReading())))
        return;
    m_isCurrentSlow = m_unread.empty();
    Queue &queue = m_isCurrentSlow ? m_slow : m_unread;
    const quint16 id = queue.begin()->second;
    queue.erase(queue.begin());
    m_inFlight.append(id);
    if (isReading())
        m_overtaken = m_reader.isReading() ? m_current : none;
    m_current = id;
    m_reader.request(m_items->pathOf(id), m_isCurrentSlow ? tags::ReadPatience::Long : tags::ReadPatience::Usual);
}

// Nobody waits for a slow read: the reader gives it up for the next request, and it is tried again at the end.
void ReadQueue::putSlowReadBack()
{
    if (!isReading() || !m_isCurrentSlow)
        return;
    const auto id = static_cast<quint16>(m_current);
    m_inFlight.removeOne(id);
    m_slow.emplace(m_items->sequenceOf(id), id);
    m_current = none;
}

// Their disk may have gone, or sleep, and nobody should wait for it once a song. With each song that stalls right after
// another one a higher folder counts: the albums of one disk lie in many.
void ReadQueue::putNeighboursBehind(const QString &file)
{
    QString folder = file;
    for (int level = 0; level <= m_stallsInARow; ++level)
        folder.truncate(std::max(folder.lastIndexOf(QLatin1Char('/')), 0));
    ++m_stallsInARow;
    folder += QLatin1Char('/');
    for (auto unread = m_unread.begin(); unread != m_unread.end();) {
        const auto next = std::next(unread);
        if (m_items->pathOf(unread->second).startsWith(folder))
            m_behind.insert(m_unread.extract(unread));
        unread = next;
    }
}

void ReadQueue::take(const QString &file, const MediaFileTags &tags)
{
    const auto found = std::find_if(m_inFlight.begin(), m_inFlight.end(),
                                    [this, &file](quint16 id) { return m_items->pathOf(id) == file; });
    if (found == m_inFlight.end())
        return;
    const quint16 id = *found;
    const bool isCurrent = m_current == id;
    const bool isStalled = tags.readFailure() == tags::ReadFailure::Stalled;
    if (!isStalled)
        m_stallsInARow = 0;
    if (isStalled && !(isCurrent && m_isCurrentSlow)) {
        m_slow.emplace(m_items->sequenceOf(id), id);
        putNeighboursBehind(file);
    } else {
        emit tagsRead(id, tags);
    }
    m_inFlight.removeOne(id);
    if (isCurrent)
        m_current = none;
    requestNext();
}
