// SPDX-License-Identifier: MIT
#pragma once

#include "tags/MediaInfoExtractor.h"

#include <QObject>
#include <QVector>

#include <map>

class ItemStore;

// Which songs of the list are still to be read, and the one that is: they are read one at a time, from top to bottom.
// Songs that took too long, on a disk that sleeps perhaps, are tried once more, with more patience, when nothing else
// is left to read; the songs beside them have their turn before that, behind all others. Main thread only.
class ReadQueue : public QObject
{
    Q_OBJECT

public:
    // The store is not owned.
    explicit ReadQueue(const ItemStore *items, QObject *parent = nullptr);

    // The program that reads tags (tags/MediaInfoExtractor.h). To be set before items are added.
    void setReaderProgram(const QString &path) { m_reader.setReaderProgram(path); }
    // For the end of the program: a read under way is given up.
    void stop() { m_reader.stop(); }

    // Of an item of the store.
    void add(quint16 id);
    // Of one that has left the store. When it was being read, nothing is until requestNext() is called.
    void remove(quint16 id, quint64 sequence);
    // Puts an overtaken or unreadable item back among the unread ones. While a read is under way it waits for its turn,
    // lest that read be overtaken as well.
    void readAgain(quint16 id);
    void requestNext();

    [[nodiscard]] bool isReading() const { return m_current != none; }
    [[nodiscard]] bool isInFlight(quint16 id) const { return m_inFlight.contains(id); }
    // In flight, but the reader has been given a newer request since.
    [[nodiscard]] bool isOvertaken(quint16 id) const { return id != m_current && isInFlight(id); }
    // The same, and the reader was at it then. Otherwise its answer was lost, which no song's may be.
    [[nodiscard]] bool isOvertakenDuringRead(quint16 id) const { return id == m_overtaken && isOvertaken(id); }

    // A result of the reader; nothing happens when no item in flight has this path.
    void take(const QString &file, const MediaFileTags &tags);

signals:
    // What the reader has found; to be handed to take().
    void infoExtracted(const QString &file, const MediaFileTags &tags);
    // Once for each read, with its last result. The next read is requested afterwards.
    void tagsRead(quint16 id, const MediaFileTags &tags);

private:
    // From sequence number in the list to id.
    using Queue = std::map<quint64, quint16>;
    static constexpr int none = -1;

    void putSlowReadBack();
    void putNeighboursBehind(const QString &file);

    const ItemStore *const m_items;
    MediaInfoExtractor m_reader;
    Queue m_unread; // no read in flight
    Queue m_behind; // likewise, beside songs that took too long
    Queue m_slow;   // took too long once
    int m_stallsInARow = 0;
    QVector<quint16> m_inFlight;
    int m_current = none;   // id of the newest request while it is unanswered
    int m_overtaken = none; // id of the last one that the reader was at when a newer one came
    bool m_isCurrentSlow = false;
};
