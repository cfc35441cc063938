// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"

#include "lyrics/LyricsText.h"
#include "lyrics/NamedCharacters.h"

#include <QRegularExpression>
#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

constexpr int mostBytes = 100 * 1000;

// A wall, or a page that has something else to say, says so at its beginning.
constexpr int beginning = 600;
// Hardly a song has so few characters.
constexpr int mostOfShort = 250;

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
        QStringLiteral("по запросу правообладател"),
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
        QStringLiteral("needs to review the security of your connection"),
        QStringLiteral("because we believe you are using automation tools"),
        QStringLiteral("have been blocked you are unable to access"),
    };
    return phrases;
}

// Wordings that hardly any song holds, folded: they tell a notice at the beginning of a text, since a song may come to
// them later. Each is long enough that a song does not hold it by chance: "you have been blocked" and "I'm not a robot"
// are sung, so they are not here.
const QStringList &wallNotices()
{
    static const QStringList phrases{
        // Not licensed, withdrawn
        QStringLiteral("due to licensing restrictions"),
        QStringLiteral("following a copyright complaint"),
        QStringLiteral("content is not available in your country"),
        // Nothing there yet
        QStringLiteral("we do not have the lyrics"),
        QStringLiteral("we don't have the lyrics for"),
        QStringLiteral("we don't have the lyrics to this"),
        QStringLiteral("lyrics for this song are currently unavailable"),
        QStringLiteral("текст песни отсутствует"),
        QStringLiteral("текст песни пока не добавлен"),
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
        QStringLiteral("access to this page has been denied"),
        QStringLiteral("you don't have permission to access this resource"),
        // No such page, no page at all
        QStringLiteral("not found on this server"),
        QStringLiteral("the page you requested"),
        QStringLiteral("the page you are looking for"),
        QStringLiteral("the page you're looking for"),
        QStringLiteral("the page you were looking for"),
        QStringLiteral("error establishing a database connection"),
        // Consent
        QStringLiteral("we use cookies to"),
        QStringLiteral("we use cookies and"),
        QStringLiteral("before you continue to google"),
        QStringLiteral("before you continue to youtube"),
        // Prove to be human
        QStringLiteral("complete the captcha"),
        QStringLiteral("solve the captcha"),
        QStringLiteral("enter the characters you see"),
        QStringLiteral("complete the security check to access"),
        QStringLiteral("checking your browser before"),
        QStringLiteral("checking if the site connection is secure"),
        QStringLiteral("verify you are human by completing"),
        QStringLiteral("verifying you are human. this may take"),
        QStringLiteral("verify that you are not a robot"),
        QStringLiteral("prove you are not a robot"),
        QStringLiteral("подтвердите, что вы не робот"),
        // Shells that a script was to fill
        QStringLiteral("enable javascript"),
        QStringLiteral("javascript is disabled"),
        QStringLiteral("javascript is required"),
        QStringLiteral("включите javascript"),
    };
    return phrases;
}

// Wordings that a song may well hold, folded, but hardly one of so few words.
const QStringList &shortNotices()
{
    static const QStringList phrases{
        // Not licensed, withdrawn
        QStringLiteral("lyrics have been removed"),
        // Nothing there yet
        QStringLiteral("lyrics coming soon"),
        QStringLiteral("song is instrumental"),
        QStringLiteral("song is an instrumental"),
        // An account is needed
        QStringLiteral("log in to continue"),
        QStringLiteral("sign in to continue"),
        // No such page, no page at all
        QStringLiteral("page does not exist"),
        QStringLiteral("page could not be found"),
        QStringLiteral("page was not found"),
        QStringLiteral("down for maintenance"),
        QStringLiteral("account has been suspended"),
        QStringLiteral("domain is for sale"),
        // Consent
        QStringLiteral("we use cookies"),
        QStringLiteral("before you continue,"),
        // Prove to be human
        QStringLiteral("verify you are human"),
        QStringLiteral("verify you are a human"),
        QStringLiteral("verifying you are human"),
    };
    return phrases;
}

// Notices that are so brief that only a text of nothing else is one, folded and without what stands around the words.
const QStringList &wholeNotices()
{
    static const QStringList notices{
        QStringLiteral("access denied"),
        QStringLiteral("403 forbidden"),
        QStringLiteral("404 not found"),
        QStringLiteral("429 too many requests"),
        QStringLiteral("too many requests"),
        QStringLiteral("503 service unavailable"),
        QStringLiteral("page not found"),
        QStringLiteral("loading lyrics"),
        QStringLiteral("lyrics not found"),
        QStringLiteral("lyrics not available"),
        QStringLiteral("lyrics unavailable"),
        QStringLiteral("no lyrics available"),
        QStringLiteral("no lyrics found"),
        QStringLiteral("restricted lyrics"),
        QStringLiteral("please log in"),
        QStringLiteral("just a moment"),
        QStringLiteral("lyrics licensed & provided by lyricfind"),
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

// A letter or a digit in any script, apart from tags of layout: a page that is to be filled later has none.
bool holdsWords(const QString &text)
{
    for (int at = 0; at < text.size();) {
        const int end = behindLayoutTag(text, at);
        const QChar c = text.at(at);
        const bool pair = c.isHighSurrogate() && at + 1 < text.size();
        const uint character = pair ? QChar::surrogateToUcs4(c, text.at(at + 1)) : c.unicode();
        if (end <= 0 && QChar::isLetterOrNumber(character))
            return true;
        at = end > 0 ? end : at + (pair ? 2 : 1);
    }
    return false;
}

// As it ends in the tag: whoever takes the lyrics decodes references once more.
QString asStored(const QString &lyrics)
{
    const QString given = withoutBrokenCharacters(withNamedCharacters(lyrics));
    return withoutBrokenCharacters(decodeHtmlEntities(given));
}

QString folded(const QString &text)
{
    return text.simplified().toLower().replace(QChar(0x2019), QLatin1Char('\''));
}

// Without brackets, dots and a word of regret around it.
QString bare(const QString &notice)
{
    static const QRegularExpression around(QStringLiteral("^\\W*(sorry\\W+)?|\\W+$"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    return QString(notice).remove(around);
}

bool holdsOneOf(const QString &text, const QStringList &phrases)
{
    return std::any_of(phrases.begin(), phrases.end(),
                       [&text](const QString &phrase) { return text.contains(phrase); });
}

bool isNotice(const QString &lyrics)
{
    const QString text = folded(lyrics);
    if (holdsOneOf(text, sureNotices()) || holdsOneOf(text.left(beginning), wallNotices()))
        return true;
    return text.size() <= mostOfShort && (holdsOneOf(text, shortNotices()) || wholeNotices().contains(bare(text)));
}

// Characters that could not be read. One or two in many words were cut by the site.
bool isBroken(const QString &text)
{
    constexpr int mostBroken = 2;
    constexpr int lettersToEach = 100;
    const int broken = text.count(QChar::ReplacementCharacter);
    return broken > mostBroken || broken * lettersToEach > text.size();
}

} // namespace

bool isJunk(const QString &lyrics, const QString &markup)
{
    if (lyrics.isEmpty())
        return false;
    if (lyrics.toUtf8().size() > mostBytes || holdsLeftOvers(markup))
        return true;
    const QString text = asStored(lyrics);
    return !holdsWords(text) || isBroken(text) || holdsLeftOvers(text) || isNotice(text);
}
