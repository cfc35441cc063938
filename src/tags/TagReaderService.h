// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagReaderProtocol.h"

#include <functional>

namespace tags {

// The other end of TagReader: what runs in the process of its own that hostile files may do to as they like.

// Whether the arguments of a program are those of a reader process. To be asked first of all.
[[nodiscard]] bool isReaderCall(int argc, const char *const *argv);

// The whole of main() in a reader process: sets the limits on memory, cores and time, then answers requests on standard
// input until that ends. The result is the exit status.
int runReader(int argc, char **argv);

// The same with another way of reading, for tests.
using SummaryReader = std::function<TagSummary(const ReadRequest &request)>;
int runReader(int argc, char **argv, const SummaryReader &read);

// Reads a file in this process. Never throws.
[[nodiscard]] TagSummary readSummary(const ReadRequest &request);

} // namespace tags
