// SPDX-License-Identifier: MIT
#include "tags/SaveJournal.h"

#include "tags/FileAccess.h"
#include "tags/FileBytes.h"
#include "tags/FileCopying.h"
#include "tags/FileIdentity.h"

#include <QCryptographicHash>
#include <QLoggingCategory>
#include <QMutex>
#include <QSet>

#include <algorithm>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

constexpr qint64 mostEntryBytes = qint64{64} * 1024;

// The entries, by their paths, that this process is mending: what belongs to one goes step by step, and nobody may
// begin another one of the same song in between.
class EntriesInWork
{
public:
    void add(const QByteArray &entry)
    {
        const QMutexLocker lock(&m_mutex);
        m_entries.insert(entry);
    }
    void remove(const QByteArray &entry)
    {
        const QMutexLocker lock(&m_mutex);
        m_entries.remove(entry);
    }
    [[nodiscard]] bool contains(const QByteArray &entry) const
    {
        const QMutexLocker lock(&m_mutex);
        return m_entries.contains(entry);
    }

private:
    mutable QMutex m_mutex;
    QSet<QByteArray> m_entries;
};

EntriesInWork &entriesInWork()
{
    static auto *const entries = new EntriesInWork; // for ever: mending may still wait for a disk when the program ends
    return *entries;
}

// A descriptor that is closed at the end of its scope.
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY(Descriptor)
    operator int() const { return m_number; } // NOLINT(google-explicit-constructor): it is one

private:
    int m_number;
};

QByteArray madeFolder(const QByteArray &path)
{
    for (int end = path.indexOf('/', 1); end > 0; end = path.indexOf('/', end + 1))
        ::mkdir(path.left(end).constData(), S_IRWXU);
    return ::mkdir(path.constData(), S_IRWXU) == 0 || errno == EEXIST ? path : QByteArray();
}

int createFile(const QByteArray &path)
{
    return ::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

int openFolder(const QByteArray &path)
{
    return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool exists(const QByteArray &path)
{
    return ::access(path.constData(), F_OK) == 0 || errno != ENOENT;
}

// One name a path, and no path of the user's in it.
QByteArray nameFor(const QByteArray &path)
{
    return QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(32);
}

QByteArray contentOf(const QByteArray &path)
{
    const Descriptor file(openRegularFile(path, O_RDONLY | O_NOFOLLOW));
    return file < 0 ? QByteArray() : FileBytes(file).read(0, mostEntryBytes);
}

// Of an entry: the path of the song, and its inode where that was noted.
QList<QByteArray> partsOf(const QByteArray &entry)
{
    return QByteArray(contentOf(entry) + '\0').split('\0');
}

bool writeContent(int file, const QByteArray &content)
{
    return file >= 0 && ::write(file, content.constData(), static_cast<std::size_t>(content.size())) == content.size();
}

QList<QByteArray> namesIn(const QByteArray &folder)
{
    QList<QByteArray> names;
    if (DIR *directory = ::opendir(folder.constData())) {
        while (const dirent *entry = ::readdir(directory)) {
            if (entry->d_name[0] != '.')
                names.append(entry->d_name);
        }
        ::closedir(directory);
    }
    return names;
}

// What a path stands for is gone for good: not when the directory itself is away, as on a stick that was pulled.
bool removed(const QByteArray &path)
{
    if (::unlink(path.constData()) == 0)
        return true;
    return errno == ENOENT && ::access(path.left(path.lastIndexOf('/') + 1).constData(), F_OK) == 0;
}

enum class Tear { None, Torn, Foreign };

// Which of two contents a song holds. What a disk writes at once, a sector, is of the one or the other; where a content
// has ended, zeros follow, or the rest of the longer one.
Tear tearOf(const FileBytes &song, const FileBytes &before, const FileBytes &changed)
{
    constexpr int sectorBytes = 512;
    constexpr qint64 pieceBytes = qint64{1024} * 1024;
    bool isOld = song.size() == before.size();
    bool isNew = song.size() == changed.size();
    if (song.size() < std::min(before.size(), changed.size()) || song.size() > std::max(before.size(), changed.size()))
        return Tear::Foreign;
    for (qint64 offset = 0; offset < song.size(); offset += pieceBytes) {
        const QByteArray held = song.read(offset, pieceBytes);
        QByteArray one = before.read(offset, pieceBytes);
        QByteArray other = changed.read(offset, pieceBytes);
        QByteArray both = one.size() < other.size() ? one + other.mid(one.size()) : other + one.mid(other.size());
        both.truncate(held.size());
        one = one.leftJustified(held.size(), '\0', true);
        other = other.leftJustified(held.size(), '\0', true);
        if (held.size() != std::min(pieceBytes, song.size() - offset))
            return Tear::Foreign; // it cannot be read
        isOld = isOld && held == one;
        isNew = isNew && held == other;
        for (int place = 0; held != one && held != other && place < held.size(); place += sectorBytes) {
            const QByteArray sector = held.mid(place, sectorBytes);
            if (sector != one.mid(place, sectorBytes) && sector != other.mid(place, sectorBytes) &&
                sector != both.mid(place, sectorBytes))
                return Tear::Foreign;
        }
    }
    return isOld || isNew ? Tear::None : Tear::Torn;
}

bool isTorn(const QByteArray &path, const QByteArray &rescued)
{
    const Descriptor song(openRegularFile(path, O_RDONLY | O_NOFOLLOW));
    const Descriptor before(openRegularFile(rescued + ".song", O_RDONLY | O_NOFOLLOW));
    const Descriptor changed(openRegularFile(rescued + ".changed", O_RDONLY | O_NOFOLLOW));
    return song >= 0 && before >= 0 && changed >= 0 &&
           tearOf(FileBytes(song), FileBytes(before), FileBytes(changed)) == Tear::Torn;
}

enum class Restoring { Whole, Done, Later, Foreign };

Restoring restoreSong(const QByteArray &path, const QByteArray &rescued)
{
    const Descriptor before(openRegularFile(rescued + ".song", O_RDONLY | O_NOFOLLOW));
    const Descriptor changed(openRegularFile(rescued + ".changed", O_RDONLY | O_NOFOLLOW));
    if (changed < 0 && errno == ENOENT)
        return Restoring::Foreign; // nothing tells what is the song's own
    const Descriptor song(openRegularFile(path, O_RDWR | O_NOFOLLOW));
    if (before < 0 || changed < 0 || song < 0)
        return Restoring::Later;
    switch (tearOf(FileBytes(song), FileBytes(before), FileBytes(changed))) {
    case Tear::None: // perhaps not on the disk yet
        return syncContent(song) == 0 ? Restoring::Whole : Restoring::Later;
    case Tear::Torn:
        return overwriteContent(before, song) == 0 ? Restoring::Done : Restoring::Later;
    case Tear::Foreign:
        break;
    }
    return Restoring::Foreign;
}

// A second name for an open file, or where that cannot be a copy of it.
int linkOrCopy(int file, const QByteArray &path)
{
    const QByteArray source = "/proc/self/fd/" + QByteArray::number(file);
    if (::linkat(AT_FDCWD, source.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) == 0)
        return syncContent(file);
    const Descriptor copy(createFile(path));
    if (copy < 0)
        return errno;
    const int error = copyContent(file, copy);
    return error == 0 ? syncContent(copy) : error;
}

} // namespace

SaveJournal::SaveJournal(const QString &folder)
{
    if (folder.isEmpty())
        return;
    m_copiesFolder = madeFolder(nativePath(folder) + "/copies");
    m_rescueFolder = madeFolder(nativePath(folder) + "/rescue");
}

// Neither is synced: after a power cut a left-over copy may stay, which costs room and harms nothing.
void SaveJournal::noteCopy(const QByteArray &path)
{
    if (m_copiesFolder.isEmpty())
        return;
    const Descriptor note(createFile(m_copiesFolder + '/' + nameFor(path)));
    if (!writeContent(note, path))
        qCWarning(lcTags) << "a working copy could not be noted";
}

void SaveJournal::forgetCopy(const QByteArray &path)
{
    if (!m_copiesFolder.isEmpty())
        ::unlink((m_copiesFolder + '/' + nameFor(path)).constData());
}

int SaveJournal::rescue(const QByteArray &path, int song, int changed)
{
    if (m_rescueFolder.isEmpty())
        return ENOENT;
    m_rescued = m_rescueFolder + '/' + nameFor(path);
    if (const int error = removeRescueFiles()) // what is there without an entry is of no use
        return error;
    const Descriptor copy(createFile(m_rescued + ".song"));
    const Descriptor entry(createFile(m_rescued + ".new"));
    const Descriptor folder(openFolder(m_rescueFolder));
    int error = copy < 0 || entry < 0 || folder < 0 ? errno : copyContent(song, copy);
    if (error == 0)
        error = syncContent(copy);
    if (error == 0)
        error = linkOrCopy(changed, m_rescued + ".changed");
    if (error == 0 &&
        !(writeContent(entry, path + '\0' + QByteArray::number(FileIdentity::of(song).inode)) && ::fsync(entry) == 0 &&
          ::fsync(folder) == 0 && ::rename((m_rescued + ".new").constData(), (m_rescued + ".entry").constData()) == 0 &&
          ::fsync(folder) == 0))
        error = errno;
    if (error != 0)
        (void)forgetRescue(); // the song was not touched
    return error;
}

bool SaveJournal::awaitsRestoring(const QByteArray &path) const
{
    if (m_rescueFolder.isEmpty())
        return false;
    const QByteArray own = m_rescueFolder + '/' + nameFor(path) + ".entry";
    if (exists(own) || entriesInWork().contains(own))
        return true;
    const QByteArray inode = QByteArray::number(FileIdentity::of(path).inode);
    const QList<QByteArray> names = namesIn(m_rescueFolder);
    return std::any_of(names.begin(), names.end(), [&](const QByteArray &name) {
        const QByteArray entry = m_rescueFolder + '/' + name;
        return name.endsWith(".entry") && partsOf(entry).at(1) == inode &&
               (entriesInWork().contains(entry) || isTorn(path, entry.left(entry.lastIndexOf('.'))));
    });
}

int SaveJournal::restore(int song)
{
    const Descriptor copy(openRegularFile(m_rescued + ".song", O_RDONLY | O_NOFOLLOW));
    const int error = copy < 0 ? errno : overwriteContent(copy, song);
    return error == 0 ? forgetRescue() : error;
}

int SaveJournal::forgetRescue()
{
    const int error = removeRescueFiles();
    m_rescued.clear();
    return error;
}

// The entry first, and for good: without it the others mean nothing, but it means nothing without them.
int SaveJournal::removeRescueFiles() const
{
    const Descriptor folder(openFolder(m_rescueFolder));
    if (folder < 0 || !removed(m_rescued + ".entry") || ::fsync(folder) != 0)
        return errno;
    for (const char *part : {".new", ".changed", ".song"})
        ::unlink((m_rescued + part).constData());
    return 0;
}

void SaveJournal::removeCopies(const QList<QByteArray> &notes)
{
    for (const QByteArray &name : notes) {
        const QByteArray path = contentOf(m_copiesFolder + '/' + name);
        const QByteArray fileName = path.mid(path.lastIndexOf('/') + 1);
        // The note is a file like any other: what it names is removed only if it is called as a copy is.
        const bool isOwn = nameFor(path) == name && fileName.startsWith(".versewell-") && fileName.endsWith(".part");
        if (!isOwn || removed(path))
            ::unlink((m_copiesFolder + '/' + name).constData());
    }
}

// Gives the copy the song's own name, in a place of its own, and forgets the rest; empty when that fails.
QByteArray SaveJournal::handOver(const QByteArray &path)
{
    constexpr int nameBytes = 100; // of its end: with what stands before it the longest name would be too long
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1).right(nameBytes);
    QByteArray kept = m_rescued + '-' + name;
    for (int number = 2; exists(kept); ++number)
        kept = m_rescued + '-' + QByteArray::number(number) + '-' + name;
    // A second name first: the copy must not be lost between the two.
    if (::link((m_rescued + ".song").constData(), kept.constData()) != 0 &&
        ::rename((m_rescued + ".song").constData(), kept.constData()) != 0)
        return {};
    (void)removeRescueFiles();
    return kept;
}

MendedSaves SaveJournal::mendSong(const QByteArray &entry)
{
    MendedSaves mended;
    m_rescued = entry.left(entry.lastIndexOf('.'));
    const QByteArray path = partsOf(entry).first();
    Restoring result = restoreSong(path, m_rescued);
    if (result == Restoring::Foreign) {
        const QByteArray kept = handOver(path);
        if (kept.isEmpty())
            result = Restoring::Later;
        else
            mended.kept.append(QString::fromUtf8(kept));
    }
    if ((result == Restoring::Done || result == Restoring::Whole) && forgetRescue() != 0)
        result = Restoring::Later;
    if (result == Restoring::Done)
        mended.restored.append(QString::fromUtf8(path));
    else if (result == Restoring::Later) {
        mended.waiting.append(QString::fromUtf8(path));
        mended.whole.append(QString::fromUtf8(m_rescued + ".song"));
    }
    entriesInWork().remove(entry);
    return mended;
}

LeftOvers SaveJournal::takeLeftOvers()
{
    LeftOvers left;
    if (m_rescueFolder.isEmpty())
        return left;
    if (!m_copiesFolder.isEmpty())
        left.notes = namesIn(m_copiesFolder);
    const QList<QByteArray> names = namesIn(m_rescueFolder);
    for (const QByteArray &name : names) {
        m_rescued = m_rescueFolder + '/' + name.left(name.lastIndexOf('.'));
        if (name.endsWith(".entry")) {
            left.entries.append(m_rescued + ".entry");
            entriesInWork().add(left.entries.last());
        } else if ((name.endsWith(".song") || name.endsWith(".changed") || name.endsWith(".new")) &&
                   !exists(m_rescued + ".entry")) {
            (void)forgetRescue(); // cut off before anything was written in place
        }
    }
    return left;
}

QString SaveJournal::songOf(const QByteArray &entry)
{
    return QString::fromUtf8(partsOf(entry).first());
}

MendedSaves SaveJournal::mend()
{
    const LeftOvers left = takeLeftOvers();
    removeCopies(left.notes);
    MendedSaves mended;
    for (const QByteArray &entry : left.entries)
        mended += mendSong(entry);
    return mended;
}

MendedSaves &MendedSaves::operator+=(const MendedSaves &more)
{
    restored += more.restored;
    kept += more.kept;
    waiting += more.waiting;
    whole += more.whole;
    underWay += more.underWay;
    return *this;
}

} // namespace tags
