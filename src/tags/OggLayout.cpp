// SPDX-License-Identifier: MIT
#include "tags/OggPackets.h"
#include "tags/SongLayout.h"

namespace tags {

// The tag is the second packet of the first stream: a Vorbis comment behind the name that its codec gives it.
bool readOggLayout(const FileBytes &file, SongLayout &layout)
{
    if (file.read(file.size() - id3v1Bytes, 3) == "TAG")
        return false; // no page: what a save would do to it nobody can say
    layout.audio.append({0, file.size()});
    OggPackets packets(file);
    OggPacket head;
    OggPacket packet;
    if (!packets.next(head))
        return false;
    do {
        if (!packets.next(packet))
            return false;
    } while (packet.stream != head.stream);
    int nameBytes = 0; // Speex has none
    if (head.data.startsWith("\x01vorbis"))
        nameBytes = 7;
    else if (head.data.startsWith("OpusHead"))
        nameBytes = 8;
    else if (head.data.startsWith("\x7f"
                                  "FLAC"))
        nameBytes = 4;
    return readVorbisComment(packet.data.mid(nameBytes), layout);
}

} // namespace tags
