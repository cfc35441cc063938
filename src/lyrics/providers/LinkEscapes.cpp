// SPDX-License-Identifier: MIT
#include "lyrics/providers/LinkEscapes.h"

#include "lyrics/PageBytes.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

bool isQuotationMark(char c)
{
    return c == '"' || c == '\'';
}

// With an escape for each "%" that begins none: QUrl would take all others for text as well.
QString withWholeEscapes(QString link)
{
    static const QRegularExpression bare(QStringLiteral("%(?![0-9A-Fa-f]{2})"));
    return link.replace(bare, QStringLiteral("%25"));
}

// The link as it is quoted in the page's source; nothing when it holds no escape there, or its slashes
// are escaped as well.
std::optional<QString> quotedInSource(const Page &page, const QString &link)
{
    const QByteArray wanted = link.toUtf8();
    const char *const end = page.source.cend();
    for (const char *begin = page.source.cbegin(); begin < end;) {
        const char *const mark = std::find_if(begin, end, isQuotationMark);
        const auto quoted = QByteArray::fromRawData(begin, static_cast<int>(mark - begin));
        if (quoted.contains('%') && quoted.count('/') == wanted.count('/') && decodePercentEscapes(quoted) == wanted)
            return withWholeEscapes(QString::fromUtf8(quoted));
        begin = mark + 1;
    }
    return std::nullopt;
}

} // namespace

QString linkInSource(const Page &page, const QString &link)
{
    return quotedInSource(page, link).value_or(link);
}

QString withLinkEscapes(const Page &page, const QString &found)
{
    if (const auto quoted = quotedInSource(page, found))
        return *quoted;
    QString link = found;
    link.replace(QLatin1Char('%'), QLatin1String("%25")).replace(QLatin1Char('#'), QLatin1String("%23"));
    const int mark = link.indexOf(QLatin1Char('?'));
    const bool hasQuery = mark >= 0 && link.indexOf(QLatin1Char('='), mark) >= 0;
    if (!hasQuery)
        link.replace(QLatin1Char('?'), QLatin1String("%3F"));
    return link;
}
