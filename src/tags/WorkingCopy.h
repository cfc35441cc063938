// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace tags {

class SaveJournal;

// A private copy of a file, in a directory of the caller's choice, for a change that must come whole or not at all. It
// is made exclusively, readable by the user alone, follows no link, and is removed when it goes out of scope without
// having taken the place of a file. Its name stands in the journal as long as it exists, also when it could not be
// removed.
class WorkingCopy
{
public:
    explicit WorkingCopy(SaveJournal &journal);
    ~WorkingCopy();
    Q_DISABLE_COPY(WorkingCopy)

    // Copies the content of an open file. 0, or an errno: EACCES, EROFS or EPERM where the directory takes no files,
    // ENOSPC also when so many bytes more than the content, for the change, would not fit.
    [[nodiscard]] int make(const QByteArray &directory, int source, qint64 growthBytes);

    [[nodiscard]] int descriptor() const { return m_descriptor; }

    // Puts the copy, which must be synced, in the place of a file of the same directory and syncs the directory; 0 or
    // an errno, and then the file is as it was.
    [[nodiscard]] int replace(const QByteArray &fileName);

private:
    [[nodiscard]] int createFile();

    SaveJournal &m_journal;
    QByteArray m_path;
    QByteArray m_name;
    int m_directory = -1;
    int m_descriptor = -1;
};

} // namespace tags
