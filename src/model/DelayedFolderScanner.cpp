// SPDX-License-Identifier: MIT
#include "model/DelayedFolderScanner.h"

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
        if (m_walked->take(file.id, file.isLink))
            take(folder, file.name);
    }
    for (const Entry &subfolder : listing.folders) {
        if (m_progress->isCancelled())
            return;
        scan(joined(folder, subfolder.name));
    }
}

// The type that the directory entry tells, looked up on the disk only when it tells none or names a link.
static void lookUp(int directory, const dirent &entry, dev_t device, mode_t *type, WalkedEntries::Id *id)
{
    *type = DTTOIF(entry.d_type);
    *id = {device, entry.d_ino};
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return;
    struct stat status = {};
    const bool isThere = fstatat(directory, entry.d_name, &status, 0) == 0;
    *type = isThere ? status.st_mode & S_IFMT : 0;
    *id = {status.st_dev, status.st_ino};
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
        Entry entry;
        entry.name = found->d_name;
        // Hidden entries are left out, "." and ".." among them.
        if (m_progress->isCancelled() || entry.name.startsWith('.'))
            continue;
        entry.isLink = found->d_type == DT_LNK;
        lookUp(handle, *found, status.st_dev, &entry.type, &entry.id);
        if (!isWanted(entry, handle))
            continue;
        entry.sortKey = QFile::decodeName(entry.name).toLower();
        (entry.type == S_IFREG ? listing.files : listing.folders).push_back(std::move(entry));
    }
    std::sort(listing.files.begin(), listing.files.end());
    std::sort(listing.folders.begin(), listing.folders.end());
    return listing;
}

void DelayedFolderScanner::take(const QByteArray &folder, const QByteArray &name)
{
    const QByteArray path = joined(folder, name);
    if (!isUsable(path)) {
        m_progress->noteLeftOut();
        return;
    }
    m_files.append(QUrl::fromLocalFile(QFile::decodeName(path)));
    m_progress->noteFile(QFile::decodeName(name));
}
