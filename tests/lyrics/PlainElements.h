// SPDX-License-Identifier: MIT
#pragma once

#include <QRegExp>
#include <QString>

// The position of the closing tag of the element that begins at `openingTag`, counted anew from there; -1 when it is
// not closed.
inline int countedClosingTag(const QString &html, const QString &element, int openingTag)
{
    QRegExp tag(QStringLiteral("</?%1").arg(element));
    int depth = 1;
    for (int at = tag.indexIn(html, openingTag + 1); at >= 0; at = tag.indexIn(html, at + tag.matchedLength())) {
        depth += tag.cap(0).startsWith(QLatin1String("</")) ? -1 : 1;
        if (depth == 0)
            return at;
    }
    return -1;
}
