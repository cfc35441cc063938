// SPDX-License-Identifier: MIT
#include "tags/TagReaderProcess.h"

#include <QFile>
#include <QMutex>
#include <QVector>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tags {

namespace {

// A killed process is gone within a millisecond unless it waits for a disk.
constexpr int reapTries = 200;
constexpr int reapPauseMs = 1;

// Those that could not be collected yet, of all reader processes of this program.
class LeftBehind
{
public:
    void add(pid_t pid)
    {
        const QMutexLocker lock(&m_mutex);
        m_pids.append(pid);
    }
    void collect()
    {
        const QMutexLocker lock(&m_mutex);
        const auto isGone = [](pid_t pid) {
            return ::waitpid(pid, nullptr, WNOHANG) != 0;
        };
        m_pids.erase(std::remove_if(m_pids.begin(), m_pids.end(), isGone), m_pids.end());
    }

private:
    QMutex m_mutex;
    QVector<pid_t> m_pids;
};

// Those with which the reader process's own limits on time end it.
bool isTimeSignal(int signal)
{
    return signal == SIGALRM || signal == SIGXCPU;
}

LeftBehind &leftBehind()
{
    static LeftBehind processes;
    return processes;
}

// What the child is given: the socket as standard input and output and no other open file, default signals, and a
// process group of its own, so that Ctrl+C in a terminal ends the program in order and does not look like a crash on
// a file.
class SpawnSetup
{
public:
    explicit SpawnSetup(int childSocket)
    {
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, childSocket, STDIN_FILENO);
        ::posix_spawn_file_actions_adddup2(&actions, childSocket, STDOUT_FILENO);
        ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
        ::posix_spawnattr_init(&attributes);
        sigset_t signalSet;
        ::sigemptyset(&signalSet);
        ::posix_spawnattr_setsigmask(&attributes, &signalSet);
        for (const int signal : {SIGPIPE, SIGALRM, SIGXCPU, SIGTERM, SIGINT, SIGHUP})
            ::sigaddset(&signalSet, signal);
        ::posix_spawnattr_setsigdefault(&attributes, &signalSet);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnSetup()
    {
        ::posix_spawn_file_actions_destroy(&actions);
        ::posix_spawnattr_destroy(&attributes);
    }
    Q_DISABLE_COPY(SpawnSetup)

    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
};

} // namespace

const char *const TagReaderProcess::argument = "--read-tags";

TagReaderProcess::TagReaderProcess(const QString &program)
{
    leftBehind().collect();
    std::array<int, 2> ends{-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        m_startError = errno;
        return;
    }
    m_socket = ends[0];
    start(QFile::encodeName(program), ends[1]);
    ::close(ends[1]);
}

void TagReaderProcess::start(const QByteArray &program, int childSocket)
{
    const SpawnSetup setup(childSocket);
    QByteArray name = QByteArrayLiteral("versewell");
    QByteArray word = argument;
    const std::array<char *, 3> arguments{name.data(), word.data(), nullptr};
    m_startError =
        ::posix_spawn(&m_pid, program.constData(), &setup.actions, &setup.attributes, arguments.data(), environ);
    if (m_startError != 0)
        m_pid = -1;
}

TagReaderProcess::~TagReaderProcess()
{
    end();
    if (m_socket >= 0)
        ::close(m_socket);
}

bool TagReaderProcess::send(const QByteArray &message)
{
    const auto size = static_cast<std::size_t>(message.size());
    return ::send(m_socket, message.constData(), size, MSG_DONTWAIT | MSG_NOSIGNAL) == message.size();
}

int TagReaderProcess::receive(char *buffer, int size)
{
    return static_cast<int>(::recv(m_socket, buffer, static_cast<std::size_t>(size), MSG_DONTWAIT));
}

bool TagReaderProcess::end()
{
    if (m_pid <= 0)
        return false;
    int status = 0;
    pid_t gone = ::waitpid(m_pid, &status, WNOHANG);
    if (gone == 0)
        ::kill(m_pid, SIGKILL); // without effect on one that is ending already, whatever the reason
    for (int tries = 0; gone == 0 && tries < reapTries; ++tries) {
        ::poll(nullptr, 0, reapPauseMs);
        gone = ::waitpid(m_pid, &status, WNOHANG);
    }
    if (gone == 0)
        leftBehind().add(m_pid);
    const bool outOfTime = gone == m_pid && WIFSIGNALED(status) && isTimeSignal(WTERMSIG(status));
    m_pid = -1;
    return outOfTime;
}

} // namespace tags
