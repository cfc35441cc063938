// SPDX-License-Identifier: MIT
#include "lyrics/providers/MegaLyricsText.h"

#include "lyrics/LyricsLog.h"
#include "lyrics/LyricsText.h"

#include <algorithm>
#include <cctype>
#include <optional>

namespace {

// A page may hold a hundred thousand mistakes; this many tell enough.
constexpr int mostLoggedMistakes = 10;

QByteArray decodeNamedReferences(QByteArray text)
{
    // The order is part of the meaning: what "&amp;" uncovers is decoded by the lines below it.
    text.replace("&quot;", "\"");
    text.replace("&amp;", "&");
    text.replace("&lt;", "<");
    text.replace("&gt;", ">");
    text.replace("&nbsp;", " ");
    text.replace("&middot;", "");
    return text;
}

// The character that a backslash and `letter` stand for; 0 when they stand for themselves.
char escapedCharacter(char letter)
{
    switch (letter) {
    case '\\':
        return '\\';
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return 0;
    }
}

// Undoes the escapes of one text.
class EscapeDecoder
{
public:
    explicit EscapeDecoder(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    QString decoded()
    {
        for (int at = 0; at < m_bytes.size();)
            at = m_bytes.at(at) == '\\' ? takeEscape(at) : takeBytes(at, 1);
        flush();
        return m_text;
    }

private:
    // Both return where to go on.
    int takeBytes(int at, int count)
    {
        m_pending.append(m_bytes.constData() + at, count);
        return at + count;
    }

    int takeEscape(int at)
    {
        const char letter = at + 1 < m_bytes.size() ? m_bytes.at(at + 1) : '\0';
        if (const char character = escapedCharacter(letter)) {
            m_pending.append(character);
            return at + 2;
        }
        const std::optional<ushort> unit = letter == 'u' ? codeUnit(m_bytes.mid(at + 2, 4)) : std::nullopt;
        if (!unit)
            return takeBytes(at, 1);
        flush();
        m_text.append(QChar(*unit));
        return at + 6;
    }

    std::optional<ushort> codeUnit(const QByteArray &digits)
    {
        const bool hex = std::all_of(digits.begin(), digits.end(),
                                     [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; });
        bool converted = false;
        const ushort unit = digits.size() == 4 ? digits.toUShort(&converted, 16) : ushort(0);
        if (!hex)
            logMistake("Not an hex string:", digits);
        else if (!converted)
            logMistake("error converting hex value to short:", digits);
        return hex && converted ? std::make_optional(unit) : std::nullopt;
    }

    void logMistake(const char *mistake, const QByteArray &digits)
    {
        if (++m_mistakes <= mostLoggedMistakes)
            qCCritical(lyricsLog) << mistake << QString::fromUtf8(digits);
    }

    void flush()
    {
        m_text.append(QString::fromUtf8(m_pending));
        m_pending.clear();
    }

    QByteArray m_bytes;
    // Decoded, but not part of the text yet: UTF-8 up to the next escape that gives a UTF-16 unit.
    QByteArray m_pending;
    QString m_text;
    int m_mistakes = 0;
};

} // namespace

QString decodeMegaLyricsText(const QString &text)
{
    if (!text.contains(QLatin1Char('&')) && !text.contains(QLatin1Char('\\'))) // as most names
        return text;
    return decodeDecimalReferences(EscapeDecoder(decodeNamedReferences(text.toUtf8())).decoded());
}
