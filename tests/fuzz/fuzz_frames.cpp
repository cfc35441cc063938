// SPDX-License-Identifier: MIT
// ID3v2 tags of any content: what is taken apart and put together is taken apart as the same once more.
#include "FuzzInput.h"
#include "tags/Id3v2Frames.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QByteArray tag(reinterpret_cast<const char *>(bytes), static_cast<int>(size));
    const auto parsed = tags::Id3v2Frames::parse(tag);
    if (!parsed || parsed->version == 2)
        return 0;
    const auto again = tags::Id3v2Frames::parse(parsed->toTag(tag.size() + tags::id3v2HeaderBytes));
    require(again && again->frames.size() == parsed->frames.size());
    for (int i = 0; i < parsed->frames.size(); ++i) {
        const tags::Id3v2Frame &one = parsed->frames.at(i);
        const tags::Id3v2Frame &other = again->frames.at(i);
        require(one.id == other.id && one.flags == other.flags && one.data == other.data);
    }
    return 0;
}
