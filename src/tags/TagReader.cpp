// SPDX-License-Identifier: MIT
#include "tags/TagReader.h"

#include "tags/TagReaderProcess.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

using namespace std::chrono_literals;

constexpr int blockBytes = 64 * 1024;
// A start may fail since the machine is short of memory for a while, which is no song's fault.
constexpr int startsInARow = 5;
constexpr std::chrono::milliseconds longestRetryStart = 60s;

// How long to wait before a new process when so many in a row were lost on files. A few hostile files cost nothing; a
// folder of them must not keep the machine busy with starting programs.
std::chrono::milliseconds pauseAfter(int endsInARow)
{
    constexpr int endsForNothing = 3;
    constexpr int mostDoublings = 4;
    return endsInARow < endsForNothing ? 0ms : 50ms * (1 << std::min(endsInARow - endsForNothing, mostDoublings));
}

TagSummary failed(ReadFailure failure)
{
    TagSummary summary;
    summary.failure = failure;
    return summary;
}

// Whether the process is of no more use: it is gone or confused, or what it has left no longer fits its memory.
bool isEnd(ReadFailure failure)
{
    return failure > lastFailureOfFile || failure == ReadFailure::OutOfMemory;
}

} // namespace

TagReader::TagReader(const QString &program)
    : TagReader(program, Limits())
{
}

TagReader::TagReader(const QString &program, const Limits &limits)
    : m_program(program)
    , m_limits(limits)
    , m_retryStart(limits.retryStart)
    , m_block(std::size_t{blockBytes})
    , m_stopEvent(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_skipEvent(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

TagReader::~TagReader()
{
    for (const int event : {m_stopEvent, m_skipEvent}) {
        if (event >= 0)
            ::close(event);
    }
}

void TagReader::stop()
{
    ::eventfd_write(m_stopEvent, 1);
}

void TagReader::skip()
{
    ::eventfd_write(m_skipEvent, 1);
}

TagSummary TagReader::read(const QString &path, bool decodeCover, ReadPatience patience)
{
    eventfd_t skipsBefore = 0;
    (void)::eventfd_read(m_skipEvent, &skipsBefore);
    for (;;) {
        if (!isReady())
            return failed(ReadFailure::NoReader);
        const bool isFirstFile = m_filesRead == 0;
        TagSummary summary = ask(path, decodeCover, patience);
        noteOutcome(summary.failure);
        const bool mayBeInnocent = isEnd(summary.failure) && summary.failure != ReadFailure::Stalled && !isFirstFile;
        if (!mayBeInnocent)
            return summary;
    }
}

void TagReader::noteOutcome(ReadFailure failure)
{
    ++m_filesRead;
    m_endsInARow = isEnd(failure) ? m_endsInARow + 1 : 0;
    if (isEnd(failure) || m_filesRead >= m_limits.filesOfProcess)
        endProcess();
}

// Starting and ending

bool TagReader::isReady()
{
    if (isStopped())
        return false;
    while (!m_process) {
        if (sleepUntil(std::max(m_nextStart, Clock::now() + pauseAfter(m_endsInARow))) == Wake::Stopped)
            return false;
        if (startProcess())
            break;
        if (isStopped())
            endProcess();
        else
            noteStartFailure();
        if (m_startsFailed >= startsInARow)
            return false;
    }
    m_startsFailed = 0;
    m_retryStart = m_limits.retryStart;
    return true;
}

bool TagReader::startProcess()
{
    m_process = std::make_unique<TagReaderProcess>(m_program);
    m_answers = MessageBuffer(maximumAnswerBytes);
    m_filesRead = 0;
    m_lastNumber = 0;
    return m_process->isRunning() && receive(0, m_limits.start).summary.failure == ReadFailure::None;
}

void TagReader::noteStartFailure()
{
    if (m_startsFailed++ == 0) {
        const int error = m_process->startError();
        qCWarning(lcTags) << "the reader of tags could not be started:"
                          << (error != 0 ? std::strerror(error) : "it ended or said nothing");
    }
    m_nextStart = Clock::now() + m_retryStart;
    m_retryStart = std::min(2 * m_retryStart, longestRetryStart);
    endProcess();
}

void TagReader::endProcess()
{
    m_process.reset();
}

// Asking

TagSummary TagReader::ask(const QString &path, bool decodeCover, ReadPatience patience)
{
    const auto limit = patience == ReadPatience::Long ? m_limits.slowFile : m_limits.file;
    const auto seconds = std::clamp<qint64>(std::chrono::ceil<std::chrono::seconds>(limit).count(), 1, 255);
    const QByteArray request = encoded(ReadRequest{++m_lastNumber, path, decodeCover, static_cast<quint8>(seconds)});
    if (request.isEmpty())
        return {}; // the system knows no path so long: there is no such file
    // One that has died since shows when its answer is waited for.
    m_process->send(request);
    m_mayBeSkipped = true;
    const ReadAnswer answer = receive(m_lastNumber, limit);
    m_mayBeSkipped = false;
    return answer.summary;
}

ReadAnswer TagReader::receive(quint32 number, std::chrono::milliseconds limit)
{
    const Clock::time_point deadline = Clock::now() + limit;
    for (;;) {
        if (const std::optional<QByteArray> message = m_answers.next()) {
            const std::optional<ReadAnswer> answer = parseAnswer(*message);
            return answer && answer->number == number ? *answer : ReadAnswer{number, failed(ReadFailure::Nonsense)};
        }
        const ReadFailure failure = m_answers.isBroken() ? ReadFailure::Nonsense : receiveMore(deadline);
        if (failure != ReadFailure::None)
            return {number, failed(failure)};
    }
}

ReadFailure TagReader::receiveMore(Clock::time_point deadline)
{
    switch (sleepUntil(deadline, m_process->socket())) {
    case Wake::Stopped:
        return ReadFailure::NoReader;
    case Wake::TimeOver:
    case Wake::Skipped:
        return ReadFailure::Stalled;
    case Wake::Readable:
        break;
    }
    const int got = m_process->receive(m_block.data(), static_cast<int>(m_block.size()));
    if (got <= 0)
        return m_process->end() ? ReadFailure::Stalled : ReadFailure::Died;
    m_answers.append(m_block.data(), got);
    return ReadFailure::None;
}

bool TagReader::isStopped() const
{
    return sleepUntil(Clock::time_point()) == Wake::Stopped;
}

TagReader::Wake TagReader::sleepUntil(Clock::time_point deadline, int socket) const
{
    // -1 is passed over.
    std::array<pollfd, 3> waiting{pollfd{m_stopEvent, POLLIN, 0}, pollfd{m_mayBeSkipped ? m_skipEvent : -1, POLLIN, 0},
                                  pollfd{socket, POLLIN, 0}};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        const int count = ::poll(waiting.data(), waiting.size(), static_cast<int>(std::max(left, 0ms).count()));
        if (waiting[0].revents != 0)
            return Wake::Stopped;
        if (waiting[1].revents != 0)
            return Wake::Skipped;
        if (count > 0)
            return Wake::Readable;
        if (count == 0)
            return Wake::TimeOver;
        if (errno != EINTR)
            return Wake::TimeOver;
    }
}

} // namespace tags
