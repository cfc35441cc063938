// SPDX-License-Identifier: MIT
#include "model/HeldBackReads.h"

#include "model/SongWrites.h"

#include <QFileInfo>

#include <algorithm>

HeldBackReads::HeldBackReads(const SongWrites *writes)
    : m_writes(writes)
{
}

bool HeldBackReads::hold(const QUrl &file)
{
    if (!mustWait(file))
        return false;
    m_files.insert(file);
    return true;
}

bool HeldBackReads::release(const QUrl &file)
{
    return m_files.contains(file) && !mustWait(file) && m_files.remove(file);
}

QList<QUrl> HeldBackReads::setInMending(const QStringList &paths)
{
    m_inMending = paths;
    QList<QUrl> released = m_files.values();
    released.erase(
        std::remove_if(released.begin(), released.end(), [this](const QUrl &file) { return !release(file); }),
        released.end());
    return released;
}

// The disk is asked only about songs that bear the name of one that is being mended.
bool HeldBackReads::mustWait(const QUrl &file) const
{
    if (m_writes->isWriting(file))
        return true;
    const QFileInfo info(file.toLocalFile());
    return std::any_of(m_inMending.begin(), m_inMending.end(), [&info](const QString &path) {
        return path.endsWith(QLatin1Char('/') + info.fileName()) &&
               (info.filePath() == path || info.canonicalFilePath() == path);
    });
}
