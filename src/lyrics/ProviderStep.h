// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkRequest>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

// A page as a site client reads it: the decoded text, up to the first NUL, and the address it came from, behind all
// redirects and with the fragment that was asked for.
struct Page
{
    QString text;
    QUrl url;
};

// What a site client makes of a page: ask for another one, these are the lyrics, nothing here, or a failure.
// LyricsProvider carries it out.
class ProviderStep
{
public:
    enum class Kind { Ask, Result };
    using PageFunction = std::function<ProviderStep(const Page &)>;

    // Get `request`, and let `read` say what comes after. The function must not outlive the client.
    static ProviderStep ask(const QNetworkRequest &request, PageFunction read);
    // Ends the search; an empty text means that nothing was found. `markup` is what a clean-up that strips tags made
    // the text of; it tells a script in the middle of the lyrics from words.
    static ProviderStep lyrics(const QString &text, const QString &markup = {});
    // Ends the search with what cleanLyrics() makes of a fragment of HTML without its scripts and style sheets; without
    // a fragment, as notUnderstood().
    static ProviderStep cleanedLyrics(const std::optional<QString> &markup);
    // Ends the search: the site does not have the song.
    static ProviderStep nothing() { return lyrics({}); }
    // Ends the search like nothing(), or like failure() when people are told a reason. The log tells them apart, since
    // a site that has changed its pages looks as if it had no songs.
    static ProviderStep notUnderstood(const QString &reason = {});
    // nothing() on a page that holds `mark`, as every page with results of this site does; else notUnderstood().
    static ProviderStep nothingOn(const Page &page, QLatin1String mark);
    // Ends the search for a reason that people are told.
    static ProviderStep failure(const QString &reason);

    [[nodiscard]] Kind kind() const { return m_read ? Kind::Ask : Kind::Result; }
    [[nodiscard]] const QNetworkRequest &request() const { return m_request; }
    [[nodiscard]] const PageFunction &pageFunction() const { return m_read; }
    [[nodiscard]] const QString &lyrics() const { return m_lyrics; }
    [[nodiscard]] const QString &markup() const { return m_markup; }
    [[nodiscard]] const QString &errorString() const { return m_errorString; }
    [[nodiscard]] bool isUnderstood() const { return m_understood; }

private:
    ProviderStep() = default;

    QNetworkRequest m_request;
    PageFunction m_read;
    QString m_lyrics;
    QString m_markup;
    QString m_errorString;
    bool m_understood = true;
};
