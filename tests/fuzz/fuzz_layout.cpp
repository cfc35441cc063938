// SPDX-License-Identifier: MIT
// Song files of any content: what is found of a file must lie in it.
#include "FuzzInput.h"
#include "tags/SongLayout.h"

#include <sys/mman.h>
#include <unistd.h>

namespace {

using tags::SongFormat;

constexpr SongFormat formats[] = {SongFormat::Framed, SongFormat::Flac, SongFormat::Ogg, SongFormat::Mp4,
                                  SongFormat::Asf,    SongFormat::Riff, SongFormat::Iff};

void check(const tags::SongLayout &layout, qint64 size)
{
    const auto isInside = [size](const tags::ByteRange &range) {
        return range.offset >= 0 && range.length >= 0 && range.end() <= size;
    };
    for (const tags::ByteRange &range : layout.audio)
        require(isInside(range));
    for (const tags::AudioOffset &entry : layout.audioOffsets)
        require(isInside(entry.field));
    for (const tags::ListItem &item : layout.listItems)
        require(isInside(item.content));
    require(isInside(layout.id3v2));
}

} // namespace

// The first byte tells the format.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const int file = ::memfd_create("song", MFD_CLOEXEC);
    if (size == 0)
        return 0;
    require(::ftruncate(file, 0) == 0 && ::pwrite(file, bytes + 1, size - 1, 0) == static_cast<ssize_t>(size - 1));
    const auto layout = tags::SongLayout::of(tags::FileBytes(file), formats[bytes[0] % std::size(formats)]);
    if (layout)
        check(*layout, static_cast<qint64>(size - 1));
    return 0;
}
