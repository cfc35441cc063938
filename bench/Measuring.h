// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <vector>

// The moment in seconds, by a clock that is the same in all processes.
[[nodiscard]] double now();

// Wall time of the work in seconds: where waiting is what is measured.
[[nodiscard]] double secondsOf(const std::function<void()> &work);

// Processor time of the work in seconds, in all threads of this process, in the system, and in the processes that it
// has started and waited for: what else a busy machine does is not counted.
[[nodiscard]] double processorSecondsOf(const std::function<void()> &work);

// `work` between two runs of `reference`, so many times: the round of the median ratio, with the mean of its two
// references. A machine that grows slower or faster meanwhile hits both. Each is called for its time in seconds.
struct Pair
{
    double work = 0;
    double reference = 0;
};
[[nodiscard]] Pair medianRound(int rounds, const std::function<double()> &work,
                               const std::function<double()> &reference);

[[nodiscard]] double median(std::vector<double> values);

// The size that the table asks for, or a tenth of it where script/bench is told to be quick.
[[nodiscard]] int benchSize(int size);
void makeBenchesQuick();

// What the process holds of the machine's memory, in bytes, without what it has freed.
[[nodiscard]] double residentBytes();

// Lets the event loop of the main thread run until `isDone` says so; it is asked after each turn.
void turnUntil(const std::function<bool()> &isDone);
void turnFor(std::chrono::milliseconds time);

// The longest turn of the event loop of the main thread, in milliseconds.
struct Turn
{
    double wall = 0;     // what somebody at the window waits
    double work = 0;     // of the thread; the rest went to other threads and processes
    double mostWork = 0; // that the thread has done in any turn
};

// Watches the turns from its making on.
class TurnWatch : public QObject
{
public:
    TurnWatch();

    // By the clock on the wall.
    [[nodiscard]] Turn longest() const { return m_longest; }

private:
    void tick();

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_workedUntil = 0;
    Turn m_longest;
};
