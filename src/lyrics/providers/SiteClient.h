// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/LyricsProvider.h"
#include "lyrics/SongNames.h"
#include "network/Endpoints.h"

// What the clients of all sites have in common beyond the frame: the site's name, which is the key of its base address,
// that address, the copies, and the names of the song as sites list it. `Site` is the client itself.
template<typename Site, Endpoint siteEndpoint>
class SiteClient : public LyricsProvider
{
public:
    using LyricsProvider::LyricsProvider;

    [[nodiscard]] QString name() const override { return endpointKey(siteEndpoint); }
    [[nodiscard]] QString siteUrl() const override { return endpointBase(siteEndpoint).toString(); }
    [[nodiscard]] LyricsProvider *clone(QObject *parent) const override { return new Site(network(), parent); }

protected:
    // The first request for artist() and title().
    [[nodiscard]] virtual ProviderStep processSearch() = 0;

    // Of the song that is searched for, normalised.
    [[nodiscard]] const QString &artist() const { return m_artist; }
    [[nodiscard]] const QString &title() const { return m_title; }
    // Both, as the value of a query.
    [[nodiscard]] QString artistAndTitle() const { return queryValue(m_artist + QLatin1Char(' ') + m_title); }

private:
    [[nodiscard]] ProviderStep firstStep(const QString &artist, const QString &title) final
    {
        m_artist = normalisedArtist(artist);
        m_title = normalisedTitle(title);
        return processSearch();
    }

    QString m_artist;
    QString m_title;
};
