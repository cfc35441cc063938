// SPDX-License-Identifier: MIT
#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP};
int pipeEnds[2] = {-1, -1};

// Does only what a signal handler may do: the byte wakes the event loop.
void wakeEventLoop(int)
{
    const int savedErrno = errno;
    const char byte = 0;
    const ssize_t written = write(pipeEnds[1], &byte, 1);
    static_cast<void>(written); // a full pipe has woken the loop already
    errno = savedErrno;
}

void handle(int signalNumber, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(signalNumber, &action, nullptr);
}

// Whoever started the program wants it to go on, as nohup does.
bool isIgnored(int signalNumber)
{
    struct sigaction action = {};
    return sigaction(signalNumber, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(pipeEnds[0], &byte, 1) > 0) {
        }
        emit received();
    });
    for (const int signalNumber : handledSignals) {
        if (!isIgnored(signalNumber))
            handle(signalNumber, wakeEventLoop);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signalNumber : handledSignals) {
        if (!isIgnored(signalNumber))
            handle(signalNumber, SIG_DFL);
    }
    for (int &end : pipeEnds) {
        if (end >= 0)
            close(end);
        end = -1;
    }
}
