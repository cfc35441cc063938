// SPDX-License-Identifier: MIT
#pragma once

#include "tags/FileIdentity.h"
#include "tags/SaveJournal.h"
#include "tags/UpdateResult.h"

#include <QByteArray>

#include <functional>

namespace tags {

// Changes a file so that it is either as it was or whole and changed, whatever happens meanwhile: a crash, a full disk,
// a stick that is pulled. The change is made and checked on a copy, the copy takes the file's place. Where that cannot
// be (hard links, a directory that takes no files, an owner that cannot be given, no room beside the file), the
// checked copy is made in the program's own folder and written over the file, after a rescue copy was noted in the
// journal. When there is no room for that either, nothing is begun; nor where overwriting a file may itself take room
// that is not there. Blocks.
class SafeSave
{
public:
    // `path`: absolute, links resolved. `original`: an open descriptor of it, and what it was when it was first looked
    // at. `dataFolder`: of the journal; when empty nothing is ever saved in place.
    SafeSave(const QByteArray &path, int original, const FileIdentity &identity, const QString &dataFolder);

    // Makes and checks the change on the open copy that it is given; Saved when the copy may take the file's place.
    using Change = std::function<UpdateResult(int copy)>;
    // `growthBytes`: how much longer the file may become.
    UpdateResult run(const Change &change, qint64 growthBytes);

private:
    UpdateResult replaceFile(const Change &change, qint64 growthBytes, bool &inPlaceInstead);
    UpdateResult writeInPlace(const Change &change, qint64 growthBytes);
    UpdateResult overwrite(int copy, int song, qint64 growthBytes);
    [[nodiscard]] bool isUnchanged() const;
    [[nodiscard]] bool hasRoomToOverwrite(qint64 growthBytes) const;

    QByteArray m_path;
    int m_original;
    FileIdentity m_identity;
    SaveJournal m_journal;
};

// Of an errno that a write ended with.
UpdateResult resultOfError(int error);

} // namespace tags
