// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tags {

// Why a file has to be left alone: nothing is known of what is in it, so it is neither searched for nor written. That a
// file is gone, may not be opened or holds no audio is no such failure.
enum class ReadFailure : quint8 {
    None,
    NotRegular,
    TooMuchRead, // more than any ordinary file takes
    OutOfMemory,
    DiskError,
    // These are found out about the reader process, and never said by it.
    Died,
    Stalled,
    Nonsense, // it answered what cannot be
    NoReader,
};

constexpr ReadFailure lastFailureOfFile = ReadFailure::DiskError;

// For the user, in the language of the program; empty for None.
QString textOf(ReadFailure failure);

} // namespace tags
