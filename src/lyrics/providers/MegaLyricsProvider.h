// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/LyricsProvider.h"

#include <optional>

// Megalyrics, a Russian site: its search for artist and title, then the page of the first song in the table of the
// answer whose names both resemble the wanted ones. Its texts have a decoder of their own (MegaLyricsText).
class MegaLyricsProvider final : public LyricsProvider
{
    Q_OBJECT

public:
    explicit MegaLyricsProvider(QNetworkAccessManager *networkManager, QObject *parent = nullptr);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString siteUrl() const override;
    [[nodiscard]] LyricsProvider *clone(QObject *parent) const override;

    // The link, as it stands in the page, of the first song of a search page that resembles these normalised names;
    // nothing when there is none.
    [[nodiscard]] static std::optional<QString> songLink(const QString &searchPage, const QString &artist,
                                                         const QString &title);
    // Reads a song's page.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    ProviderStep firstStep(const QString &artist, const QString &title) override;

private:
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;

    QString m_artist; // both normalised
    QString m_title;
};
