// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>
#include <QString>

#include <atomic>

// What a walk tells while it is under way, and how it is told to stop. Shared between the walk, which the thread pool
// deletes at a time of its own, and whoever started it; may be used from any thread.
class FolderScanProgress
{
public:
    void cancel() { m_cancelled = true; }
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }
    // How many files were found so far.
    [[nodiscard]] int count() const { return m_count; }
    // How many entries could not be taken: their path is not valid in the encoding of the system, or too long to be
    // opened. A folder that is too deep counts as one.
    [[nodiscard]] int leftOut() const { return m_leftOut; }
    // Name of the file found last; empty before the first.
    [[nodiscard]] QString lastFile() const;
    void noteFile(const QString &name);
    void noteLeftOut() { ++m_leftOut; }

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<int> m_count = 0;
    std::atomic<int> m_leftOut = 0;
    mutable QMutex m_lastFileMutex;
    QString m_lastFile;
};
