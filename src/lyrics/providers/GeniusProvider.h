// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/providers/SiteClient.h"

// Genius: its search service, which answers in JSON, then the page of the first song in the answer whose artist and
// title both resemble the wanted ones. Song pages come in two layouts, an older and a newer one.
class GeniusProvider final : public SiteClient<GeniusProvider, Endpoint::Genius>
{
    Q_OBJECT

public:
    using SiteClient::SiteClient;

    // With a trailing slash, unlike the base address.
    [[nodiscard]] QString siteUrl() const override;

    // The path, which begins with "/", of the first song of a search answer that resembles these normalised names;
    // nothing when there is none.
    [[nodiscard]] static SongLink songPath(const QString &searchAnswer, const QString &artist, const QString &title);
    // Reads a song's page.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    [[nodiscard]] ProviderStep processSearch() override;
    // Answers are JSON and pages that hold "%" as it is.
    [[nodiscard]] bool hasPercentEncodedPages() const override { return false; }

private:
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;
};
