// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/providers/SiteClient.h"

// Megalyrics, a Russian site: its search for artist and title, then the page of the first song in the table of the
// answer whose names both resemble the wanted ones. Its texts have a decoder of their own (MegaLyricsText).
class MegaLyricsProvider final : public SiteClient<MegaLyricsProvider, Endpoint::Megalyrics>
{
    Q_OBJECT

public:
    using SiteClient::SiteClient;

    // The link, as it stands in the page, of the first song of a search page that resembles these normalised names;
    // nothing when there is none. Rows that lack a name do not count.
    [[nodiscard]] static SongLink songLink(const QString &searchPage, const QString &artist, const QString &title);
    // Reads a song's page.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    [[nodiscard]] ProviderStep processSearch() override;

private:
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;
};
