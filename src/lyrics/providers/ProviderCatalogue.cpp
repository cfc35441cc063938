// SPDX-License-Identifier: MIT
#include "lyrics/providers/ProviderCatalogue.h"

#include "lyrics/providers/AZLyricsProvider.h"
#include "lyrics/providers/DarkLyricsProvider.h"
#include "lyrics/providers/GeniusProvider.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "lyrics/providers/MegaLyricsProvider.h"
#include "lyrics/providers/MusixMatchProvider.h"

std::vector<std::unique_ptr<LyricsProvider>> makeProviders(QNetworkAccessManager *networkManager)
{
    std::vector<std::unique_ptr<LyricsProvider>> providers;
    providers.push_back(std::make_unique<LyricsFreakProvider>(networkManager));
    providers.push_back(std::make_unique<GeniusProvider>(networkManager));
    providers.push_back(std::make_unique<MegaLyricsProvider>(networkManager));
    providers.push_back(std::make_unique<AZLyricsProvider>(networkManager));
    providers.push_back(std::make_unique<DarkLyricsProvider>(networkManager));
    providers.push_back(std::make_unique<MusixMatchProvider>(networkManager));
    return providers;
}
