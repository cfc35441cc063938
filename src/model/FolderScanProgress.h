// SPDX-License-Identifier: MIT
#pragma once

#include "model/WalkedEntries.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QMutex>
#include <QString>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <deque>
#include <optional>
#include <vector>

// How far a walk has come, what it tells while it is under way, and how it is told to stop. Shared between the walk,
// which the thread pool deletes at a time of its own, and whoever started it; may be used from any thread.
class FolderScanProgress
{
public:
    struct File
    {
        QUrl url;
        WalkedEntries::Id id;
        bool isLink;
    };
    // What was found, and which folders are still to be walked.
    struct Work
    {
        std::vector<File> files;              // in the order of their discovery
        std::vector<QByteArray> folders;      // the next one is the last
        std::deque<QByteArray> linkedFolders; // come behind all others; the next one is the first
    };

    explicit FolderScanProgress(Work work);

    void cancel() { m_cancelled = true; }
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }
    // Whether the walk has got no answer from its disk for that long.
    [[nodiscard]] bool isStalled(std::chrono::milliseconds patience) const;
    // Leaves to the walk no more than the folder that it is at, and what is in that.
    [[nodiscard]] Work giveUpOthers();
    // Leaves to the walk all that it has not found yet.
    [[nodiscard]] std::vector<File> giveUpFiles();
    // How many files were found so far.
    [[nodiscard]] int count() const { return m_count; }
    // How many entries could not be taken, since the last call: their path is not valid in the encoding of the system,
    // or too long to be opened. A folder that is too deep counts as one.
    [[nodiscard]] int takeLeftOut() { return m_leftOut.exchange(0); }
    // Name of the file found last; empty before the first.
    [[nodiscard]] QString lastFile() const;

    // For the walk. Nothing when it was cancelled or has come to its end.
    [[nodiscard]] std::optional<QByteArray> nextFolder();
    void noteMove();
    void noteFile(const QString &name);
    void noteLeftOut() { ++m_leftOut; }
    void add(Work found);
    // The end: what was found.
    [[nodiscard]] std::vector<File> finish();

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<int> m_count;
    std::atomic<int> m_leftOut = 0;
    mutable QMutex m_mutex; // for all below
    Work m_work;
    QString m_lastFile;
    QElapsedTimer m_sinceMove; // valid while the walk runs
};
