// SPDX-License-Identifier: MIT
#pragma once

#include "tags/ReadPatience.h"
#include "tags/TagReaderProtocol.h"

#include <QString>

#include <chrono>
#include <memory>
#include <vector>

namespace tags {

class TagReaderProcess;

// Reads tags through a process of its own, which a hostile file may kill, stall or take over without harm to the
// program. Starts that process when it is needed, ends it when a file takes too long, and starts another one after a
// pause that grows when files kill one after the other.
//
// read() is for one thread at a time, any thread but that of the window; stop() and skip() for any thread.
class TagReader
{
public:
    struct Limits
    {
        std::chrono::milliseconds start{10'000}; // a busy machine loads slowly
        std::chrono::milliseconds file{5'000};
        std::chrono::milliseconds slowFile{30'000};  // of a disk that has to start first; at most 255 s
        std::chrono::milliseconds retryStart{1'000}; // after a start that failed; doubled each time
        int filesOfProcess = 5'000;                  // it is renewed then, since parsers may leak
    };

    // `program`: what understands TagReaderProcess::argument.
    explicit TagReader(const QString &program);
    TagReader(const QString &program, const Limits &limits);
    ~TagReader();
    Q_DISABLE_COPY(TagReader)

    // Waits for the answer, and before for a process: that there is none is answered after the fifth start in a row
    // that failed, and from then on after each further one, with pauses of up to a minute. A failure with a process
    // that has read other files before is tried once more with a new one, so that no file stands for what others have
    // left.
    [[nodiscard]] TagSummary read(const QString &path, bool decodeCover, ReadPatience patience = ReadPatience::Usual);

    // Gives up the read under way, which answers that it stalled. Without effect on reads that begin later.
    void skip();
    // Lets read() return at once, now and from now on.
    void stop();

private:
    using Clock = std::chrono::steady_clock;
    enum class Wake { Readable, TimeOver, Skipped, Stopped };

    [[nodiscard]] bool isReady();
    [[nodiscard]] bool startProcess();
    void noteStartFailure();
    [[nodiscard]] TagSummary ask(const QString &path, bool decodeCover, ReadPatience patience);
    // Waits for the answer with this number.
    [[nodiscard]] ReadAnswer receive(quint32 number, std::chrono::milliseconds limit);
    [[nodiscard]] ReadFailure receiveMore(Clock::time_point deadline);
    void noteOutcome(ReadFailure failure);
    void endProcess();
    [[nodiscard]] bool isStopped() const;
    [[nodiscard]] Wake sleepUntil(Clock::time_point deadline, int socket = -1) const;

    const QString m_program;
    const Limits m_limits;
    std::unique_ptr<TagReaderProcess> m_process;
    MessageBuffer m_answers{maximumAnswerBytes};
    quint32 m_lastNumber = 0;
    int m_filesRead = 0; // by this process
    int m_endsInARow = 0;
    bool m_mayBeSkipped = false; // a file is read, and not the process started
    int m_startsFailed = 0;      // in a row
    Clock::time_point m_nextStart;
    std::chrono::milliseconds m_retryStart;
    std::vector<char> m_block; // what is received at once
    const int m_stopEvent;
    const int m_skipEvent;
};

} // namespace tags
