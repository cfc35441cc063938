// SPDX-License-Identifier: MIT
#include "lyrics/PageBytes.h"

#include <QRegularExpression>
#include <QString>
#include <QTextCodec>

#include <algorithm>

namespace {

// One character beyond ASCII in so many may be broken; of a text in another charset nearly all are.
constexpr int wholeForABrokenOne = 10;

// The number of this charset by IANA.
constexpr int mibOfUtf8 = 106;

// "%" and two hexadecimal digits.
constexpr int escapeLength = 3;

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForMib(mibOfUtf8)->toUnicode(bytes.constData(), bytes.size(), &state);
    const auto beyondAscii = std::count_if(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0x7F; });
    return state.invalidChars <= beyondAscii / wholeForABrokenOne;
}

// Null when the header names none that is known.
QTextCodec *codecOfHeader(const QByteArray &contentType)
{
    static const QRegularExpression charset(QStringLiteral("charset\\s*=\\s*[\"']?([^\\s\"';,]+)"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = charset.match(QString::fromLatin1(contentType));
    return match.hasMatch() ? QTextCodec::codecForName(match.captured(1).toLatin1()) : nullptr;
}

int hexDigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// The byte that an escape at `position` stands for; -1 when none stands there.
int escapedByte(const QByteArray &bytes, int position)
{
    if (position + 2 >= bytes.size() || bytes.at(position) != '%')
        return -1;
    const int high = hexDigitValue(bytes.at(position + 1));
    const int low = hexDigitValue(bytes.at(position + 2));
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

// How many bytes a character of UTF-8 has that begins with this one.
int lengthOfCharacter(int byte)
{
    if (byte < 0xE0)
        return byte < 0x80 ? 1 : 2;
    return byte < 0xF0 ? 3 : 4;
}

// The UTF-8 of the character that the escapes from `position` on stand for; empty when they stand for none.
QByteArray escapedCharacter(const QByteArray &bytes, int position)
{
    QByteArray character;
    const int count = lengthOfCharacter(escapedByte(bytes, position));
    for (int i = 0; i < count; ++i) {
        const int byte = escapedByte(bytes, position + i * escapeLength);
        if (byte < 0)
            return {};
        character.append(static_cast<char>(byte));
    }
    // As it is what it says, U+FFFD may be escaped itself.
    return count == 1 || QString::fromUtf8(character).toUtf8() == character ? character : QByteArray();
}

} // namespace

QByteArray pageInUtf8(const QByteArray &page, const QByteArray &contentType)
{
    if (isUtf8(page))
        return page;
    const QTextCodec *codec = codecOfHeader(contentType);
    if (!codec || codec->mibEnum() == mibOfUtf8)
        codec = QTextCodec::codecForHtml(page, nullptr);
    return codec ? codec->toUnicode(page).toUtf8() : page;
}

QByteArray decodePercentEscapes(const QByteArray &bytes)
{
    int at = bytes.indexOf('%');
    if (at < 0) // as most pages
        return bytes;
    QByteArray decoded;
    decoded.reserve(bytes.size());
    int copied = 0;
    for (; at >= 0; at = bytes.indexOf('%', at)) {
        const QByteArray character = escapedCharacter(bytes, at);
        if (character.isEmpty()) {
            ++at;
            continue;
        }
        decoded.append(bytes.constData() + copied, at - copied).append(character);
        at += character.size() * escapeLength;
        copied = at;
    }
    return decoded.append(bytes.constData() + copied, bytes.size() - copied);
}
