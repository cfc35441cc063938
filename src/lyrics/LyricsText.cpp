// SPDX-License-Identifier: MIT
#include "lyrics/LyricsText.h"

#include <QChar>
#include <QLatin1String>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

// "&#x" and five hexadecimal digits, without the ";".
constexpr int longestReference = 8;

// What the bytes 0x80 to 0x9F are in windows-1252; 0 where they are nothing.
constexpr std::array<ushort, 32> windows1252{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

constexpr QChar byteOrderMark(0xFEFF);
constexpr QChar zeroWidthSpace(0x200B);

bool isDecimalDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isHexDigit(QChar c)
{
    const QChar lower = c.toLower();
    return isDecimalDigit(c) || (lower >= QLatin1Char('a') && lower <= QLatin1Char('f'));
}

// The code point that "x41" or "65" stands for, -1 when it is none of the references we decode.
int codePointOf(QStringView digits)
{
    const bool hex = digits.startsWith(QLatin1Char('x'));
    if (hex)
        digits = digits.mid(1);
    if (digits.size() < 2 || digits.size() > (hex ? 5 : 6))
        return -1;
    if (!std::all_of(digits.begin(), digits.end(), hex ? isHexDigit : isDecimalDigit))
        return -1;
    return digits.toString().toInt(nullptr, hex ? 16 : 10);
}

void appendCodePoint(QString &text, int codePoint)
{
    const auto ucs4 = static_cast<uint>(codePoint);
    if (QChar::requiresSurrogates(ucs4))
        text.append(QChar(QChar::highSurrogate(ucs4))).append(QChar(QChar::lowSurrogate(ucs4)));
    else
        text.append(QChar(static_cast<ushort>(ucs4)));
}

// Replaces the reference that a ";" behind the text would complete, if there is one, and tells its code point.
int takeReferenceAtEnd(QString &text)
{
    const QStringView tail = QStringView(text).right(std::min(text.size(), longestReference));
    const auto start = tail.lastIndexOf(QLatin1Char('&'));
    if (start < 0 || !tail.mid(start).startsWith(QLatin1String("&#")))
        return -1;
    const int codePoint = codePointOf(tail.mid(start + 2));
    if (codePoint >= 0)
        text.chop(static_cast<int>(tail.size() - start));
    return codePoint;
}

// The same for a reference of any number of decimal digits.
int takeDecimalReferenceAtEnd(QString &text)
{
    int start = text.size();
    while (start > 0 && isDecimalDigit(text.at(start - 1)))
        --start;
    if (start == text.size() || !QStringView(text).left(start).endsWith(QLatin1String("&#")))
        return -1;
    bool fits = false;
    const uint codePoint = QStringView(text).mid(start).toString().toUInt(&fits);
    text.truncate(start - 2);
    return fits && codePoint <= QChar::LastValidCodePoint ? static_cast<int>(codePoint) : QChar::ReplacementCharacter;
}

// A decoded character may complete another reference ("&#3&#56;;" is "&#38;" is "&"). References cannot overlap, so
// the order of decoding does not matter, and going once over the text while looking back from each ";" decodes them
// all.
template<typename TakeReference>
QString decodeReferences(const QString &text, TakeReference takeReference)
{
    QString decoded;
    decoded.reserve(text.size());
    for (const QChar c : text) {
        int next = c.unicode();
        while (next == ';') {
            const int codePoint = takeReference(decoded);
            if (codePoint < 0)
                break;
            next = codePoint;
        }
        appendCodePoint(decoded, next);
    }
    return decoded;
}

// Whether a tag of this name stands at `position`, which is behind the "<" or "</".
bool isTagName(QStringView html, qsizetype position, QLatin1String name)
{
    const QStringView rest = html.mid(position);
    const bool longer = rest.size() > name.size() && rest.at(name.size()).isLetterOrNumber();
    return rest.startsWith(name, Qt::CaseInsensitive) && !longer;
}

// The position behind the next closing tag of this name; -1 when there is none.
int behindClosingTag(QStringView html, int from, QLatin1String name)
{
    auto at = html.indexOf(QLatin1String("</"), from);
    while (at >= 0 && !isTagName(html, at + 2, name))
        at = html.indexOf(QLatin1String("</"), at + 2);
    const auto end = at < 0 ? -1 : html.indexOf(QLatin1Char('>'), at);
    return end < 0 ? -1 : static_cast<int>(end) + 1;
}

// The name of the element that begins at a "<", when it is one whose content nobody sees; else empty.
QLatin1String hiddenElementAt(QStringView html, int position)
{
    for (const QLatin1String name : {QLatin1String("script"), QLatin1String("style")}) {
        if (isTagName(html, position + 1, name))
            return name;
    }
    return {};
}

// The position behind a break tag that starts at `position` and behind one newline after it; -1 when none starts
// there.
int endOfBreak(const QString &html, int position)
{
    int i = position + 3;
    while (i < html.size() && html.at(i).isSpace())
        ++i;
    if (i < html.size() && html.at(i) == QLatin1Char('/'))
        ++i;
    if (i >= html.size() || html.at(i) != QLatin1Char('>'))
        return -1;
    ++i;
    return i < html.size() && html.at(i) == QLatin1Char('\n') ? i + 1 : i;
}

QString withBreaksAsNewlines(const QString &html)
{
    QString result;
    result.reserve(html.size());
    int copied = 0;
    int position = 0;
    while ((position = html.indexOf(QLatin1String("<br"), position)) >= 0) {
        const int end = endOfBreak(html, position);
        if (end < 0) {
            ++position;
            continue;
        }
        result.append(QStringView(html).mid(copied, position - copied)).append(QLatin1Char('\n'));
        copied = position = end;
    }
    return result.append(QStringView(html).mid(copied));
}

// What becomes of a character that is not one half of a pair; null when it goes.
QChar keptCharacter(QChar c)
{
    const ushort code = c.unicode();
    if (code >= 0x80 && code < 0xA0)
        return QChar(windows1252[code - 0x80U]);
    const bool controls =
        (code < 0x20 && c != QLatin1Char('\t') && c != QLatin1Char('\n') && c != QLatin1Char('\r')) || code == 0x7F;
    if (controls || c == byteOrderMark)
        return {};
    return c.isSurrogate() ? QChar(QChar::ReplacementCharacter) : c;
}

QString withoutZeroWidthEnds(const QString &text)
{
    int begin = 0;
    int end = text.size();
    while (begin < end && text.at(begin) == zeroWidthSpace)
        ++begin;
    while (end > begin && text.at(end - 1) == zeroWidthSpace)
        --end;
    return text.mid(begin, end - begin);
}

} // namespace

QString decodeDecimalReferences(const QString &text)
{
    return decodeReferences(text, takeDecimalReferenceAtEnd);
}

QString decodeHtmlEntities(const QString &text)
{
    if (!text.contains(QLatin1Char('&'))) // as most names
        return text;
    QString decoded = decodeReferences(text, takeReferenceAtEnd);
    // The order is part of the meaning: what "&amp;" uncovers is decoded by the lines below it.
    decoded.replace(QLatin1String("&amp;"), QLatin1String("&"));
    decoded.replace(QLatin1String("&gt;"), QLatin1String(">"));
    decoded.replace(QLatin1String("&lt;"), QLatin1String("<"));
    decoded.replace(QLatin1String("&quot;"), QLatin1String("\""));
    decoded.replace(QLatin1String("&#39;"), QLatin1String("'"));
    decoded.replace(QLatin1String("&#039;"), QLatin1String("'"));
    return decoded;
}

QString withoutComments(const QString &html)
{
    const QLatin1String opening("<!--");
    const int first = html.indexOf(opening);
    const int last = html.lastIndexOf(QLatin1String("-->"));
    // Several comments count as one: the text between them goes as well. This is deliberate.
    if (first >= 0 && last >= first + opening.size())
        return QString(html).remove(first, last + 3 - first);
    return html;
}

QString withoutScriptsAndStyles(const QString &html)
{
    const QStringView page(html);
    const QLatin1String closing("-->");
    const int lastClosing = html.lastIndexOf(closing);
    QString rest;
    int copied = 0;
    int commentEnd = 0; // of the last comment that began
    for (int at = html.indexOf(QLatin1Char('<')); at >= 0; at = html.indexOf(QLatin1Char('<'), at + 1)) {
        const bool opens = at >= commentEnd && at + 4 <= lastClosing && page.mid(at).startsWith(QLatin1String("<!--"));
        if (opens)
            commentEnd = html.indexOf(closing, at + 4) + closing.size();
        const QLatin1String hidden = hiddenElementAt(page, at);
        if (hidden.isEmpty())
            continue;
        const bool inComment = at < commentEnd;
        const int end = behindClosingTag(inComment ? page.left(commentEnd) : page, at, hidden);
        if (end > 0) {
            rest.append(page.mid(copied, at - copied));
            copied = end;
            at = end - 1;
        } else if (inComment) {
            at = commentEnd - 1;
        } else {
            break;
        }
    }
    return rest.append(page.mid(copied));
}

// One pass is enough: a "<" that stays is followed by a ">" that stays too, or by no ">" at all, so no removal can make
// a new tag out of it.
QString stripTags(const QString &html)
{
    QString text;
    text.reserve(html.size());
    int copied = 0;
    int position = 0;
    while ((position = html.indexOf(QLatin1Char('<'), position)) >= 0) {
        const int end = html.indexOf(QLatin1Char('>'), position);
        if (end < 0)
            break;
        if (end == position + 1) {
            ++position;
            continue;
        }
        text.append(QStringView(html).mid(copied, position - copied));
        copied = position = end + 1;
    }
    return text.append(QStringView(html).mid(copied));
}

QString cleanLyrics(const QString &html)
{
    QString text = html;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text = withBreaksAsNewlines(withoutComments(text));
    return decodeHtmlEntities(stripTags(text).trimmed());
}

QString withoutBrokenCharacters(const QString &text)
{
    QString whole;
    whole.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair)
            whole.append(c).append(text.at(++i));
        else if (const QChar kept = keptCharacter(c); !kept.isNull())
            whole.append(kept);
    }
    return withoutZeroWidthEnds(whole);
}
