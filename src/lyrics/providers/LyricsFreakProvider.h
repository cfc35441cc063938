// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/providers/SiteClient.h"

// LyricsFreak: its song search for the title, then the page of the first song in the answer whose artist and title
// both resemble the wanted ones.
class LyricsFreakProvider final : public SiteClient<LyricsFreakProvider, Endpoint::LyricsFreak>
{
    Q_OBJECT

public:
    using SiteClient::SiteClient;

    // The link, as it stands in the page, of the first song of a search page that resembles these normalised names;
    // nothing when there is none.
    [[nodiscard]] static SongLink songLink(const QString &searchPage, const QString &artist, const QString &title);
    // Reads a song's page.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    [[nodiscard]] ProviderStep processSearch() override;
    [[nodiscard]] QNetworkRequest redirectedRequest(const QUrl &target) const override;

private:
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;
};
