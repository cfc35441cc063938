// SPDX-License-Identifier: MIT
#include "PlainElements.h"
#include "RandomText.h"
#include "SitePages.h"
#include "lyrics/LyricsText.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/DarkLyricsProvider.h"
#include "support/TestTable.h"

#include <QRegularExpression>
#include <QTest>

namespace {

// The same as it is written with the expressions themselves.
namespace plain {

QString contentOf(const QString &page)
{
    const auto wrapper = QRegularExpression("<div[^>]*class=(['\"])cntwrap(['\"])"_s).match(page);
    const int start = wrapper.capturedStart();
    const int end = wrapper.hasMatch() ? countedClosingTag(page, "div"_s, start) : -1;
    return end < 0 ? QString() : page.mid(start, end - start);
}

QMap<QString, QString> sections(const QString &page)
{
    QMap<QString, QString> sections;
    const QString content = contentOf(page);
    const QRegularExpression heading("<h3[^>]*>(.+?)</h3"_s);
    QString key;
    for (int at = 0; !content.isEmpty();) {
        const auto match = heading.match(content.mid(at));
        sections.insert(key, match.hasMatch() ? content.mid(at, match.capturedStart()) : content.mid(at));
        if (!match.hasMatch())
            break;
        key = match.captured(1).split(QLatin1Char(':')).first().toLower();
        at += match.capturedEnd() + 1;
    }
    return sections;
}

QString songLink(const QString &page, const QString &artist, const QString &title)
{
    const QRegularExpression link("<h2.*?>\\s*<a.+?href=['\"](?<url>.+?)['\"].+?>(?<title>[^<]+)</a"_s);
    for (auto links = link.globalMatch(sections(page).value("songs"_s)); links.hasNext();) {
        const auto match = links.next();
        if (looselyAgree(artist + " - "_s + title, decodeHtmlEntities(match.captured("title"_s))))
            return match.captured("url"_s);
    }
    return {};
}

} // namespace plain

QString wrapped(const QString &content)
{
    return "<div class='cntwrap'>%1</div>"_s.arg(content);
}

} // namespace

class tst_DarkLyricsProvider : public QObject
{
    Q_OBJECT

private slots:
    void findsTheSongUnderItsAnchor_data()
    {
        addTextColumns("anchor", "lyrics");
        addRow("the second of eleven, with a colon in its title", "2", "high");
        addRow("the beginning of another number", "1", "low");
        addRow("no anchor takes the first heading with an empty name", "", "unnamed");
    }

    void findsTheSongUnderItsAnchor()
    {
        QFETCH(QString, anchor);
        QString page = sitePage("darklyrics", "album.html");
        page.replace("<div class=\"thanks\">"_s,
                     "<h3><a NAME=\"BONUS\">x</a></h3>bonus<h3><a name=\"\">x</a></h3>unnamed<div>"_s);
        page.remove("Thanks to someone for sending these."_s);
        QTEST(cleanLyrics(DarkLyricsProvider::songUnderAnchor(page, anchor).value_or(QString())), "lyrics");
    }

    // Compared anew from each place, a heading that nearly is the anchor takes minutes.
    void answersHostileAnchors()
    {
        const QString page = wrapped("<h3>"_s + repeated("\"") + "</h3>"_s);
        QVERIFY(!DarkLyricsProvider::songUnderAnchor(page, QString(200 * 1000, QLatin1Char('"'))));
    }

    void readsLikeThePlainExpressions()
    {
        const QString album = sitePage("darklyrics", "album.html");
        QCOMPARE(DarkLyricsProvider::sections(album), plain::sections(album));
        compareOnRandomTexts(
            "<h3 <h3> <h3~x> </h3 </h3> <div </div : Songs > x \n"_s,
            [](const QString &content) { return DarkLyricsProvider::sections(wrapped(content)); },
            [](const QString &content) { return plain::sections(wrapped(content)); });
        const QString songs = "<h3>Songs</h3>"_s;
        compareOnRandomTexts(
            "<h2 <h2> <h2~x>~ <a <a~ <a~x~ href=\" href=' \" ' > x y </a \n \u00a0 \r </a> "
            "<h2><a~x~href='y \"~>x</a '~x>x</a"_s,
            [&](const QString &links) {
                return DarkLyricsProvider::songLink(wrapped(songs + links), "x"_s, "y"_s).value_or(QString());
            },
            [&](const QString &links) { return plain::songLink(wrapped(songs + links), "x"_s, "y"_s); });
    }
};

QTEST_APPLESS_MAIN(tst_DarkLyricsProvider)
#include "tst_darklyricsprovider.moc"
