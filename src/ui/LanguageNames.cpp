// SPDX-License-Identifier: MIT
#include "ui/LanguageNames.h"

#include <QLocale>

namespace {

// Qt names the language of a country, "español de España". What the countries have in common is the shortest name.
QString commonName(const QLocale &locale)
{
    QString name = locale.nativeLanguageName();
    for (const QLocale &other : QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyCountry)) {
        const QString otherName = other.nativeLanguageName();
        if (!otherName.isEmpty() && otherName.size() < name.size())
            name = otherName;
    }
    return name;
}

} // namespace

QString languageName(const QString &code)
{
    const QLocale locale(code);
    QString name = commonName(locale);
    if (locale == QLocale::c() || name.isEmpty())
        return code;
    name.replace(0, 1, locale.toUpper(name.left(1)));
    return code.contains(QLatin1Char('_')) ? name + QLatin1String(" (") + locale.nativeCountryName() + QLatin1Char(')')
                                           : name;
}
