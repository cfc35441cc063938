// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QRunnable>
#include <QUrl>

#include <atomic>
#include <memory>

// Looks at many files, to be run once on the thread pool, which deletes it after its run: a look at a disk that does
// not answer takes as long as it takes.
class DelayedFileCheck : public QObject, public QRunnable
{
    Q_OBJECT

public:
    explicit DelayedFileCheck(const QList<QUrl> &urls)
        : m_urls(urls)
    {
    }

    // Ends the run when it is set; may be set from any thread, also after the run.
    [[nodiscard]] std::shared_ptr<std::atomic<bool>> cancelled() const { return m_cancelled; }
    // Whether the url names a regular local file, or a link to one.
    [[nodiscard]] static bool isFile(const QUrl &url);

    void run() override;

signals:
    // Some more urls were looked at, in the order in which they were given: how many, and those that name files. The
    // last signal comes at the end of the run, unless that was cancelled.
    void checked(int count, const QList<QUrl> &files);

private:
    const QList<QUrl> m_urls;
    const std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};
