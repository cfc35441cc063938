// SPDX-License-Identifier: MIT
#pragma once

#include <QThreadPool>

// For work that mostly waits, for a disk or another process, without end perhaps. While this lives, the global thread
// pool counts the thread that made it as none of its own, so that other work goes on: Qt itself converts large images
// there, and the window waits for that. To be made in a thread of the pool.
class UncountedThread
{
public:
    UncountedThread() { QThreadPool::globalInstance()->releaseThread(); }
    ~UncountedThread() { QThreadPool::globalInstance()->reserveThread(); }
    Q_DISABLE_COPY(UncountedThread)
};
