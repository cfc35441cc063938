// SPDX-License-Identifier: MIT
#include "model/DelayedFolderScanner.h"

#include "tags/UncountedThread.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <tuple>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseDirectory
{
    void operator()(DIR *directory) const { closedir(directory); }
};

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

// Whether the path can be opened by those who get it as text.
bool isUsable(const QByteArray &path)
{
    return path.size() < PATH_MAX && QFile::encodeName(QFile::decodeName(path)) == path;
}

} // namespace

struct DelayedFolderScanner::Entry
{
    static Entry of(const dirent &found, int directory, dev_t device);

    QByteArray name;
    QString sortKey;
    mode_t type = 0;
    bool isLink = false;
    WalkedEntries::Id id;

    // The order in which Qt lists a directory: by name, without regard to case.
    bool operator<(const Entry &other) const { return std::tie(sortKey, name) < std::tie(other.sortKey, other.name); }
};

struct DelayedFolderScanner::Listing
{
    std::vector<Entry> files;
    std::vector<Entry> folders;
};

static FolderScanProgress::Work allOf(const QString &folder)
{
    FolderScanProgress::Work work;
    if (!folder.isEmpty())
        work.folders.push_back(QFile::encodeName(folder));
    return work;
}

DelayedFolderScanner::DelayedFolderScanner(const QString &folder, std::shared_ptr<WalkedEntries> walked)
    : DelayedFolderScanner(folder, std::move(walked), allOf(folder))
{
}

DelayedFolderScanner::DelayedFolderScanner(const QString &folder, std::shared_ptr<WalkedEntries> walked,
                                           FolderScanProgress::Work work)
    : m_folder(folder)
    , m_walked(std::move(walked))
    , m_progress(std::make_shared<FolderScanProgress>(std::move(work)))
{
}

void DelayedFolderScanner::run()
{
    const UncountedThread uncounted;
    m_pattern = namePattern();
    while (const std::optional<QByteArray> folder = m_progress->nextFolder())
        scan(*folder);
    emit scanned(m_folder, report(m_progress->finish(), m_walked.get()));
}

QList<QUrl> DelayedFolderScanner::report(const std::vector<FolderScanProgress::File> &files, WalkedEntries *walked)
{
    QList<QUrl> urls;
    for (const FolderScanProgress::File &file : files) {
        if (!file.isLink || walked->keepLink(file.id))
            urls.append(file.url);
    }
    return urls;
}

QRegularExpression DelayedFolderScanner::namePattern() const
{
    QStringList patterns;
    for (const QString &filter : m_nameFilters.split(QLatin1Char(',')))
        patterns.append(QRegularExpression::wildcardToRegularExpression(filter));
    QRegularExpression pattern(patterns.join(QLatin1Char('|')), QRegularExpression::CaseInsensitiveOption);
    pattern.optimize();
    return pattern;
}

// The files of a folder come before those of its subfolders.
void DelayedFolderScanner::scan(const QByteArray &folder)
{
    const Listing listing = list(folder);
    FolderScanProgress::Work found;
    for (const Entry &file : listing.files)
        take(folder, file, &found);
    for (const Entry &subfolder : listing.folders) {
        if (subfolder.isLink)
            found.linkedFolders.push_back(joined(folder, subfolder.name));
        else
            found.folders.push_back(joined(folder, subfolder.name));
    }
    std::reverse(found.folders.begin(), found.folders.end());
    m_progress->add(std::move(found));
}

// Type and identity are looked up on the disk only when the directory entry tells no type or names a link.
DelayedFolderScanner::Entry DelayedFolderScanner::Entry::of(const dirent &found, int directory, dev_t device)
{
    Entry entry;
    entry.name = found.d_name;
    entry.type = DTTOIF(found.d_type);
    entry.isLink = found.d_type == DT_LNK;
    entry.id = {device, found.d_ino};
    if (found.d_type == DT_UNKNOWN || entry.isLink) {
        struct stat status = {};
        const bool isThere = fstatat(directory, found.d_name, &status, 0) == 0;
        entry.type = isThere ? status.st_mode & S_IFMT : 0;
        entry.id = {status.st_dev, status.st_ino};
    }
    return entry;
}

bool DelayedFolderScanner::isWanted(const Entry &entry, int directory) const
{
    const bool isKind =
        entry.type == S_IFDIR || (entry.type == S_IFREG && m_pattern.match(QFile::decodeName(entry.name)).hasMatch());
    return isKind && faccessat(directory, entry.name.constData(), R_OK, AT_EACCESS) == 0;
}

// Readable files that match the filters, and readable folders, each sorted; nothing when the folder cannot be read.
DelayedFolderScanner::Listing DelayedFolderScanner::list(const QByteArray &folder)
{
    Listing listing;
    const std::unique_ptr<DIR, CloseDirectory> directory(opendir(folder.constData()));
    if (!directory && errno == ENAMETOOLONG)
        m_progress->noteLeftOut();
    struct stat status = {};
    if (!directory || fstat(dirfd(directory.get()), &status) != 0 || !m_walked->enter({status.st_dev, status.st_ino}))
        return listing;
    const int handle = dirfd(directory.get());
    while (const dirent *found = readdir(directory.get())) {
        m_progress->noteMove();
        // Hidden entries are left out, "." and ".." among them.
        if (m_progress->isCancelled() || found->d_name[0] == '.')
            continue;
        Entry entry = Entry::of(*found, handle, status.st_dev);
        if (!isWanted(entry, handle))
            continue;
        entry.sortKey = QFile::decodeName(entry.name).toLower();
        (entry.type == S_IFREG ? listing.files : listing.folders).push_back(std::move(entry));
    }
    std::sort(listing.files.begin(), listing.files.end());
    std::sort(listing.folders.begin(), listing.folders.end());
    return listing;
}

void DelayedFolderScanner::take(const QByteArray &folder, const Entry &file, FolderScanProgress::Work *found)
{
    const QByteArray path = joined(folder, file.name);
    if (!isUsable(path)) {
        m_progress->noteLeftOut();
    } else if (m_walked->take(file.id, file.isLink)) {
        found->files.push_back({QUrl::fromLocalFile(QFile::decodeName(path)), file.id, file.isLink});
        m_progress->noteFile(QFile::decodeName(file.name));
    }
}
