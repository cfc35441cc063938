// SPDX-License-Identifier: MIT
#include "lyrics/providers/ProviderCatalogue.h"

#include "lyrics/providers/AZLyricsProvider.h"
#include "lyrics/providers/DarkLyricsProvider.h"
#include "lyrics/providers/GeniusProvider.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "lyrics/providers/MegaLyricsProvider.h"
#include "lyrics/providers/MusixMatchProvider.h"

std::vector<std::unique_ptr<LyricsProvider>> makeProviders(const NetworkSource &network)
{
    std::vector<std::unique_ptr<LyricsProvider>> providers;
    providers.push_back(std::make_unique<LyricsFreakProvider>(network));
    providers.push_back(std::make_unique<GeniusProvider>(network));
    providers.push_back(std::make_unique<MegaLyricsProvider>(network));
    providers.push_back(std::make_unique<AZLyricsProvider>(network));
    providers.push_back(std::make_unique<DarkLyricsProvider>(network));
    providers.push_back(std::make_unique<MusixMatchProvider>(network));
    return providers;
}
