// SPDX-License-Identifier: MIT
#include "tags/Id3v2Frames.h"
#include "tags/SongLayout.h"

#include <algorithm>

namespace tags {

// Chunks of WAV (little-endian) and AIFF (big-endian): all that are not ID3v2 stay as they are, in their order.
bool readChunkLayout(const FileBytes &file, SongLayout &layout)
{
    constexpr int fileHeaderBytes = 12;
    constexpr int chunkHeaderBytes = 8;
    const bool isRiff = layout.format == SongFormat::Riff;
    if (file.read(0, 4) != (isRiff ? "RIFF" : "FORM"))
        return false;
    qint64 place = fileHeaderBytes;
    while (place + chunkHeaderBytes <= file.size()) {
        const QByteArray name = file.read(place, 4);
        const qint64 size = isRiff ? file.littleEndian32(place + 4) : file.bigEndian32(place + 4);
        const qint64 content = place + chunkHeaderBytes;
        const qint64 length = std::min(size, file.size() - content); // a last chunk that was cut short still plays
        if (name.toUpper() == "ID3 ") {
            if (layout.id3v2.length > 0 || length != size)
                return false;
            layout.id3v2 = {content, length};
            if (length > 0 && !readId3v2Items(file, layout))
                return false;
        } else {
            layout.audio.append({place, chunkHeaderBytes + length});
        }
        place = content + size + size % 2; // chunks begin at even places
    }
    return true;
}

} // namespace tags
