// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

class LyricsProvider;
class NetworkSource;

// A client for each lyrics site, in the order in which the sites are tried unless the user wants another. The access
// manager must outlive the clients.
[[nodiscard]] std::vector<std::unique_ptr<LyricsProvider>> makeProviders(const NetworkSource &network);
