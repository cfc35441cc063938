// SPDX-License-Identifier: MIT
#include "lyrics/providers/LinkEscapes.h"

QString withLinkEscapes(QString link)
{
    link.replace(QLatin1Char('%'), QLatin1String("%25")).replace(QLatin1Char('#'), QLatin1String("%23"));
    const int mark = link.indexOf(QLatin1Char('?'));
    const bool hasQuery = mark >= 0 && link.indexOf(QLatin1Char('='), mark) >= 0;
    if (!hasQuery)
        link.replace(QLatin1Char('?'), QLatin1String("%3F"));
    return link;
}
