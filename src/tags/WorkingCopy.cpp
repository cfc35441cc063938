// SPDX-License-Identifier: MIT
#include "tags/WorkingCopy.h"

#include "tags/FileBytes.h"
#include "tags/FileCopying.h"
#include "tags/SaveJournal.h"

#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tags {

namespace {

// The name says whose it is, and hides it from other programs that scan for music.
QByteArray newName()
{
    return ".versewell-" + QByteArray::number(QRandomGenerator::system()->generate64(), 36) + ".part";
}

} // namespace

WorkingCopy::WorkingCopy(SaveJournal &journal)
    : m_journal(journal)
{
}

WorkingCopy::~WorkingCopy()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    // On a stick that was pulled it stays, and so does the note of it.
    if (!m_name.isEmpty() && (::unlinkat(m_directory, m_name.constData(), 0) == 0 || errno == ENOENT))
        m_journal.forgetCopy(m_path);
    if (m_directory >= 0)
        ::close(m_directory);
}

int WorkingCopy::make(const QByteArray &directory, int source, qint64 growthBytes)
{
    m_directory = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_directory < 0)
        return errno;
    const qint64 room = freeBytes(m_directory);
    if (room >= 0 && room < FileBytes(source).size() + growthBytes)
        return ENOSPC;
    m_path = directory + '/';
    if (const int error = createFile())
        return error;
    return copyContent(source, m_descriptor);
}

int WorkingCopy::createFile()
{
    m_name = newName();
    m_path += m_name;
    m_journal.noteCopy(m_path); // before it exists
    m_descriptor = ::openat(m_directory, m_name.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                            S_IRUSR | S_IWUSR);
    if (m_descriptor >= 0)
        return 0;
    const int error = errno;
    m_journal.forgetCopy(m_path);
    m_name.clear();
    return error;
}

int WorkingCopy::replace(const QByteArray &fileName)
{
    if (::renameat(m_directory, m_name.constData(), m_directory, fileName.constData()) != 0)
        return errno;
    m_name.clear();
    m_journal.forgetCopy(m_path);
    // The new file is in its place whatever this says; which of the two a power cut would leave is all that is open.
    (void)(::fsync(m_directory) == 0);
    return 0;
}

} // namespace tags
