// SPDX-License-Identifier: MIT
#include "tags/SaveJournal.h"

#include "tags/FileAccess.h"
#include "tags/FileBytes.h"
#include "tags/FileCopying.h"
#include "tags/FileIdentity.h"

#include <QCryptographicHash>
#include <QLoggingCategory>

#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

Q_DECLARE_LOGGING_CATEGORY(lcTags)

namespace tags {

namespace {

constexpr qint64 mostEntryBytes = qint64{64} * 1024;

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

// Four parts with a space between them; the path is the last, since it may hold spaces.
struct Entry
{
    quint64 inode = 0;
    qint64 oldSize = 0;
    qint64 newSize = 0;
    QByteArray path;

    static Entry parse(const QByteArray &text)
    {
        const QList<QByteArray> parts = text.split(' ');
        if (parts.size() < 4)
            return {};
        return {parts[0].toULongLong(), parts[1].toLongLong(), parts[2].toLongLong(), parts.mid(3).join(' ')};
    }
    [[nodiscard]] QByteArray text() const
    {
        return QByteArray::number(inode) + ' ' + QByteArray::number(oldSize) + ' ' + QByteArray::number(newSize) + ' ' +
               path;
    }
    // Some file systems number their files anew at each mount; then the size tells a song that was cut off.
    [[nodiscard]] bool isAbout(const FileIdentity &song) const
    {
        return song.inode == inode || song.size == oldSize || song.size == newSize;
    }
};

enum class Restoring { Done, Later, Replaced };

Restoring restoreSong(const Entry &entry, const QByteArray &copyName)
{
    const Descriptor copy(openRegularFile(copyName, O_RDONLY | O_NOFOLLOW));
    const Descriptor song(openRegularFile(entry.path, O_RDWR | O_NOFOLLOW));
    if (copy < 0 || song < 0)
        return Restoring::Later;
    if (!entry.isAbout(FileIdentity::of(song)))
        return Restoring::Replaced;
    return overwriteContent(copy, song) == 0 ? Restoring::Done : Restoring::Later;
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

int SaveJournal::rescue(const QByteArray &path, int song, qint64 newSize)
{
    if (m_rescueFolder.isEmpty())
        return ENOENT;
    m_rescued = m_rescueFolder + '/' + nameFor(path);
    removeRescueFiles(); // what is there without an entry is of no use
    const Descriptor copy(createFile(m_rescued + ".song"));
    const Descriptor entry(createFile(m_rescued + ".new"));
    const Descriptor folder(::open(m_rescueFolder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const FileIdentity identity = FileIdentity::of(song);
    const Entry noted{identity.inode, identity.size, newSize, path};
    int error = copy < 0 || entry < 0 || folder < 0 ? errno : copyContent(song, copy);
    if (error == 0)
        error = syncContent(copy);
    if (error == 0 &&
        !(writeContent(entry, noted.text()) && ::fsync(entry) == 0 &&
          ::rename((m_rescued + ".new").constData(), (m_rescued + ".entry").constData()) == 0 && ::fsync(folder) == 0))
        error = errno;
    if (error != 0)
        forgetRescue();
    return error;
}

bool SaveJournal::awaitsRestoring(const QByteArray &path) const
{
    return !m_rescueFolder.isEmpty() && exists(m_rescueFolder + '/' + nameFor(path) + ".entry");
}

int SaveJournal::restore(int song)
{
    const Descriptor copy(openRegularFile(m_rescued + ".song", O_RDONLY | O_NOFOLLOW));
    const int error = copy < 0 ? errno : overwriteContent(copy, song);
    if (error == 0)
        forgetRescue();
    return error;
}

void SaveJournal::forgetRescue()
{
    removeRescueFiles();
    m_rescued.clear();
}

// The entry first: without it the copy means nothing.
void SaveJournal::removeRescueFiles() const
{
    for (const char *part : {".entry", ".new", ".song"})
        ::unlink((m_rescued + part).constData());
}

void SaveJournal::removeLeftOverCopies()
{
    const QList<QByteArray> notes = namesIn(m_copiesFolder);
    for (const QByteArray &name : notes) {
        const QByteArray path = contentOf(m_copiesFolder + '/' + name);
        const QByteArray fileName = path.mid(path.lastIndexOf('/') + 1);
        // The note is a file like any other: what it names is removed only if it is called as a copy is.
        if (nameFor(path) == name && fileName.startsWith(".versewell-") && fileName.endsWith(".part"))
            ::unlink(path.constData());
        ::unlink((m_copiesFolder + '/' + name).constData());
    }
}

// Gives the copy the song's own name, in a place of its own, and forgets the rest.
QByteArray SaveJournal::handOver(const QByteArray &path)
{
    constexpr int nameBytes = 100; // of its end: with what stands before it the longest name would be too long
    const QByteArray kept = m_rescued + '-' + path.mid(path.lastIndexOf('/') + 1).right(nameBytes);
    if (::rename((m_rescued + ".song").constData(), kept.constData()) == 0)
        ::unlink((m_rescued + ".entry").constData());
    return kept;
}

MendedSaves SaveJournal::mend()
{
    MendedSaves mended;
    if (!m_copiesFolder.isEmpty())
        removeLeftOverCopies();
    const QList<QByteArray> names = m_rescueFolder.isEmpty() ? QList<QByteArray>() : namesIn(m_rescueFolder);
    for (const QByteArray &name : names) {
        m_rescued = m_rescueFolder + '/' + name.left(name.lastIndexOf('.'));
        const Entry entry = Entry::parse(contentOf(m_rescued + ".entry"));
        if (name.endsWith(".entry")) {
            const Restoring result = restoreSong(entry, m_rescued + ".song");
            if (result == Restoring::Replaced)
                mended.kept.append(QString::fromUtf8(handOver(entry.path)));
            else if (result == Restoring::Done)
                mended.restored.append(QString::fromUtf8(entry.path));
            if (result == Restoring::Done)
                forgetRescue();
        }
        if (!exists(m_rescued + ".entry") && (name.endsWith(".song") || name.endsWith(".new")))
            forgetRescue(); // cut off before anything was written in place
    }
    return mended;
}

} // namespace tags
