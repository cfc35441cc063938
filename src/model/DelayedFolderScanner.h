// SPDX-License-Identifier: MIT
#pragma once

#include "model/FolderScanProgress.h"
#include "model/WalkedEntries.h"

#include <QList>
#include <QObject>
#include <QRegularExpression>
#include <QRunnable>
#include <QString>
#include <QUrl>

#include <memory>

// One walk over a folder tree, to be run once on the global thread pool, which deletes it after its run. It takes no
// other work's place there, however long it waits for its disk.
//
// Every real directory is walked once, however many symbolic links lead to it, so that loops end; those that links lead
// to come last. Only regular files (and links to such) are taken, each once, and none is opened: the file itself where
// the walk comes past it, else the first link. Hidden files and folders are left out, and so are those
// that nobody could open by their path; these are counted.
class DelayedFolderScanner : public QObject, public QRunnable
{
    Q_OBJECT

public:
    // Of all that is in the folder, or what is left of such a walk. The entries are those that earlier walks of the
    // queue came past.
    DelayedFolderScanner(const QString &folder, std::shared_ptr<WalkedEntries> walked);
    DelayedFolderScanner(const QString &folder, std::shared_ptr<WalkedEntries> walked, FolderScanProgress::Work work);

    // Comma-separated wildcards, matched without regard to case; "*.mp3,*.m4a" unless set.
    void setNameFilters(const QString &filters) { m_nameFilters = filters; }
    [[nodiscard]] std::shared_ptr<FolderScanProgress> progress() const { return m_progress; }

    void run() override;

    // What is reported of these files: no links to files that were taken themselves.
    [[nodiscard]] static QList<QUrl> report(const std::vector<FolderScanProgress::File> &files, WalkedEntries *walked);

signals:
    // At the end of every run: the files in the order of their discovery; none when the run was cancelled.
    void scanned(const QString &folder, const QList<QUrl> &files);

private:
    struct Listing;
    struct Entry;

    [[nodiscard]] QRegularExpression namePattern() const;
    void scan(const QByteArray &folder);
    [[nodiscard]] Listing list(const QByteArray &folder);
    [[nodiscard]] bool isWanted(const Entry &entry, int directory) const;
    void take(const QByteArray &folder, const Entry &file, FolderScanProgress::Work *found);

    const QString m_folder;
    QString m_nameFilters = QStringLiteral("*.mp3,*.m4a");
    QRegularExpression m_pattern;
    const std::shared_ptr<WalkedEntries> m_walked;
    const std::shared_ptr<FolderScanProgress> m_progress;
};
