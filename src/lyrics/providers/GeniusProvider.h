// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/LyricsProvider.h"

#include <optional>

// Genius: its search service, which answers in JSON, then the page of the first song in the answer whose artist and
// title both resemble the wanted ones. Song pages come in two layouts, an older and a newer one.
class GeniusProvider final : public LyricsProvider
{
    Q_OBJECT

public:
    explicit GeniusProvider(QNetworkAccessManager *networkManager, QObject *parent = nullptr);

    [[nodiscard]] QString name() const override;
    // With a trailing slash, unlike the base address.
    [[nodiscard]] QString siteUrl() const override;
    [[nodiscard]] LyricsProvider *clone(QObject *parent) const override;

    // The path, which begins with "/", of the first song of a search answer that resembles these normalised names;
    // nothing when there is none.
    [[nodiscard]] static std::optional<QString> songPath(const QString &searchAnswer, const QString &artist,
                                                         const QString &title);
    // Reads a song's page.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    ProviderStep firstStep(const QString &artist, const QString &title) override;
    // Answers are JSON and pages that hold "%" as it is.
    [[nodiscard]] bool hasPercentEncodedPages() const override { return false; }

private:
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;

    QString m_artist; // both normalised
    QString m_title;
};
