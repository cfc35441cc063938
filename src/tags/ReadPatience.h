// SPDX-License-Identifier: MIT
#pragma once

namespace tags {

// How long the reading of one file may take (TagReader::Limits). Disks that sleep, and shares that have to be connected
// anew, take their time, but nobody should wait for them as long as there is anything else to read.
enum class ReadPatience { Usual, Long };

} // namespace tags
