// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/SongLink.h"

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
    QByteArray source = {}; // the whole page in UTF-8, before escapes were decoded
};

// What a site client makes of a page: ask for another one, these are the lyrics, nothing here, or a failure.
// LyricsProvider carries it out.
class ProviderStep
{
public:
    enum class Kind { Ask, Result };
    // What a result means. People see no difference between the last three, but the log does.
    enum class Meaning { Lyrics, Failure, NoSuchSong, ListedNothing, NotUnderstood };
    using PageFunction = std::function<ProviderStep(const Page &)>;

    // Get `request`, and let `read` say what comes after. The function must not outlive the client.
    static ProviderStep ask(const QNetworkRequest &request, PageFunction read);
    // Ends the search with what a song's page gave; when that is nothing, as notUnderstood(). `markup` is what a
    // clean-up that strips tags made the text of; it tells a script in the middle of the lyrics from words.
    static ProviderStep lyrics(const QString &text, const QString &markup = {});
    // Ends the search with what cleanLyrics() makes of a fragment of HTML without its scripts and style sheets; without
    // a fragment, as notUnderstood().
    static ProviderStep cleanedLyrics(const std::optional<QString> &markup);
    // Ends the search on a list of songs without the wanted one.
    static ProviderStep without(SongLink::Missing why);
    // Ends the search without words, or like failure() when people are told a reason.
    static ProviderStep notUnderstood(const QString &reason = {});
    // Ends the search for a reason that people are told.
    static ProviderStep failure(const QString &reason);

    [[nodiscard]] Kind kind() const { return m_read ? Kind::Ask : Kind::Result; }
    [[nodiscard]] const QNetworkRequest &request() const { return m_request; }
    [[nodiscard]] const PageFunction &pageFunction() const { return m_read; }
    [[nodiscard]] const QString &lyrics() const { return m_lyrics; }
    [[nodiscard]] const QString &markup() const { return m_markup; }
    [[nodiscard]] const QString &errorString() const { return m_errorString; }
    [[nodiscard]] Meaning meaning() const { return m_meaning; } // of a result

private:
    ProviderStep(Meaning meaning, const QString &errorString)
        : m_errorString(errorString)
        , m_meaning(meaning)
    {
    }

    QNetworkRequest m_request;
    PageFunction m_read;
    QString m_lyrics;
    QString m_markup;
    QString m_errorString;
    Meaning m_meaning;
};
