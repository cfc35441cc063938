// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/providers/SiteClient.h"

#include <QMap>

#include <optional>

// DarkLyrics: its search, then the album's page that the first link in the answer leads to whose text resembles the
// wanted artist and title; the song is the part of that page under the anchor that the link names.
//
// The site wants a cookie that its pages compute in a script. The client runs that script, which is a fixed text of
// its own: nothing of a page ever reaches the script engine.
class DarkLyricsProvider final : public SiteClient<DarkLyricsProvider, Endpoint::DarkLyrics>
{
    Q_OBJECT

public:
    using SiteClient::SiteClient;

    // The parts of the content of a page by their headings: the HTML in each heading up to a colon, in lower case. What
    // stands before the first heading has an empty key. Of several parts with one key the last one stays. The part
    // under the last heading goes on to the end of the content, so an album's last song takes the page's credits with
    // it; this is deliberate.
    [[nodiscard]] static QMap<QString, QString> sections(const QString &page);
    // The link, as it stands in the page, of the first song of a search page that resembles these normalised names;
    // nothing when there is none. Links without a text do not count.
    [[nodiscard]] static SongLink songLink(const QString &searchPage, const QString &artist, const QString &title);
    // The HTML of the song under the anchor of this name, in any letter case; nothing when there is none.
    [[nodiscard]] static std::optional<QString> songUnderAnchor(const QString &albumPage, const QString &anchor);
    // Reads an album's page, whose address names the song's anchor.
    [[nodiscard]] static ProviderStep lyricsRequestFinished(const Page &page);

protected:
    [[nodiscard]] ProviderStep processSearch() override;
    [[nodiscard]] QNetworkRequest redirectedRequest(const QUrl &target) const override;

private:
    [[nodiscard]] ProviderStep infoRequestFinished(const Page &page) const;
};
