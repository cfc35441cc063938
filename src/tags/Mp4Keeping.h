// SPDX-License-Identifier: MIT
#pragma once

#include "tags/SongLayout.h"
#include "tags/UpdateResult.h"

#include <QSet>

namespace tags {

// Mends in the copy of an MP4 file what TagLib has written otherwise than it was, where it knows no better: items that
// it drops or stores in another way are put back byte for byte, and the index of a fragmented file follows the
// fragments. Saved, or what the save must end with; what was still not kept shows when songs are compared.
UpdateResult keepMp4Parts(int copy, const QByteArray &path, const FileBytes &original, const SongLayout &before,
                          const QSet<QByteArray> &editedKeys);

} // namespace tags
