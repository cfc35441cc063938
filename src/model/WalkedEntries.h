// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>
#include <QtGlobal>

#include <set>
#include <utility>

// What the walks of one queue have come past, so that symbolic links lead nowhere twice: neither round in circles nor
// to a file under a second path. May be used from any thread.
class WalkedEntries
{
public:
    // An entry as the file system knows it: device and inode.
    using Id = std::pair<quint64, quint64>;

    // Whether this directory was not walked before.
    [[nodiscard]] bool enter(const Id &directory);
    // Whether this file was not taken before. Hard links are files of their own: to write one of them parts them.
    [[nodiscard]] bool take(const Id &file, bool isLink);
    // At the end of the walk that took this link: whether the file itself has not been taken since. If so, the link
    // stands for it from now on.
    [[nodiscard]] bool keepLink(const Id &file);

private:
    QMutex m_mutex;
    std::set<Id> m_directories;
    std::set<Id> m_files;
    std::set<Id> m_links;
    std::set<Id> m_keptLinks;
};
