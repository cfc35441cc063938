// SPDX-License-Identifier: MIT
#include "tags/SavesMending.h"

#include <QMutex>

#include <thread>

namespace tags {

// Shared with the threads.
struct SavesMending::Work
{
    mutable QMutex mutex;
    QStringList unfinished;
    MendedSaves mended;
    SavesMending *listener = nullptr;

    void finish(const QString &song, const MendedSaves &result)
    {
        const QMutexLocker lock(&mutex);
        unfinished.removeOne(song);
        mended += result;
        if (listener)
            QMetaObject::invokeMethod(listener, &SavesMending::progressed, Qt::QueuedConnection);
    }
};

SavesMending::SavesMending(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_work(std::make_shared<Work>())
{
    const LeftOvers left = SaveJournal(folder).takeLeftOvers();
    m_work->listener = this;
    for (const QByteArray &entry : left.entries)
        m_work->unfinished.append(SaveJournal::songOf(entry));
    for (const QByteArray &entry : left.entries) {
        std::thread([work = m_work, folder, entry] {
            const QString song = SaveJournal::songOf(entry);
            work->finish(song, SaveJournal(folder).mendSong(entry));
        }).detach();
    }
    if (!left.notes.isEmpty())
        std::thread([folder, notes = left.notes] { SaveJournal(folder).removeCopies(notes); }).detach();
}

SavesMending::~SavesMending()
{
    const QMutexLocker lock(&m_work->mutex);
    m_work->listener = nullptr;
}

MendedSaves SavesMending::result() const
{
    const QMutexLocker lock(&m_work->mutex);
    MendedSaves result = m_work->mended;
    result.underWay += m_work->unfinished;
    return result;
}

bool SavesMending::isDone() const
{
    const QMutexLocker lock(&m_work->mutex);
    return m_work->unfinished.isEmpty();
}

} // namespace tags
