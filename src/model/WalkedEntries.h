// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <set>
#include <utility>

// What the walks of one queue have come past, so that symbolic links lead nowhere twice: neither round in circles nor
// to a file under a second path. Not thread-safe; one walk uses it at a time.
class WalkedEntries
{
public:
    // An entry as the file system knows it: device and inode.
    using Id = std::pair<quint64, quint64>;

    // Whether this directory was not walked before.
    [[nodiscard]] bool enter(const Id &directory) { return m_directories.insert(directory).second; }
    // Whether this file was not taken before. Hard links are files of their own: to write one of them parts them.
    [[nodiscard]] bool take(const Id &file, bool isLink);

private:
    std::set<Id> m_directories;
    std::set<Id> m_files;
    std::set<Id> m_linkedFiles;
};
