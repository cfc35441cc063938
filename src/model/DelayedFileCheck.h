// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QRunnable>
#include <QUrl>

#include <atomic>
#include <functional>
#include <memory>

// Looks at many files, to be run once on the thread pool, which deletes it after its run: a look at a disk that does
// not answer takes as long as it takes.
class DelayedFileCheck : public QObject, public QRunnable
{
    Q_OBJECT

public:
    // `waitFirst` is called before the first look.
    explicit DelayedFileCheck(const QList<QUrl> &urls, const std::function<void()> &waitFirst = {})
        : m_urls(urls)
        , m_waitFirst(waitFirst)
    {
    }

    // Ends the run when it is set; may be set from any thread, also after the run.
    [[nodiscard]] std::shared_ptr<std::atomic<bool>> cancelled() const { return m_cancelled; }
    // Whether the url names a regular local file, or a link to one.
    [[nodiscard]] static bool isFile(const QUrl &url);
    // Whether the url names a local folder, or a link to one.
    [[nodiscard]] static bool isFolder(const QUrl &url);
    // Whether a url that names no file may name one again: its folder is not there, or an empty place to mount at, or
    // cannot be asked. What was deleted from a folder that is there does not come back.
    [[nodiscard]] static bool isAway(const QUrl &url);

    void run() override;

signals:
    // Some more urls were looked at, in the order in which they were given: how many, those that name files, those that
    // are away, and those that name folders. The last signal comes at the end of the run, unless that was cancelled.
    void checked(int count, const QList<QUrl> &files, const QList<QUrl> &away, const QList<QUrl> &folders);

private:
    const QList<QUrl> m_urls;
    const std::function<void()> m_waitFirst;
    const std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};
