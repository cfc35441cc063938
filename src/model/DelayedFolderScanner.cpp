// SPDX-License-Identifier: MIT
#include "model/DelayedFolderScanner.h"

#include <QFile>
#include <QVector>

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseDirectory
{
    void operator()(DIR *directory) const { closedir(directory); }
};

// The order in which Qt lists a directory: by name, without regard to case.
void sortByName(QVector<QByteArray> *names)
{
    QVector<std::pair<QString, QByteArray>> keyed;
    keyed.reserve(names->size());
    for (const QByteArray &name : qAsConst(*names))
        keyed.append({QFile::decodeName(name).toLower(), name});
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names->begin(), [](const auto &entry) { return entry.second; });
}

QByteArray joined(const QByteArray &folder, const QByteArray &name)
{
    return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

// The type that the directory entry tells, looked up on the disk only when it tells none or names a link.
mode_t typeOf(int directory, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return DTTOIF(entry.d_type);
    struct stat status = {};
    return fstatat(directory, entry.d_name, &status, 0) == 0 ? status.st_mode & S_IFMT : 0;
}

} // namespace

QString FolderScanProgress::lastFile() const
{
    const QMutexLocker lock(&m_lastFileMutex);
    return m_lastFile;
}

void FolderScanProgress::noteFile(const QString &name)
{
    ++m_count;
    const QMutexLocker lock(&m_lastFileMutex);
    m_lastFile = name;
}

struct DelayedFolderScanner::Listing
{
    QVector<QByteArray> files;
    QVector<QByteArray> folders;
};

DelayedFolderScanner::DelayedFolderScanner(const QString &folder)
    : m_folder(folder)
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
    for (const QByteArray &name : listing.files) {
        if (m_progress->isCancelled())
            return;
        take(folder, name);
    }
    for (const QByteArray &name : listing.folders) {
        if (m_progress->isCancelled())
            return;
        scan(joined(folder, name));
    }
}

// Whether this directory was not walked before.
bool DelayedFolderScanner::enter(int directory)
{
    struct stat status = {};
    return fstat(directory, &status) == 0 && m_walked.insert({status.st_dev, status.st_ino}).second;
}

// Readable files that match the filters, and readable folders, each sorted; nothing when the folder cannot be read.
DelayedFolderScanner::Listing DelayedFolderScanner::list(const QByteArray &folder)
{
    Listing listing;
    const std::unique_ptr<DIR, CloseDirectory> directory(opendir(folder.constData()));
    if (!directory || !enter(dirfd(directory.get())))
        return listing;
    const int handle = dirfd(directory.get());
    while (const dirent *entry = readdir(directory.get())) {
        const QByteArray name(entry->d_name);
        // Hidden entries are left out, "." and ".." among them.
        if (m_progress->isCancelled() || name.startsWith('.'))
            continue;
        const mode_t type = typeOf(handle, *entry);
        const bool isWantedFile = type == S_IFREG && m_pattern.match(QFile::decodeName(name)).hasMatch();
        if ((!isWantedFile && type != S_IFDIR) || faccessat(handle, entry->d_name, R_OK, AT_EACCESS) != 0)
            continue;
        (isWantedFile ? listing.files : listing.folders).append(name);
    }
    sortByName(&listing.files);
    sortByName(&listing.folders);
    return listing;
}

void DelayedFolderScanner::take(const QByteArray &folder, const QByteArray &name)
{
    m_files.append(QUrl::fromLocalFile(QFile::decodeName(joined(folder, name))));
    m_progress->noteFile(QFile::decodeName(name));
}
