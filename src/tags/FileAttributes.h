// SPDX-License-Identifier: MIT
#pragma once

namespace tags {

// Gives a file the owner, the mode, the extended attributes and with them the access lists of another, and takes away
// those that the other has not; 0, or the errno of the first for which that cannot be. Both are descriptors of open
// files. What the system alone may set, such as a security label, is not insisted on.
[[nodiscard]] int carryAttributes(int from, int to);

} // namespace tags
