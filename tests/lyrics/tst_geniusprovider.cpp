// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "SitePages.h"
#include "lyrics/LyricsText.h"
#include "lyrics/providers/GeniusProvider.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QTest>

namespace {

// The same as it is written with the expressions themselves.
namespace plain {

QRegExp minimal(const QString &pattern)
{
    QRegExp expression(pattern);
    expression.setMinimal(true);
    return expression;
}

QString elementAt(const QString &page, int start)
{
    const QString rest = page.mid(start);
    const QString name = rest.mid(1, std::max(0, rest.indexOf(QLatin1Char(' '), 1) - 1));
    if (name.isEmpty())
        return {};
    QRegExp tag("<%1[^>]+/>|<%1|</%1"_s.arg(QRegExp::escape(name)));
    int depth = 0;
    for (int at = tag.indexIn(rest); at >= 0; at = tag.indexIn(rest, at + tag.matchedLength())) {
        if (!tag.cap(0).endsWith("/>"_s))
            depth += tag.cap(0).startsWith("</"_s) ? -1 : 1;
        if (depth == 0)
            return rest.left(at + tag.matchedLength());
    }
    return {};
}

QString lyricsOfContainer(QString text)
{
    text.replace(QRegExp("<br/?>"_s), "\n"_s);
    text.replace(QRegularExpression("<div.*?</div>"_s), "\n"_s);
    text = stripTags(text).trimmed();
    return decodeHtmlEntities(decodeDecimalReferences(text)).remove("</div"_s);
}

QString lyricsOfPage(const QString &page)
{
    QRegExp older = minimal("<div class=\"lyrics\"*>(.*)</div>"_s);
    if (older.indexIn(page) >= 0) {
        QString block = older.cap(1).remove(QLatin1Char('\n')).remove(QLatin1Char('\r'));
        return stripTags(block.replace(QRegExp("<br/?>"_s), "\n"_s)).trimmed();
    }
    QStringList texts;
    QRegExp container = minimal("<div[^>]*class=\"Lyrics__Container.*>"_s);
    for (int at = container.indexIn(page); at >= 0;) {
        const QString element = elementAt(page, at);
        if (element.isEmpty())
            break;
        texts << lyricsOfContainer(element);
        at = container.indexIn(page, at + element.size());
    }
    texts.removeAll(QString());
    return texts.join("\r\n"_s);
}

} // namespace plain

QString lyricsOf(const QString &page)
{
    return GeniusProvider::lyricsRequestFinished({page, {}}).lyrics();
}

} // namespace

class tst_GeniusProvider : public QObject
{
    Q_OBJECT

private slots:
    void readsLikeThePlainExpressions()
    {
        for (const char *name : {"older.html", "newer.html"}) {
            const QString page = sitePage("genius", name);
            QCOMPARE(lyricsOf(page), plain::lyricsOfPage(page));
        }
        const QString pieces =
            "<div~class=\"Lyrics__Container </div </div> </div> <div~ <div /> > <br> <br/> x \n \r ~ "
            "class=\"Lyrics__Container &#65; &#38; amp; #66; <div~class=\"Lyrics__Container\"> </div> "
            "/ &lt; <b>"_s;
        compareOnRandomTexts(pieces, lyricsOf, plain::lyricsOfPage);
        compareOnRandomTexts(pieces + " <div~class=\"lyrics\">"_s, lyricsOf, plain::lyricsOfPage);
    }
};

QTEST_APPLESS_MAIN(tst_GeniusProvider)
#include "tst_geniusprovider.moc"
