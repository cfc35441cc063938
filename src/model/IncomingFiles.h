// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <atomic>
#include <functional>
#include <memory>

// Files on their way into the list: those of a kept list are looked at first, on the thread pool, and all of them come
// out in blocks, from the event loop, so that the window goes on living while many become rows. Main thread only.
class IncomingFiles : public QObject
{
    Q_OBJECT

public:
    explicit IncomingFiles(QObject *parent = nullptr);
    ~IncomingFiles() override;

    // Takes a list that was kept across runs; once. `waitFirst` is called on the thread pool before the first look.
    void restore(const QList<QUrl> &urls, const std::function<void()> &waitFirst);
    // Takes files that are known to be regular; the first block of them comes out before this returns.
    void add(const QList<QUrl> &files);

    // What is still to come out.
    [[nodiscard]] QList<QUrl> waiting() const { return m_known + m_unchecked; }
    // Files of the kept list whose disk is away: they do not come out, and are to be kept on.
    [[nodiscard]] QList<QUrl> away() const { return m_away; }
    void forgetAway() { m_away.clear(); }

signals:
    // In the order in which they were taken. `isFirst` says that no block came right before this one.
    void block(const QList<QUrl> &files, bool isFirst);

private:
    void takeChecked(int count, const QList<QUrl> &files, const QList<QUrl> &away);
    void emitBlock();

    QList<QUrl> m_unchecked; // of the kept list
    QList<QUrl> m_known;
    QList<QUrl> m_away;
    QTimer m_nextBlock; // runs while there are known files
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};
