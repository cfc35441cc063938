// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "lyrics/LyricsText.h"
#include "lyrics/providers/ElementFinder.h"
#include "lyrics/providers/GeniusProvider.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>

namespace {

// What the clients do, written with the regular expressions themselves, however long they take.
namespace plain {

QRegExp minimal(const QString &pattern)
{
    QRegExp expression(pattern);
    expression.setMinimal(true);
    return expression;
}

// The position of the tag that closes the element whose opening tag begins at `from`; -1 when nothing does.
int closingTag(const QString &html, const QString &pattern, int from, int *length = nullptr)
{
    QRegExp tag(pattern);
    int depth = 0;
    for (int at = tag.indexIn(html, from); at >= 0; at = tag.indexIn(html, at + tag.matchedLength())) {
        if (!tag.cap(0).endsWith("/>"_s))
            depth += tag.cap(0).startsWith("</"_s) ? -1 : 1;
        if (length)
            *length = tag.matchedLength();
        if (depth == 0)
            return at;
    }
    return -1;
}

QString elementOf(const QString &html, const QString &tag, const QStringList &classes, bool withOpeningTag)
{
    const QRegularExpression opening("<%1\\s+[^>]*class=(['\"])(.+?)\\1.*?>"_s.arg(tag),
                                     QRegularExpression::CaseInsensitiveOption);
    int offset = 0;
    for (auto match = opening.match(html); match.hasMatch(); match = opening.match(html, offset)) {
        const QStringList found = match.captured(2).split(QLatin1Char(' '));
        const bool fits = found.size() == classes.size() &&
                          std::all_of(found.begin(), found.end(),
                                      [&](const auto &name) { return classes.contains(name, Qt::CaseInsensitive); });
        if (fits) {
            // The opening tag counts without its first character, so that its letter case does not matter.
            const QString rest = QLatin1Char('<') + tag + html.mid(match.capturedStart() + tag.size() + 1);
            const int size = closingTag(rest, "</?%1"_s.arg(tag), 0);
            const int skipped = withOpeningTag ? 0 : match.capturedLength();
            if (size > 0)
                return html.mid(match.capturedStart() + skipped, std::max(0, size - skipped));
        }
        offset += match.capturedLength();
    }
    return {};
}

QString elementAt(const QString &page, int start)
{
    const QString rest = page.mid(start);
    const QString name = QRegExp::escape(rest.mid(1, std::max(0, rest.indexOf(QLatin1Char(' '), 1) - 1)));
    int length = 0;
    const int end = name.isEmpty() ? -1 : closingTag(rest, "<%1[^>]+/>|<%1|</%1"_s.arg(name), 0, &length);
    return end < 0 ? QString() : rest.left(end + length);
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
            return {};
        texts << lyricsOfContainer(element);
        at = container.indexIn(page, at + element.size());
    }
    texts.removeAll(QString());
    return texts.join("\r\n"_s);
}

} // namespace plain

} // namespace

class tst_SitePatterns : public QObject
{
    Q_OBJECT

private slots:
    void elementsAreFoundByTheirClasses()
    {
        const QString pieces = "<div~class=\"a~b\"> <DIV~class='B~A'> <div~class=\"a\"> <div~class=\"a~~b\"> "
                               "<div~class=\"a~b\"\n <div </div> </div x > \" ' a b \n"_s;
        for (const bool withTag : {false, true}) {
            const auto find = [withTag](auto finder) {
                return [=](const QString &page) {
                    return finder(page, "div"_s, {"a"_s, "B"_s}, withTag);
                };
            };
            compareOnRandomTexts(pieces, find(findElement), find(plain::elementOf));
        }
    }

    void geniusReadsContainers()
    {
        const auto lyricsOf = [](const QString &page) {
            return GeniusProvider::lyricsRequestFinished({page, {}}).lyrics();
        };
        const QString pieces =
            "<div~class=\"Lyrics__Container </div </div> </div> <div~ <div /> > <br> <br/> x \n \r ~ "
            "class=\"Lyrics__Container &#65; &#38; amp; #66; <div~class=\"Lyrics__Container\"> </div> "
            "/ &lt; <b>"_s;
        compareOnRandomTexts(pieces, lyricsOf, plain::lyricsOfPage);
        compareOnRandomTexts(pieces + " <div~class=\"lyrics\">"_s, lyricsOf, plain::lyricsOfPage);
    }
};

QTEST_APPLESS_MAIN(tst_SitePatterns)
#include "tst_sitepatterns.moc"
