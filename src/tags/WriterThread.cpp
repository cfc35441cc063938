// SPDX-License-Identifier: MIT
#include "tags/WriterThread.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QThread>

#include <algorithm>

#include <unistd.h>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

// For a program that ends without having waited itself. Long enough for a network share that has gone to sleep.
constexpr std::chrono::seconds patienceAtEnd{30};

// Often enough to see what moves, seldom enough to cost nothing.
constexpr std::chrono::milliseconds lookInterval{200};

// What the thread of this process has read and written so far ("rchar" and "wchar", see proc(5)); empty where the
// system does not count.
QByteArray bytesMoved(int systemId)
{
    QFile counters(QStringLiteral("/proc/self/task/%1/io").arg(systemId));
    if (!counters.open(QIODevice::ReadOnly))
        return {};
    QByteArray moved;
    for (const QByteArray &line : counters.readAll().split('\n')) {
        if (line.startsWith("rchar:") || line.startsWith("wchar:"))
            moved += line;
    }
    return moved;
}

} // namespace

WriterThread &WriterThread::instance()
{
    // Never destroyed: a write that hangs in the kernel would still be using it, and a running QThread must not be
    // destroyed at all.
    static auto *const writer = new WriterThread;
    return *writer;
}

WriterThread::WriterThread() = default;
WriterThread::~WriterThread() = default;

QThread *WriterThread::thread()
{
    if (!m_thread) {
        m_thread = std::make_unique<QThread>();
        m_thread->setObjectName(QStringLiteral("tag writer"));
        QObject::connect(m_thread.get(), &QThread::started, noteSystemId); // called in the thread that starts
        qAddPostRoutine(stopAtEnd);
    }
    if (!m_thread->isRunning())
        m_thread->start(QThread::InheritPriority);
    return m_thread.get();
}

void WriterThread::noteSystemId()
{
    WriterThread &self = instance();
    const QMutexLocker locker(&self.m_mutex);
    self.m_systemId = ::gettid();
}

WriterThread::Ticket WriterThread::takeTicket()
{
    const QMutexLocker locker(&m_mutex);
    ++m_pending;
    return {this, [](WriterThread *writer) {
                writer->endWrite();
            }};
}

void WriterThread::endWrite()
{
    const QMutexLocker locker(&m_mutex);
    --m_pending;
    ++m_ended;
    m_stalled = false;
    m_writeEnded.wakeAll();
}

int WriterThread::pendingWrites() const
{
    const QMutexLocker locker(&m_mutex);
    return m_pending;
}

bool WriterThread::Progress::isSince(const Progress &earlier) const
{
    return m_ended != earlier.m_ended || m_steps != earlier.m_steps || m_moved != earlier.m_moved;
}

WriterThread::Progress WriterThread::progress() const
{
    const QMutexLocker locker(&m_mutex);
    return progressNow();
}

WriterThread::Progress WriterThread::progressNow() const
{
    Progress progress;
    progress.m_ended = m_ended;
    progress.m_steps = m_steps;
    progress.m_moved = bytesMoved(m_systemId);
    return progress;
}

bool WriterThread::waitForQueued(std::chrono::milliseconds withoutProgress)
{
    const QMutexLocker locker(&m_mutex);
    Progress before = progressNow();
    QDeadlineTimer deadline(withoutProgress);
    while (m_pending > 0) {
        const auto left = std::chrono::milliseconds(deadline.remainingTime());
        m_writeEnded.wait(&m_mutex, QDeadlineTimer(std::min(lookInterval, left)));
        const Progress now = progressNow();
        if (now.isSince(before)) {
            before = now;
            deadline = QDeadlineTimer(withoutProgress);
        } else if (deadline.hasExpired()) {
            m_stalled = true;
            return false;
        }
    }
    return true;
}

void WriterThread::stopAtEnd()
{
    WriterThread &self = instance();
    // Whoever waited in vain before is not made to wait again; the thread is then left to end with the process.
    const bool stalled = [&self] {
        const QMutexLocker locker(&self.m_mutex);
        return self.m_stalled;
    }();
    if (stalled || !self.waitForQueued(patienceAtEnd)) {
        qCWarning(lcTags) << "gave up" << self.pendingWrites() << "queued writes";
        return;
    }
    self.m_thread->quit();
    self.m_thread->wait();
    self.m_thread.reset();
}

} // namespace tags
