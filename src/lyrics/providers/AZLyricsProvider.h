// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/providers/SiteClient.h"

#include <QPair>

// AZLyrics: a small script that hands out a parameter for the search, the search for artist and title, then the page of
// the first song in the answer whose artist resembles the wanted one.
class AZLyricsProvider final : public SiteClient<AZLyricsProvider, Endpoint::AZLyrics>
{
    Q_OBJECT

public:
    using SiteClient::SiteClient;

    // The name and the value of the parameter that the script hands out; each empty when it does not name it.
    [[nodiscard]] static QPair<QString, QString> searchParameter(const QString &script);
    // The link, as it stands in the page, of the first song of a search page whose artist resembles this normalised
    // one; nothing when there is none. Rows that do not name their artist do not count. The site's ranking is trusted
    // for the title, which is deliberate.
    [[nodiscard]] static SongLink songLink(const QString &searchPage, const QString &artist);
    // Reads a song's page.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    [[nodiscard]] ProviderStep processSearch() override;
    [[nodiscard]] QNetworkRequest redirectedRequest(const QUrl &target) const override;

private:
    [[nodiscard]] ProviderStep scriptRequestFinished(const Page &page);
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;
};
