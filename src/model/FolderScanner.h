// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QVector>

#include <chrono>
#include <memory>

class DelayedFolderScanner;
class FolderScanProgress;
class WalkedEntries;

// Turns folders into the audio files in them: keeps a queue of folders and walks one tree at a time on the thread pool.
// A folder whose disk does not answer for some seconds holds up nothing but what is in it: that is reported when the
// disk answers, whenever that may be.
//
// Main thread only; a walk that is still under way when the scanner goes is cancelled.
class FolderScanner : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool processing READ processing NOTIFY processingChanged)
    Q_PROPERTY(QStringList folders READ folders NOTIFY foldersChanged)

public:
    explicit FolderScanner(QObject *parent = nullptr);
    ~FolderScanner() override;

    // Extensions of the wanted files, without dots.
    void setTypes(const QStringList &types) { m_types = types; }
    // How long a disk may take for one answer, before others are asked. For tests.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }

    // Whether a walk is under way, or waits for a disk that does not answer.
    [[nodiscard]] bool processing() const { return m_current || !m_stalled.isEmpty(); }
    // Paths of the folders still to be done; the one being walked is the first.
    [[nodiscard]] QStringList folders() const { return m_folders; }

    // For a progress text while a walk is under way: the name of its newest file, and how many it has found. Of one
    // that waits for its disk when there is no other.
    Q_INVOKABLE QString lastFile() const;
    Q_INVOKABLE int lastCount() const;

signals:
    // True at the start of each walk, false once at the end of the last, also of those that wait for their disks.
    void processingChanged(bool processing);
    void foldersChanged();
    // All files of one folder that was added, at the end of its walk and never empty: those of each folder by name,
    // before those of its subfolders. Their being regular files has been checked. What is in a folder that did not
    // answer comes by itself.
    void found(const QList<QUrl> &files);
    // After `found`: so many files of that folder are left out, since their names or paths cannot be used. Never 0.
    void filesLeftOut(int count);

public slots:
    void addFolders(const QList<QUrl> &folders);
    void scanned(const QString &folder, const QList<QUrl> &files);
    void scanNext();
    void addFolder(const QUrl &folder);
    // Ends the walk under way and those that wait for their disks, which then report no files, and empties the queue. A
    // walk whose disk does not answer within a tenth of a second is left to itself: it counts as ended, and other
    // folders can be walked.
    void cancel();

private:
    using Progress = std::shared_ptr<FolderScanProgress>;

    [[nodiscard]] const FolderScanProgress *shown() const;
    [[nodiscard]] QString nameFilters() const;
    void walk(DelayedFolderScanner *walk);
    void passStalled();
    void cancelStalled();
    void reportLate(const Progress &walked, const QList<QUrl> &files);
    void report(const Progress &walked, const QList<QUrl> &files);

    QStringList m_types;
    QStringList m_folders;
    Progress m_current;                      // of the walk under way
    std::shared_ptr<WalkedEntries> m_walked; // until the queue is empty
    std::chrono::milliseconds m_patience = std::chrono::seconds(5);
    QTimer m_stallCheck;         // runs while there is a walk
    int m_stalls = 0;            // of the folder that is walked
    QVector<Progress> m_stalled; // walks whose disk may answer yet
};
