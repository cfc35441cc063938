// SPDX-License-Identifier: MIT
#include "model/DelayedFileCheck.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

// What was found is told after this time, so that the first files show while a slow disk still answers for the others.
constexpr qint64 reportIntervalMs = 100;

bool DelayedFileCheck::isFile(const QUrl &url)
{
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
}

bool DelayedFileCheck::isFolder(const QUrl &url)
{
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir();
}

bool DelayedFileCheck::isAway(const QUrl &url)
{
    if (!url.isLocalFile())
        return false;
    const QString path = url.toLocalFile();
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0)
        return false; // something else than a file
    if (errno != ENOENT && errno != ENOTDIR)
        return true;
    const QDir folder = QFileInfo(path).dir();
    return !folder.exists() || folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void DelayedFileCheck::run()
{
    if (m_waitFirst)
        m_waitFirst();
    QElapsedTimer sinceReport;
    sinceReport.start();
    QList<QUrl> files;
    QList<QUrl> away;
    QList<QUrl> folders;
    int count = 0;
    for (int i = 0; i < m_urls.size() && !*m_cancelled; ++i) {
        ++count;
        if (isFile(m_urls.at(i)))
            files.append(m_urls.at(i));
        else if (isFolder(m_urls.at(i)))
            folders.append(m_urls.at(i));
        else if (isAway(m_urls.at(i)))
            away.append(m_urls.at(i));
        if (i + 1 < m_urls.size() && !sinceReport.hasExpired(reportIntervalMs))
            continue;
        emit checked(count, files, away, folders);
        files.clear();
        away.clear();
        folders.clear();
        count = 0;
        sinceReport.restart();
    }
}
