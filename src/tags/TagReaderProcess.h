// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

namespace tags {

// The child process that reads tags, and this end of the socket to it. A child of the whole process, whatever thread
// started it; for one thread at a time.
class TagReaderProcess
{
public:
    // Called with this one argument the program reads tags, with the socket as its standard input and output.
    static const char *const argument;

    // Starts the program; whether that worked tells isRunning(). Standard error and the environment are handed on,
    // nothing else.
    explicit TagReaderProcess(const QString &program);
    // Kills it. One that cannot die, since it waits for a dead disk, is left behind and collected later.
    ~TagReaderProcess();
    Q_DISABLE_COPY(TagReaderProcess)

    [[nodiscard]] bool isRunning() const { return m_pid > 0; }
    [[nodiscard]] int socket() const { return m_socket; }
    // The errno of starting it; 0 when it was started.
    [[nodiscard]] int startError() const { return m_startError; }

    // Never waits: false when it cannot be sent at once, which happens only to a process that does not listen.
    bool send(const QByteArray &message);
    // As recv(2), without waiting: 0 at the end of the stream, -1 when nothing has arrived.
    int receive(char *buffer, int size);

    // Kills it. True when its own limits on time had ended it before.
    bool end();

private:
    void start(const QByteArray &program, int childSocket);

    pid_t m_pid = -1;
    int m_socket = -1;
    int m_startError = 0;
};

} // namespace tags
