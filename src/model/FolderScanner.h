// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

#include <memory>

class FolderScanProgress;
class WalkedEntries;

// Turns folders into the audio files in them: keeps a queue of folders and walks one tree at a time on the thread pool.
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

    [[nodiscard]] bool processing() const { return m_current != nullptr; }
    // Paths of the folders still to be done; the one being walked is the first.
    [[nodiscard]] QStringList folders() const { return m_folders; }

    // For a progress text while a walk is under way: the name of its newest file, and how many it has found.
    Q_INVOKABLE QString lastFile() const;
    Q_INVOKABLE int lastCount() const;

signals:
    // True at the start of each walk, false once at the end of the last.
    void processingChanged(bool processing);
    void foldersChanged();
    // All files of one folder that was added, at the end of its walk and never empty: those of each folder by name,
    // before those of its subfolders. Their being regular files has been checked.
    void found(const QList<QUrl> &files);
    // After `found`: so many files of that folder are left out, since their names or paths cannot be used. Never 0.
    void filesLeftOut(int count);

public slots:
    void addFolders(const QList<QUrl> &folders);
    void scanned(const QString &folder, const QList<QUrl> &files);
    void scanNext();
    void addFolder(const QUrl &folder);
    // Ends the walk under way, which then reports no files, and empties the queue. A walk whose disk does not answer
    // within a tenth of a second is left to itself: it counts as ended, and other folders can be walked.
    void cancel();

private:
    [[nodiscard]] QString nameFilters() const;

    QStringList m_types;
    QStringList m_folders;
    std::shared_ptr<FolderScanProgress> m_current; // of the walk under way
    std::shared_ptr<WalkedEntries> m_walked;       // until the queue is empty
};
