// SPDX-License-Identifier: MIT
#include "model/WalkedEntries.h"

bool WalkedEntries::enter(const Id &directory)
{
    const QMutexLocker lock(&m_mutex);
    return m_directories.insert(directory).second;
}

bool WalkedEntries::take(const Id &file, bool isLink)
{
    const QMutexLocker lock(&m_mutex);
    if (isLink)
        return m_files.count(file) == 0 && m_links.insert(file).second;
    m_files.insert(file);
    return m_keptLinks.erase(file) == 0; // the link stands for one of its names only
}

bool WalkedEntries::keepLink(const Id &file)
{
    const QMutexLocker lock(&m_mutex);
    return m_files.count(file) == 0 && m_keptLinks.insert(file).second;
}
