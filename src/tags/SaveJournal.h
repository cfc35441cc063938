// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace tags {

// What mending after a killed run did; full paths.
struct MendedSaves
{
    QStringList restored; // songs whose save in place was cut off: they are again as they were before it
    QStringList kept;     // copies of such songs, where something else stands now: left for the user
    QStringList waiting;  // songs that could not be reached or restored: tried again at each start
    QStringList whole;    // the rescued copies of the waiting ones
    QStringList underWay; // songs that are being restored now, links in their paths resolved
    [[nodiscard]] bool isEmpty() const
    {
        return restored.isEmpty() && kept.isEmpty() && waiting.isEmpty() && underWay.isEmpty();
    }
    MendedSaves &operator+=(const MendedSaves &more);
};

// What a killed run had left when this one began.
struct LeftOvers
{
    QList<QByteArray> notes;   // names of notes of working copies
    QList<QByteArray> entries; // paths of entries, one for each song that may be torn
};

// What a killed run leaves behind, noted beforehand in a folder of the program's own:
//   copies/<name>        the path of a working copy that may exist; it is removed at the next start
//   rescue/<name>.song     the full content of a song that is being saved in place
//   rescue/<name>.changed  the full content that it is to have
//   rescue/<name>.entry    the path of that song and, behind a NUL, its inode, once both are whole; an entry means: the
//                          song may be torn between
// For one program at a time, which holds the lock of the running instance.
class SaveJournal
{
public:
    // Made when it is missing. With an empty name nothing is noted, and no song can be rescued.
    explicit SaveJournal(const QString &folder);

    void noteCopy(const QByteArray &path);
    void forgetCopy(const QByteArray &path);

    // Copies the content of an open song, which awaits no restoring, and notes it and the content that it is to have;
    // all on the disk when this returns 0; else an errno. `path` is the song's, links resolved; `changed` an open file
    // that nobody writes any more, best in rescueFolder().
    [[nodiscard]] int rescue(const QByteArray &path, int song, int changed);
    // A save in place of this song was cut off and is not undone yet: what the file holds must not be taken for good.
    // Also under another name of the file, or a new one, as long as its content is torn. Devices are not compared: they
    // are numbered anew at each start.
    [[nodiscard]] bool awaitsRestoring(const QByteArray &path) const;
    // Puts the content back that was rescued last, and forgets it when that succeeds; 0 or an errno.
    [[nodiscard]] int restore(int song);
    // The song is whole. 0, or an errno when a power cut may bring the rescue back.
    [[nodiscard]] int forgetRescue();

    // Where the copies of songs lie; empty when there is no such folder.
    [[nodiscard]] QByteArray rescueFolder() const { return m_rescueFolder; }

    // Mending, in three steps, so that each song can be waited for by itself. What is left over must be taken once, at
    // the start and before anything is saved: it looks at the program's own folder alone. From then on a song with an
    // entry awaits restoring until mendSong() is through with it, or for the rest of this run when it could not be
    // mended. The other two block as long as the disks of the songs do, and may run in any thread, each with a journal
    // of its own.
    [[nodiscard]] LeftOvers takeLeftOvers();
    void removeCopies(const QList<QByteArray> &notes);
    // Restores a song that is torn between the old content and the new; what anybody else wrote into it is never
    // overwritten. One that is not there, on a stick perhaps, waits for a later start.
    MendedSaves mendSong(const QByteArray &entry);
    // The path of the song.
    [[nodiscard]] static QString songOf(const QByteArray &entry);
    // All three steps.
    MendedSaves mend();

private:
    [[nodiscard]] int removeRescueFiles() const;
    [[nodiscard]] QByteArray handOver(const QByteArray &path);

    QByteArray m_copiesFolder;
    QByteArray m_rescueFolder;
    QByteArray m_rescued; // path of the rescue copy without its extension
};

} // namespace tags
