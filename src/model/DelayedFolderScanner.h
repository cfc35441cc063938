// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMutex>
#include <QObject>
#include <QRegularExpression>
#include <QRunnable>
#include <QString>
#include <QUrl>

#include <atomic>
#include <memory>
#include <set>
#include <utility>

// What a walk tells while it is under way, and how it is told to stop. Shared between the walk, which the thread pool
// deletes at a time of its own, and whoever started it; may be used from any thread.
class FolderScanProgress
{
public:
    void cancel() { m_cancelled = true; }
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }
    // How many files were found so far.
    [[nodiscard]] int count() const { return m_count; }
    // Name of the file found last; empty before the first.
    [[nodiscard]] QString lastFile() const;
    void noteFile(const QString &name);

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<int> m_count = 0;
    mutable QMutex m_lastFileMutex;
    QString m_lastFile;
};

// One walk over a folder tree, to be run once on the thread pool, which deletes it after its run.
//
// Every real directory is walked once, however many symbolic links lead to it, so that loops end; only regular files
// (and links to such) are taken, and none is opened. Hidden files and folders are left out.
class DelayedFolderScanner : public QObject, public QRunnable
{
    Q_OBJECT

public:
    explicit DelayedFolderScanner(const QString &folder);

    // Comma-separated wildcards, matched without regard to case; "*.mp3,*.m4a" unless set.
    void setNameFilters(const QString &filters) { m_nameFilters = filters; }
    [[nodiscard]] std::shared_ptr<FolderScanProgress> progress() const { return m_progress; }

    void run() override;

signals:
    // At the end of every run: the files in the order of their discovery; none when the run was cancelled.
    void scanned(const QString &folder, const QList<QUrl> &files);

private:
    // A directory as the file system knows it: device and inode.
    using DirectoryId = std::pair<quint64, quint64>;
    struct Listing;

    [[nodiscard]] QRegularExpression namePattern() const;
    void scan(const QByteArray &folder);
    [[nodiscard]] bool enter(int directory);
    [[nodiscard]] Listing list(const QByteArray &folder);
    void take(const QByteArray &folder, const QByteArray &name);

    const QString m_folder;
    QString m_nameFilters = QStringLiteral("*.mp3,*.m4a");
    QRegularExpression m_pattern;
    std::set<DirectoryId> m_walked;
    QList<QUrl> m_files;
    const std::shared_ptr<FolderScanProgress> m_progress = std::make_shared<FolderScanProgress>();
};
