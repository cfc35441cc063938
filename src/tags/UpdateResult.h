// SPDX-License-Identifier: MIT
#pragma once

namespace tags {

// How an update of a file's tags ended. Except for Saved, and for RestoredLater, the file is byte for byte as it was.
enum class UpdateResult {
    Unchanged, // the file says all that already; it was not written
    Saved,
    Missing,
    NotRegular,
    ReadOnly,
    Unreadable, // no format that is known, or damaged
    NotAudio,   // nothing in it plays: tags in front of it would only harm it
    NoLyricsPlace,
    Unusual, // not built as its format asks, so that nobody can say what a save would do to it
    NoRoom,
    TooLarge,         // for the file system or for a limit that the user has set
    DiskError,        // the disk or the network share failed
    TagsNotKept,      // something that its tags hold would be lost
    AudioNotKept,     // the audio would not stay as it is
    ChangedMeanwhile, // by another program
    RenamedMeanwhile, // likewise: the artist or the title, so that the lyrics were found for another song
    AwaitsRestoring,  // an earlier save in place was cut off or failed, and is not undone yet
    RestoredLater,    // this save in place failed and could not be undone; the next start tries again
    SaveFailed,
};

} // namespace tags
