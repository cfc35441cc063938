// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"

#include "lyrics/LyricsText.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr int mostBytes = 100 * 1000;

const std::array<QLatin1String, 4> leftOvers{QLatin1String("<script"), QLatin1String("<style"), QLatin1String("<html"),
                                             QLatin1String("<!DOCTYPE")};

bool holdsLeftOvers(const QString &text)
{
    return std::any_of(leftOvers.begin(), leftOvers.end(),
                       [&text](QLatin1String leftOver) { return text.contains(leftOver, Qt::CaseInsensitive); });
}

// Wordings that sites and the shields before them use and songs do not, folded. Each is long enough that a line of a
// song does not hold it by chance: "you have been blocked" and "I'm not a robot" are sung, so they are not here.
const QStringList &noticePhrases()
{
    static const QStringList phrases{
        // Not licensed, withdrawn
        QStringLiteral("not authorized to show these lyrics"),
        QStringLiteral("not authorized to display these lyrics"),
        QStringLiteral("not authorised to display these lyrics"),
        QStringLiteral("not licensed to display"),
        QStringLiteral("due to licensing restrictions"),
        QStringLiteral("at the request of the copyright"),
        QStringLiteral("at the request of the rights holder"),
        QStringLiteral("following a copyright complaint"),
        QStringLiteral("lyrics are not available in your country"),
        QStringLiteral("content is not available in your country"),
        QStringLiteral("по требованию правообладател"),
        QStringLiteral("по просьбе правообладател"),
        // Nothing there yet
        QStringLiteral("lyrics for this song have yet to be released"),
        QStringLiteral("we do not have the lyrics"),
        QStringLiteral("we don't have the lyrics for"),
        QStringLiteral("be the first to add the lyrics"),
        QStringLiteral("текст песни отсутствует"),
        // An account is needed
        QStringLiteral("you must be logged in to"),
        QStringLiteral("you need to be logged in to"),
        QStringLiteral("log in to view the lyrics"),
        QStringLiteral("log in to see the lyrics"),
        QStringLiteral("sign in to view the lyrics"),
        QStringLiteral("sign in to see the lyrics"),
        QStringLiteral("log in or sign up to"),
        QStringLiteral("sign up or log in to"),
        // Blocked
        QStringLiteral("your ip address has been blocked"),
        QStringLiteral("your ip has been blocked"),
        QStringLiteral("unusual traffic from your"),
        QStringLiteral("unusual activity from your"),
        QStringLiteral("blocked by the site owner"),
        QStringLiteral("using a security service to protect itself"),
        QStringLiteral("cloudflare ray id"),
        QStringLiteral("you don't have permission to access this resource"),
        QStringLiteral("not found on this server"),
        // Prove to be human
        QStringLiteral("complete the captcha"),
        QStringLiteral("solve the captcha"),
        QStringLiteral("enter the characters you see"),
        QStringLiteral("complete the security check to access"),
        QStringLiteral("checking your browser before"),
        QStringLiteral("verify you are human by completing"),
        QStringLiteral("verify that you are not a robot"),
        QStringLiteral("подтвердите, что вы не робот"),
        // Shells that a script was to fill
        QStringLiteral("enable javascript"),
        QStringLiteral("javascript is disabled"),
        QStringLiteral("javascript is required"),
        QStringLiteral("включите javascript"),
    };
    return phrases;
}

// Notices that are so short that only a text of nothing else is one.
const QStringList &wholeNotices()
{
    static const QStringList notices{
        QStringLiteral("access denied"),          QStringLiteral("403 forbidden"),
        QStringLiteral("404 not found"),          QStringLiteral("429 too many requests"),
        QStringLiteral("too many requests"),      QStringLiteral("503 service unavailable"),
        QStringLiteral("page not found"),         QStringLiteral("loading lyrics"),
        QStringLiteral("lyrics not found"),       QStringLiteral("lyrics not available"),
        QStringLiteral("no lyrics available"),    QStringLiteral("no lyrics found"),
        QStringLiteral("sorry, no lyrics found"), QStringLiteral("restricted lyrics"),
        QStringLiteral("please log in"),          QStringLiteral("just a moment"),
    };
    return notices;
}

// Something, but no words: the page was to be filled later.
bool isShell(const QString &lyrics)
{
    return !lyrics.isEmpty() && stripTags(lyrics).remove(QLatin1String("&nbsp;")).trimmed().isEmpty();
}

QString folded(const QString &lyrics)
{
    return lyrics.simplified().toLower().replace(QChar(0x2019), QLatin1Char('\''));
}

QString withoutFinalDots(QString text)
{
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QLatin1Char('!')) || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text;
}

bool isNotice(const QString &lyrics)
{
    const QString text = folded(lyrics);
    return wholeNotices().contains(withoutFinalDots(text)) ||
           std::any_of(noticePhrases().begin(), noticePhrases().end(),
                       [&text](const QString &phrase) { return text.contains(phrase); });
}

} // namespace

bool isJunk(const QString &lyrics, const QString &markup)
{
    return lyrics.toUtf8().size() > mostBytes || holdsLeftOvers(lyrics) || holdsLeftOvers(withoutComments(markup)) ||
           isShell(lyrics) || isNotice(lyrics);
}
