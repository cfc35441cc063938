// SPDX-License-Identifier: MIT
#include "model/WalkedEntries.h"

bool WalkedEntries::take(const Id &file, bool isLink)
{
    if (m_linkedFiles.count(file) != 0)
        return false;
    if (isLink)
        return m_files.count(file) == 0 && m_linkedFiles.insert(file).second;
    m_files.insert(file);
    return true;
}
