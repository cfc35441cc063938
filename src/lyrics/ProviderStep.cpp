// SPDX-License-Identifier: MIT
#include "lyrics/ProviderStep.h"

#include "lyrics/LyricsText.h"

#include <utility>

ProviderStep ProviderStep::ask(const QNetworkRequest &request, PageFunction read)
{
    Q_ASSERT(read);
    ProviderStep step(Meaning::Lyrics, {});
    step.m_request = request;
    step.m_read = std::move(read);
    return step;
}

ProviderStep ProviderStep::lyrics(const QString &text, const QString &markup)
{
    ProviderStep step(text.isEmpty() ? Meaning::NotUnderstood : Meaning::Lyrics, {});
    step.m_lyrics = text;
    step.m_markup = markup;
    return step;
}

ProviderStep ProviderStep::cleanedLyrics(const std::optional<QString> &markup)
{
    if (!markup)
        return notUnderstood();
    const QString rest = withoutComments(withoutScriptsAndStyles(*markup));
    return lyrics(cleanLyrics(rest), rest);
}

ProviderStep ProviderStep::without(SongLink::Missing why)
{
    switch (why) {
    case SongLink::Missing::NoSuchSong:
        return {Meaning::NoSuchSong, {}};
    case SongLink::Missing::ListedNothing:
        return {Meaning::ListedNothing, {}};
    case SongLink::Missing::NotUnderstood:
        break;
    }
    return notUnderstood();
}

ProviderStep ProviderStep::notUnderstood(const QString &reason)
{
    return {Meaning::NotUnderstood, reason};
}

ProviderStep ProviderStep::failure(const QString &reason)
{
    return {Meaning::Failure, reason};
}
