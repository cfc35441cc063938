// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMutex>
#include <QWaitCondition>

#include <atomic>
#include <chrono>
#include <memory>

class QThread;

namespace tags {

// The one thread of the process that writes files, and the count of the writes that wait for it. It runs from first
// use until the application object is destroyed, which waits for the writes that are still queued.
// Everything but thread() may be called in any thread.
class WriterThread
{
public:
    static WriterThread &instance();

    // Started when it is not running. For the GUI thread.
    QThread *thread();

    // A write counts as queued until the last copy of its ticket is gone.
    using Ticket = std::shared_ptr<void>;
    Ticket takeTicket();

    [[nodiscard]] int pendingWrites() const;

    // A step was done whose bytes the system may not count for a thread, such as waiting until a part of a file is on
    // the disk.
    void noteProgress() { ++m_steps; }

    // How far the writes are: what has changed between two looks is progress. Where the system does not count a
    // thread's bytes, ends and steps alone tell a slow write from a dead one.
    class Progress
    {
    public:
        [[nodiscard]] bool isSince(const Progress &earlier) const;

    private:
        friend class WriterThread;
        quint64 m_ended = 0;
        quint64 m_steps = 0;
        QByteArray m_moved; // what the thread has read and written; empty where that is not counted
    };
    [[nodiscard]] Progress progress() const;

    // Blocks until no write is queued. False when for that long there was no progress: a large file on a slow stick is
    // waited for as long as bytes move.
    bool waitForQueued(std::chrono::milliseconds withoutProgress);

private:
    WriterThread();
    ~WriterThread();

    static void noteSystemId();
    static void stopAtEnd();
    void endWrite();
    [[nodiscard]] Progress progressNow() const; // with the mutex held

    std::unique_ptr<QThread> m_thread;
    mutable QMutex m_mutex;
    QWaitCondition m_writeEnded;
    int m_systemId = 0; // of the thread, as the system numbers threads; 0 until it runs
    int m_pending = 0;
    quint64 m_ended = 0;
    std::atomic<quint64> m_steps{0};
    bool m_stalled = false;
};

} // namespace tags
