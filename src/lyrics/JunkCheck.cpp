// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"

#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

constexpr int mostBytes = 100 * 1000;

// Longer texts hold more than a notice.
constexpr int longestNotice = 600;

// A closing tag alone is the end of a script whose beginning was cut off.
const std::array<QLatin1String, 6> leftOvers{QLatin1String("<script"), QLatin1String("</script"),
                                             QLatin1String("<style"),  QLatin1String("</style"),
                                             QLatin1String("<html"),   QLatin1String("<!DOCTYPE")};
const std::array<QLatin1String, 4> layoutTags{QLatin1String("br"), QLatin1String("p"), QLatin1String("div"),
                                              QLatin1String("span")};

bool holdsLeftOvers(const QString &text)
{
    return std::any_of(leftOvers.begin(), leftOvers.end(),
                       [&text](QLatin1String leftOver) { return text.contains(leftOver, Qt::CaseInsensitive); });
}

// Wordings that sites and the shields before them use and no song does, folded.
const QStringList &sureNotices()
{
    static const QStringList phrases{
        // Not licensed, withdrawn
        QStringLiteral("not authorized to show these lyrics"),
        QStringLiteral("not authorized to display these lyrics"),
        QStringLiteral("not authorised to display these lyrics"),
        QStringLiteral("not licensed to display"),
        QStringLiteral("at the request of the copyright"),
        QStringLiteral("at the request of the rights holder"),
        QStringLiteral("lyrics are not available in your country"),
        QStringLiteral("по требованию правообладател"),
        QStringLiteral("по просьбе правообладател"),
        // Nothing there yet
        QStringLiteral("lyrics for this song have yet to be released"),
        QStringLiteral("be the first to add the lyrics"),
        // An account is needed
        QStringLiteral("log in to view the lyrics"),
        QStringLiteral("log in to see the lyrics"),
        QStringLiteral("sign in to view the lyrics"),
        QStringLiteral("sign in to see the lyrics"),
        // Blocked
        QStringLiteral("using a security service to protect itself"),
        QStringLiteral("cloudflare ray id"),
    };
    return phrases;
}

// Wordings that hardly any song holds, folded: they tell a notice only where there is no song around them. Each is long
// enough that a short song does not hold it by chance: "you have been blocked" and "I'm not a robot" are sung, so they
// are not here.
const QStringList &likelyNotices()
{
    static const QStringList phrases{
        // Not licensed, withdrawn
        QStringLiteral("due to licensing restrictions"),
        QStringLiteral("following a copyright complaint"),
        QStringLiteral("content is not available in your country"),
        // Nothing there yet
        QStringLiteral("we do not have the lyrics"),
        QStringLiteral("we don't have the lyrics for"),
        QStringLiteral("текст песни отсутствует"),
        // An account is needed
        QStringLiteral("you must be logged in to"),
        QStringLiteral("you need to be logged in to"),
        QStringLiteral("log in or sign up to"),
        QStringLiteral("sign up or log in to"),
        // Blocked
        QStringLiteral("your ip address has been blocked"),
        QStringLiteral("your ip has been blocked"),
        QStringLiteral("unusual traffic from your"),
        QStringLiteral("unusual activity from your"),
        QStringLiteral("blocked by the site owner"),
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

// The position behind a tag of layout that stands here; -1 when none does.
int behindLayoutTag(const QString &text, int position)
{
    if (text.at(position) != QLatin1Char('<'))
        return -1;
    const bool closing = QStringView(text).mid(position + 1).startsWith(QLatin1Char('/'));
    const QStringView name = QStringView(text).mid(position + (closing ? 2 : 1));
    const bool known = std::any_of(layoutTags.begin(), layoutTags.end(), [name](QLatin1String tag) {
        const bool longer = name.size() > tag.size() && name.at(tag.size()).isLetterOrNumber();
        return name.startsWith(tag, Qt::CaseInsensitive) && !longer;
    });
    return known ? text.indexOf(QLatin1Char('>'), position) + 1 : -1;
}

// Something, but no words: the page was to be filled later.
bool isShell(const QString &lyrics)
{
    const QLatin1String blank("&nbsp;");
    int at = 0;
    while (at < lyrics.size()) {
        if (lyrics.at(at).isSpace())
            ++at;
        else if (QStringView(lyrics).mid(at).startsWith(blank))
            at += blank.size();
        else if (const int end = behindLayoutTag(lyrics, at); end > 0)
            at = end;
        else
            return false;
    }
    return true;
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

bool holdsOneOf(const QString &text, const QStringList &phrases)
{
    return std::any_of(phrases.begin(), phrases.end(),
                       [&text](const QString &phrase) { return text.contains(phrase); });
}

bool isNotice(const QString &lyrics)
{
    const QString text = folded(lyrics);
    return wholeNotices().contains(withoutFinalDots(text)) || holdsOneOf(text, sureNotices()) ||
           (text.size() <= longestNotice && holdsOneOf(text, likelyNotices()));
}

} // namespace

bool isJunk(const QString &lyrics, const QString &markup)
{
    if (lyrics.isEmpty())
        return false;
    return lyrics.toUtf8().size() > mostBytes || holdsLeftOvers(lyrics) || holdsLeftOvers(markup) || isShell(lyrics) ||
           isNotice(lyrics);
}
