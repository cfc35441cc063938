// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSet>
#include <QStringList>
#include <QUrl>

class SongWrites;

// The songs of the list that are not to be read yet: they are being written, or a save of them that was cut off is
// being undone. Main thread only.
class HeldBackReads
{
public:
    // Not owned; must outlive the object.
    explicit HeldBackReads(const SongWrites *writes);

    // Whether the song must wait; it is held back then.
    bool hold(const QUrl &file);
    // Whether the song was held back and may be read now; it is no longer held back then.
    bool release(const QUrl &file);
    // The songs whose saves are being undone: full paths, links resolved. Those that are released by this are returned.
    QList<QUrl> setInMending(const QStringList &paths);

private:
    [[nodiscard]] bool mustWait(const QUrl &file) const;

    const SongWrites *m_writes;
    QStringList m_inMending;
    QSet<QUrl> m_files;
};
