// SPDX-License-Identifier: MIT
#include "tags/SafeSave.h"

#include "tags/FileAccess.h"
#include "tags/FileAttributes.h"
#include "tags/FileBytes.h"
#include "tags/FileCopying.h"
#include "tags/SongComparison.h"
#include "tags/WorkingCopy.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace tags {

namespace {

// What a directory, or the file's place in it, answers when no other file may come there.
bool meansInPlace(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EXDEV || error == EBUSY;
}

bool meansNoRoom(int error)
{
    return error == ENOSPC || error == EDQUOT;
}

} // namespace

UpdateResult resultOfError(int error)
{
    switch (error) {
    case 0:
        return UpdateResult::Saved;
    case ENOENT:
        return UpdateResult::Missing;
    case EACCES:
    case EPERM:
    case EROFS:
        return UpdateResult::ReadOnly;
    case ENOSPC:
    case EDQUOT:
        return UpdateResult::NoRoom;
    case EFBIG:
        return UpdateResult::TooLarge;
    case EIO:
    case ENODEV:
    case ENXIO:
    case ESTALE:
    case ETIMEDOUT:
        return UpdateResult::DiskError;
    default:
        return UpdateResult::SaveFailed;
    }
}

SafeSave::SafeSave(const QByteArray &path, int original, const FileIdentity &identity, const QString &dataFolder)
    : m_path(path)
    , m_original(original)
    , m_identity(identity)
    , m_journal(dataFolder)
{
}

bool SafeSave::isUnchanged() const
{
    return FileIdentity::of(m_original) == m_identity && FileIdentity::of(m_path) == m_identity;
}

UpdateResult SafeSave::run(const Change &change, qint64 growthBytes)
{
    bool inPlaceInstead = m_identity.links > 1; // a rename would part the names
    if (!inPlaceInstead) {
        const UpdateResult result = replaceFile(change, growthBytes, inPlaceInstead);
        if (!inPlaceInstead)
            return result;
    }
    return writeInPlace(change, growthBytes);
}

UpdateResult SafeSave::replaceFile(const Change &change, qint64 growthBytes, bool &inPlaceInstead)
{
    const int nameStart = m_path.lastIndexOf('/') + 1;
    WorkingCopy copy(m_journal);
    const auto failed = [this, &inPlaceInstead](int error) {
        inPlaceInstead = meansInPlace(error) || (meansNoRoom(error) && overwritesWithoutRoom(m_original));
        return resultOfError(error);
    };
    if (const int error = copy.make(m_path.left(nameStart), m_original, growthBytes))
        return failed(error);
    const UpdateResult changed = change(copy.descriptor());
    if (changed != UpdateResult::Saved)
        return changed;
    if (carryAttributes(m_original, copy.descriptor()) != 0)
        return failed(EPERM);
    if (const int error = syncContent(copy.descriptor()))
        return resultOfError(error);
    if (!isUnchanged())
        return UpdateResult::ChangedMeanwhile;
    const int error = copy.replace(m_path.mid(nameStart));
    return error == 0 ? UpdateResult::Saved : failed(error);
}

UpdateResult SafeSave::writeInPlace(const Change &change, qint64 growthBytes)
{
    if (m_journal.rescueFolder().isEmpty())
        return UpdateResult::SaveFailed;
    const int song = openRegularFile(m_path, O_RDWR | O_NOFOLLOW);
    if (song < 0)
        return resultOfError(errno);
    WorkingCopy copy(m_journal);
    const int error = copy.make(m_journal.rescueFolder(), m_original, 2 * growthBytes + m_identity.size);
    UpdateResult result = error == 0 ? change(copy.descriptor()) : resultOfError(error);
    if (result == UpdateResult::Saved)
        result = overwrite(copy.descriptor(), song, growthBytes);
    ::close(song);
    return result;
}

// Where new content takes new room it must suffice for going there and back.
bool SafeSave::hasRoomToOverwrite(qint64 growthBytes) const
{
    const qint64 room = freeBytes(m_original);
    return overwritesWithoutRoom(m_original) || room < 0 || room >= 2 * (m_identity.size + growthBytes);
}

// Whether another program was there is asked last, since the rescue copy of a large song takes its time. Once the first
// byte is written nothing may end without either the new content or the old.
UpdateResult SafeSave::overwrite(int copy, int song, qint64 growthBytes)
{
    const FileBytes wanted(copy);
    if (const int error = m_journal.rescue(m_path, song, copy))
        return resultOfError(error);
    const bool hasRoom = hasRoomToOverwrite(growthBytes);
    if (!hasRoom || FileIdentity::of(song) != m_identity || !isUnchanged()) {
        (void)m_journal.forgetRescue(); // the song was not touched
        return hasRoom ? UpdateResult::ChangedMeanwhile : UpdateResult::NoRoom;
    }
    int error = overwriteContent(copy, song);
    if (error == 0 && !areBytesEqual(wanted, {0, wanted.size()}, FileBytes(song), 0))
        error = EIO;
    if (error == 0)
        return m_journal.forgetRescue() == 0 ? UpdateResult::Saved : UpdateResult::RestoredLater;
    return m_journal.restore(song) == 0 ? resultOfError(error) : UpdateResult::RestoredLater;
}

} // namespace tags
