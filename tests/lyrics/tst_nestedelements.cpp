// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "lyrics/NestedElements.h"

#include <QRegExp>
#include <QTest>

namespace {

// Counts anew from the given place.
int countedClosingTag(const QString &html, int openingTag)
{
    QRegExp tag(QStringLiteral("</?div"));
    int depth = 1;
    for (int at = tag.indexIn(html, openingTag + 1); at >= 0; at = tag.indexIn(html, at + tag.matchedLength())) {
        depth += tag.cap(0).startsWith(QLatin1String("</")) ? -1 : 1;
        if (depth == 0)
            return at;
    }
    return -1;
}

} // namespace

class tst_NestedElements : public QObject
{
    Q_OBJECT

private slots:
    void countsLikeThePlainExpression();
};

void tst_NestedElements::countsLikeThePlainExpression()
{
    RandomText pages(QStringLiteral("<div </div < > </ <DIV </span> x").split(QLatin1Char(' ')));
    for (int i = 0; i < 3000; ++i) {
        const QString page = pages.next(30);
        const NestedElements divs(page, QStringLiteral("div"));
        for (int at = 0; at < page.size(); ++at)
            QVERIFY2(divs.closingTag(at) == countedClosingTag(page, at), qPrintable(page));
    }
}

QTEST_APPLESS_MAIN(tst_NestedElements)
#include "tst_nestedelements.moc"
