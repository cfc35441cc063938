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

DelayedFolderScanner::DelayedFolderScanner(const QString &folder, std::shared_ptr<WalkedEntries> walked)
    : m_folder(folder)
    , m_walked(std::move(walked))
{
}

void DelayedFolderScanner::run()
{
    const UncountedThread uncounted;
    m_files.clear();
    m_pattern = namePattern();
    if (!m_folder.isEmpty())
        scan(QFile::encodeName(m_folder));
    if (m_progress->isCancelled())
        m_files.clear();
    emit scanned(m_folder, m_files);
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
    for (const Entry &file : listing.files) {
        if (m_progress->isCancelled())
            return;
        take(folder, file);
    }
    for (const Entry &subfolder : listing.folders) {
        if (m_progress->isCancelled())
            return;
        scan(joined(folder, subfolder.name));
    }
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

void DelayedFolderScanner::take(const QByteArray &folder, const Entry &file)
{
    const QByteArray path = joined(folder, file.name);
    if (!isUsable(path)) {
        m_progress->noteLeftOut();
    } else if (m_walked->take(file.id, file.isLink)) {
        m_files.append(QUrl::fromLocalFile(QFile::decodeName(path)));
        m_progress->noteFile(QFile::decodeName(file.name));
    }
}
