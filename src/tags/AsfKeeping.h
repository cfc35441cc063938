// SPDX-License-Identifier: MIT
#pragma once

#include "tags/FileBytes.h"

#include <QByteArray>
#include <QSet>

namespace TagLib {
class IOStream;
}

namespace tags {

// TagLib stores the first of several values of an ASF attribute that is no longer than 64 KB in one object of the
// header and the others in another, which turns them round where there is a longer one, or where the objects lie in
// another order. Then the header of the copy is made anew out of the original one, in which the edited items are
// replaced by what TagLib has written. Anything else, a damaged header too, stays as TagLib wrote it; what was still
// not kept shows when songs are compared.
void keepAsfAttributes(TagLib::IOStream &copy, const FileBytes &written, const FileBytes &original,
                       const QSet<QByteArray> &editedKeys);

} // namespace tags
