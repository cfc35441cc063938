// SPDX-License-Identifier: MIT
#include "PlainElements.h"
#include "RandomText.h"
#include "SitePages.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/ElementFinder.h"
#include "lyrics/providers/MusixMatchProvider.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QTest>

namespace {

// The same as it is written with the expressions themselves.
namespace plain {

bool fits(const QStringList &found, const QStringList &classes)
{
    return found.size() == classes.size() && std::all_of(found.begin(), found.end(), [&](const QString &name) {
               return classes.contains(name, Qt::CaseInsensitive);
           });
}

QString elementOf(const QString &html, const QString &tag, const QStringList &classes, bool withOpeningTag)
{
    const QRegularExpression opening("<%1\\s+[^>]*class=(['\"])(.+?)\\1.*?>"_s.arg(tag),
                                     QRegularExpression::CaseInsensitiveOption);
    for (int offset = 0;;) {
        const auto match = opening.match(html, offset);
        if (!match.hasMatch())
            return {};
        if (fits(match.captured(2).split(QLatin1Char(' ')), classes)) {
            const int end = countedClosingTag(html, tag, match.capturedStart());
            const int begin = withOpeningTag ? match.capturedStart() : match.capturedEnd();
            if (end > 0)
                return html.mid(begin, std::max(0, end - begin));
        }
        offset += match.capturedLength();
    }
}

QString lyricsOfBlock(QString block)
{
    QString lyrics;
    for (;;) {
        const QString span = elementOf(block, "span"_s, {"lyrics__content__ok"_s}, true);
        if (span.isEmpty())
            return lyrics;
        lyrics += stripTags(span);
        block.remove(span);
    }
}

QString trackLink(const QString &page)
{
    const QString list = elementOf(page, "ul"_s, {"tracks"_s, "list"_s, "thumb-list"_s}, false);
    const QRegularExpression item("<li.+?>(.+?)</li"_s, QRegularExpression::CaseInsensitiveOption);
    for (int offset = 0;;) {
        const auto match = item.match(list, offset);
        if (!match.hasMatch())
            return {};
        const QString anchor = "a"_s;
        const QString artist = elementOf(match.captured(1), anchor, {"artist"_s}, false);
        const QString title = elementOf(match.captured(1), anchor, {"title"_s}, true);
        QRegExp href("href=([\"'])(.+)\\1"_s);
        href.setMinimal(true);
        if (looselyAgree("b"_s, stripTags(artist)) && looselyAgree("a"_s, stripTags(title)) && href.indexIn(title) >= 0)
            return href.cap(2);
        offset += match.capturedLength();
    }
}

} // namespace plain

QString lyricsOf(const QString &block)
{
    const auto step = MusixMatchProvider::lyricsOfBlock(block);
    return step ? step->lyrics() : "too intricate"_s;
}

QString listOf(const QString &items)
{
    return "<ul class=\"tracks list thumb-list\">%1</ul>"_s.arg(items);
}

} // namespace

class tst_MusixMatchProvider : public QObject
{
    Q_OBJECT

private slots:
    void readsLikeThePlainExpressions()
    {
        for (const bool withTag : {false, true}) {
            const QStringList classes{"a"_s, "B"_s};
            compareOnRandomTexts(
                "<div~class=\"a~b\"> <DIV~class='B~A'> <div~class=\"a\"> <div~class=\"a~~b\"> <div~class=\"a~b\"\n "
                "<div "
                "</div> </div x > \" ' a b \n"_s,
                [&](const QString &page) { return findElement(page, "div"_s, classes, withTag); },
                [&](const QString &page) { return plain::elementOf(page, "div"_s, classes, withTag); });
        }
        const QString trackPage = sitePage("musixmatch", "track.html");
        const QString block = MusixMatchProvider::lyricsBlock(trackPage);
        QCOMPARE(block, plain::elementOf(trackPage, "div"_s, {"mxm-lyrics"_s}, false));
        QCOMPARE(lyricsOf(block), plain::lyricsOfBlock(block));
        compareOnRandomTexts(
            "<span~class=\"lyrics__content__ok\"> <span~class='lyrics__content__ok'> </span> </span <SPAN~ "
            "class=\" class=' lyrics__content__ok \" ' > x \n ~ <span <span~"_s,
            lyricsOf, plain::lyricsOfBlock);
        compareOnRandomTexts(
            "<li~x> </li <LI </li> <li~x><a~class=\"title\"~href='x'>a</a> <li~x><a~class='title'~href=\"y "
            "<a~class=\"title\"~href=\"x\"> <a~class='title' <a~ class=\"artist\"> href=\" ' \" ~ > </a> a b \n "
            "a~href='x'> <li~x><a~class=\"title\"~"_s,
            [](const QString &items) {
                return MusixMatchProvider::trackLink(listOf(items), "b"_s, "a"_s).value_or(QString());
            },
            [](const QString &items) { return plain::trackLink(listOf(items)); });
    }
};

QTEST_APPLESS_MAIN(tst_MusixMatchProvider)
#include "tst_musixmatchprovider.moc"
