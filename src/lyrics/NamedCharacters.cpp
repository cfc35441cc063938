// SPDX-License-Identifier: MIT
#include "lyrics/NamedCharacters.h"

#include <QHash>
#include <QStringList>
#include <QStringView>

#include <algorithm>

namespace {

constexpr int longestName = 6;

// From U+00A0 to U+00FF.
constexpr char latin1Names[] =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg plusmn sup2 sup3 acute "
    "micro "
    "para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil "
    "Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave "
    "Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml "
    "igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave uacute ucirc uuml yacute "
    "thorn yuml";

QHash<QString, QChar> makeCharacters()
{
    QHash<QString, QChar> characters{
        {QStringLiteral("apos"), QLatin1Char('\'')}, {QStringLiteral("OElig"), QChar(0x0152)},
        {QStringLiteral("oelig"), QChar(0x0153)},    {QStringLiteral("Scaron"), QChar(0x0160)},
        {QStringLiteral("scaron"), QChar(0x0161)},   {QStringLiteral("Yuml"), QChar(0x0178)},
        {QStringLiteral("ndash"), QChar(0x2013)},    {QStringLiteral("mdash"), QChar(0x2014)},
        {QStringLiteral("lsquo"), QChar(0x2018)},    {QStringLiteral("rsquo"), QChar(0x2019)},
        {QStringLiteral("sbquo"), QChar(0x201A)},    {QStringLiteral("ldquo"), QChar(0x201C)},
        {QStringLiteral("rdquo"), QChar(0x201D)},    {QStringLiteral("bdquo"), QChar(0x201E)},
        {QStringLiteral("bull"), QChar(0x2022)},     {QStringLiteral("hellip"), QChar(0x2026)},
        {QStringLiteral("lsaquo"), QChar(0x2039)},   {QStringLiteral("rsaquo"), QChar(0x203A)},
        {QStringLiteral("euro"), QChar(0x20AC)},     {QStringLiteral("trade"), QChar(0x2122)},
    };
    ushort character = 0xA0;
    for (const QString &name : QString::fromLatin1(latin1Names).split(QLatin1Char(' ')))
        characters.insert(name, QChar(character++));
    return characters;
}

// Null when the name is none of those.
QChar characterOf(QStringView name)
{
    static const QHash<QString, QChar> characters = makeCharacters();
    return characters.value(name.toString());
}

} // namespace

QString withNamedCharacters(const QString &text)
{
    QString decoded;
    int copied = 0;
    for (int at = text.indexOf(QLatin1Char('&')); at >= 0; at = text.indexOf(QLatin1Char('&'), at + 1)) {
        const QStringView rest = QStringView(text).mid(at + 1, std::min(longestName + 1, text.size() - at - 1));
        const int length = static_cast<int>(rest.indexOf(QLatin1Char(';')));
        const QChar character = length > 0 ? characterOf(rest.left(length)) : QChar();
        if (character.isNull())
            continue;
        decoded.append(QStringView(text).mid(copied, at - copied)).append(character);
        copied = at + length + 2;
    }
    return copied > 0 ? decoded.append(QStringView(text).mid(copied)) : text;
}
