// SPDX-License-Identifier: MIT
#include "tags/ReadFailure.h"

#include <QCoreApplication>

namespace tags {

QString textOf(ReadFailure failure)
{
    switch (failure) {
    case ReadFailure::None:
        return {};
    case ReadFailure::NotRegular:
        return QCoreApplication::translate("ReadFailure", "this is not a regular file");
    case ReadFailure::TooMuchRead:
        return QCoreApplication::translate("ReadFailure", "the file is damaged: its tags have no end");
    case ReadFailure::OutOfMemory:
        return QCoreApplication::translate("ReadFailure", "the file is damaged: its tags do not fit in memory");
    case ReadFailure::DiskError:
        return QCoreApplication::translate("ReadFailure", "the disk reported an error while the file was read");
    case ReadFailure::Died:
        return QCoreApplication::translate("ReadFailure", "the file is damaged: reading its tags ended in a crash");
    case ReadFailure::Stalled:
        return QCoreApplication::translate("ReadFailure", "reading the tags of the file took too long");
    case ReadFailure::Nonsense:
        return QCoreApplication::translate("ReadFailure", "reading the tags of the file gave nonsense");
    case ReadFailure::NoReader:
        break;
    }
    return QCoreApplication::translate("ReadFailure", "the helper program that reads tags could not be started");
}

} // namespace tags
