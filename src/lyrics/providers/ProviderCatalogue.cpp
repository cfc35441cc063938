// SPDX-License-Identifier: MIT
#include "lyrics/providers/ProviderCatalogue.h"

#include "lyrics/providers/LyricsFreakProvider.h"

std::vector<std::unique_ptr<LyricsProvider>> makeProviders(QNetworkAccessManager *networkManager)
{
    std::vector<std::unique_ptr<LyricsProvider>> providers;
    providers.push_back(std::make_unique<LyricsFreakProvider>(networkManager));
    return providers;
}
