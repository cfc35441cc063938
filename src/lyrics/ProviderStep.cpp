// SPDX-License-Identifier: MIT
#include "lyrics/ProviderStep.h"

#include "lyrics/LyricsText.h"

#include <utility>

ProviderStep ProviderStep::ask(const QNetworkRequest &request, PageFunction read)
{
    Q_ASSERT(read);
    ProviderStep step;
    step.m_request = request;
    step.m_read = std::move(read);
    return step;
}

ProviderStep ProviderStep::lyrics(const QString &text, const QString &markup)
{
    ProviderStep step;
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

ProviderStep ProviderStep::notUnderstood(const QString &reason)
{
    ProviderStep step = failure(reason);
    step.m_understood = false;
    return step;
}

ProviderStep ProviderStep::nothingOn(const Page &page, QLatin1String mark)
{
    return page.text.contains(mark) ? nothing() : notUnderstood();
}

ProviderStep ProviderStep::failure(const QString &reason)
{
    ProviderStep step;
    step.m_errorString = reason;
    return step;
}
