// SPDX-License-Identifier: MIT
#include "Measuring.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>

#include <algorithm>

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>
#include <unistd.h>

namespace {

bool isQuick = false;

double secondsOfClock(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double secondsOfChildren()
{
    rusage usage = {};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

} // namespace

double now()
{
    return secondsOfClock(CLOCK_MONOTONIC);
}

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

double processorSecondsOf(const std::function<void()> &work)
{
    const auto used = [] {
        return secondsOfClock(CLOCK_PROCESS_CPUTIME_ID) + secondsOfChildren();
    };
    const double before = used();
    work();
    return used() - before;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

Pair medianRound(int rounds, const std::function<double()> &work, const std::function<double()> &reference)
{
    std::vector<Pair> pairs;
    for (int round = 0; round < rounds; ++round) {
        const double before = reference();
        const double time = work();
        pairs.push_back({time, (before + reference()) / 2});
    }
    std::sort(pairs.begin(), pairs.end(), [](const Pair &first, const Pair &second) {
        return first.work * second.reference < second.work * first.reference;
    });
    return pairs.at(pairs.size() / 2);
}

int benchSize(int size)
{
    return isQuick ? size / 10 : size;
}

void makeBenchesQuick()
{
    isQuick = true;
}

double residentBytes()
{
    malloc_trim(0); // in the memory of all threads
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read how much memory is held");
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void turnUntil(const std::function<bool()> &isDone)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void turnFor(std::chrono::milliseconds time)
{
    QEventLoop loop; // which deletes what is to be deleted later
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

TurnWatch::TurnWatch()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &TurnWatch::tick);
    m_clock.start();
    m_workedUntil = secondsOfClock(CLOCK_THREAD_CPUTIME_ID);
    m_timer.start(1);
}

void TurnWatch::tick()
{
    const double worked = secondsOfClock(CLOCK_THREAD_CPUTIME_ID);
    const double wall = static_cast<double>(m_clock.nsecsElapsed()) / 1e6;
    const double work = (worked - m_workedUntil) * 1000;
    const double mostWork = std::max(m_longest.mostWork, work);
    m_longest = wall > m_longest.wall ? Turn{wall, work, mostWork} : Turn{m_longest.wall, m_longest.work, mostWork};
    m_workedUntil = worked;
    m_clock.start();
}
