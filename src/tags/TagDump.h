// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TagLib {
class Tag;
}

namespace tags {

// All names and values of an ASF, an ID3v2 or a Xiph tag, one a line between two rules, for someone who looks for a
// fault; nothing in the program calls it. Empty for other formats. It holds lyrics, so it belongs in no log.
QString dumpOf(const TagLib::Tag &tag);

} // namespace tags
