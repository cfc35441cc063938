// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/providers/SiteClient.h"

#include <optional>

// MusixMatch: its list of tracks for the artist and the title, then the page of the first track in the list whose
// artist and title both resemble the wanted ones. What a page is shows in its content alone.
class MusixMatchProvider final : public SiteClient<MusixMatchProvider, Endpoint::MusixMatch>
{
    Q_OBJECT

public:
    using SiteClient::SiteClient;

    // The HTML of the lyrics on a track's page; empty when it is another page.
    [[nodiscard]] static QString lyricsBlock(const QString &page);
    // Reads such a block: the texts of all its lyrics, one behind the other without a separator; nothing when the block
    // is too intricate to be one.
    [[nodiscard]] static std::optional<ProviderStep> lyricsOfBlock(const QString &block);
    // The link, as it stands in the page, of the first track in a list that resembles these normalised names; nothing
    // when there is none. Tracks without a link or a name do not count.
    [[nodiscard]] static SongLink trackLink(const QString &searchPage, const QString &artist, const QString &title);

protected:
    [[nodiscard]] ProviderStep processSearch() override;
    [[nodiscard]] QNetworkRequest redirectedRequest(const QUrl &target) const override;

private:
    [[nodiscard]] ProviderStep askFor(const QUrl &url);
    [[nodiscard]] ProviderStep requestFinished(const Page &page);

    int m_requests = 0;
};
