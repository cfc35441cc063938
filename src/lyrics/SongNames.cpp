// SPDX-License-Identifier: MIT
#include "lyrics/SongNames.h"

#include "lyrics/LyricsText.h"
#include "lyrics/NamedCharacters.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

const QStringList &guestMarkers()
{
    static const QStringList markers{QStringLiteral(" ft. "), QStringLiteral(" feat. "), QStringLiteral(" featuring ")};
    return markers;
}

const QStringList &titleSuffixes()
{
    static const QStringList suffixes{QStringLiteral(" (official)"), QStringLiteral(" (Extended Video)")};
    return suffixes;
}

// Looked for in the name itself, not in a lower-case copy: lower-casing may change the length ("İ" becomes two units).
QString withoutGuests(QString name)
{
    for (const QString &marker : guestMarkers()) {
        const int index = name.indexOf(marker, 0, Qt::CaseInsensitive);
        if (index >= 0)
            name.truncate(index);
    }
    return name;
}

constexpr QChar acuteAccent(0x00B4);

bool isIgnoredWhenComparing(QChar c)
{
    switch (c.unicode()) {
    case 0x2018: // left single quotation mark
    case 0x2019: // right single quotation mark
    case '`':
    case '"':
    case '\'':
    case ' ':
    case ',':
    case '&':
        return true;
    default:
        return false;
    }
}

QString folded(const QString &name)
{
    QString text = name;
    text.replace(acuteAccent, QLatin1Char('\'')); // of which NFKC would leave the accent, to stand on the next letter
    text = text.normalized(QString::NormalizationForm_KC).toLower();
    const auto *const end = std::remove_if(text.begin(), text.end(), isIgnoredWhenComparing);
    text.truncate(static_cast<int>(end - text.cbegin()));
    return text;
}

// The wanted artist and title are the same for all rows of a page. So the two names that were folded last are kept: a
// page of a megabyte would have a long name folded twenty thousand times.
class WantedNames
{
public:
    const QString &fold(const QString &name)
    {
        if (m_last.name == name)
            return m_last.key;
        std::swap(m_last, m_other);
        if (m_last.name != name)
            m_last = {name, folded(name)};
        return m_last.key;
    }

private:
    struct Entry
    {
        QString name;
        QString key;
    };
    Entry m_last;
    Entry m_other;
};

} // namespace

QString normalisedArtist(const QString &artist)
{
    const int separator = artist.indexOf(QLatin1String("\\\\"));
    return withoutGuests(artist.left(separator)).trimmed();
}

QString normalisedTitle(const QString &title)
{
    QString name = withoutGuests(title);
    for (const QString &suffix : titleSuffixes()) {
        if (name.endsWith(suffix, Qt::CaseInsensitive))
            name.chop(suffix.size());
    }
    return name.trimmed();
}

QString foundName(const QString &encoded)
{
    const QString decoded = decodeHtmlEntities(decodeHtmlEntities(encoded)); // the first uncovers no numbers
    return withoutBrokenCharacters(withNamedCharacters(decoded)).trimmed();
}

bool looselyAgree(const QString &wanted, const QString &found)
{
    thread_local WantedNames wantedNames;
    const QString a = wantedNames.fold(wanted);
    const QString b = folded(found);
    return a.contains(b) || b.contains(a);
}

QString queryValue(const QString &name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name.normalized(QString::NormalizationForm_C)));
}
