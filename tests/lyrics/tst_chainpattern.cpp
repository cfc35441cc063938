// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "lyrics/ChainScan.h"
#include "support/TestTable.h"

#include <QDirIterator>
#include <QFile>
#include <QRegExp>
#include <QRegularExpression>
#include <QTest>

using Matching = ChainPattern::Matching;
Q_DECLARE_METATYPE(Matching)

namespace {

QStringList allMatches(const ChainScan &scan)
{
    QStringList matches;
    for (auto match = scan.next(); match; match = scan.next(match->end()))
        matches << "%1+%2"_s.arg(match->position).arg(match->length) << match->captures;
    return matches;
}

QStringList allMatches(const QRegularExpression &expression, const QString &text)
{
    QStringList matches;
    for (auto all = expression.globalMatch(text); all.hasNext();) {
        const QRegularExpressionMatch match = all.next();
        matches << "%1+%2"_s.arg(match.capturedStart()).arg(match.capturedLength()) << match.capturedTexts().mid(1);
    }
    return matches;
}

QStringList allMatches(QRegExp expression, const QString &text)
{
    QStringList matches;
    for (int at = expression.indexIn(text); at >= 0; at = expression.indexIn(text, at + expression.matchedLength()))
        matches << "%1+%2"_s.arg(at).arg(expression.matchedLength()) << expression.capturedTexts().mid(1);
    return matches;
}

// The pages of all sites, without the furniture around them, over which the plain expressions would take too long.
QStringList fixturePages()
{
    QStringList pages;
    QDirIterator files(QStringLiteral(VERSEWELL_TEST_DATA_DIR), {"*.html"_s, "*.js"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            pages.append(QString::fromUtf8(file.readAll()));
    }
    return pages;
}

} // namespace

class tst_ChainPattern : public QObject
{
    Q_OBJECT

private slots:
    // Behind the class: the meta-object compiler does not find a class with raw strings in it.
    void matchesWhatTheExpressionMatches_data();

    void matchesWhatTheExpressionMatches()
    {
        QFETCH(QString, pattern);
        QFETCH(Matching, matching);
        QFETCH(QString, pieces);
        const ChainPattern chain(pattern, matching);
        const auto plainMatches = [&, expression = QRegularExpression(pattern)](const QString &text) {
            if (matching == Matching::Stepwise)
                return allMatches(expression, text);
            QRegExp older(pattern);
            older.setMinimal(matching == Matching::Shortest);
            return allMatches(older, text);
        };
        QStringList words = pieces.split(QLatin1Char(' '));
        words.replaceInStrings("~"_s, " "_s);
        RandomText pages(words << " "_s);
        int matched = 0;
        for (int i = 0; i < 3000; ++i) {
            const QString page = pages.next(6 + i % 40);
            const QStringList expected = plainMatches(page);
            matched += expected.isEmpty() ? 0 : 1;
            QVERIFY2(
                allMatches(ChainScan(chain, page)) == expected,
                qPrintable("%1\nexpected %2\ngot %3"_s.arg(page, expected.join(QLatin1Char('|')),
                                                           allMatches(ChainScan(chain, page)).join(QLatin1Char('|')))));
        }
        QVERIFY2(matched > 20, "the pages must match often enough to say something");
        QVERIFY(fixturePages().size() >= 8);
        for (const QString &page : fixturePages())
            QCOMPARE(allMatches(ChainScan(chain, page)), plainMatches(page));
    }

    void firstCaptureIsThatOfTheFirstMatch()
    {
        const ChainPattern pattern("<b>(.*)</b>"_s);
        QCOMPARE(firstCapture(pattern, "<b>one</b><b>two</b>"_s).value_or(QString()), "one"_s);
        QVERIFY(!firstCapture(pattern, "<b>one"_s));
    }
};

void tst_ChainPattern::matchesWhatTheExpressionMatches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<Matching>("matching");
    QTest::addColumn<QString>("pieces"); // separated by blanks
    addRow("search row, longest", R"re(<div[^>]*data-sorting-artist="([^"]*)"[^>]*>)re", Matching::Longest,
           R"re(<div data-sorting-artist=" " > x)re");
    addRow("song link, longest", R"re(<a[^>]*href="([^"]*)"[^>]*class="song")re", Matching::Longest,
           R"re(<a href=" " class="song" > /x)re");
    addRow("content block", R"re(<div[^>]*id=["']content["'].*>(.*)</div>)re", Matching::Shortest,
           R"re(<div id="content" id='content" > </div> x)re");
    addRow("table body", R"re(<div[^>]*class="songs-table"[^<]*>.*<table>.*<tbody>(.*)</tbody>)re", Matching::Shortest,
           R"re(<div class="songs-table" > <table> <tbody> </tbody> x)re");
    addRow("table row of five cells",
           R"re(<tr.*>.*<td.*>.*<td.*>.*<a.*href="([^"]*)".*>([^<]*)</a>.*<td.*>(.*)</td>.*<td.*>.*<td.*>.*</tr>)re",
           Matching::Shortest, R"re(<tr><td><td><a href=" "> </a> </a><td> </td> </td><td><td></tr> <td> y > < ")re");
    addRow("table row with two names",
           R"re(<tr>.*<td[^<]*class[^<]*>.*<a.*href="([^"]*)".*>.*<b>(.*)</b>.*<b>([^<]*)</b>.*</td></tr>)re",
           Matching::Shortest, R"re(<tr> <tr><td~class> <a~href=" "> <b> </b> </b><b> </b></td></tr> y <)re");
    addRow("song text", R"re(<div[^>]*id="song_text"[^>]*>(.*)</div>.*<div.*class="switch-block".*>)re",
           Matching::Shortest, R"re(<div id="song_text" > </div> class="switch-block" x)re");
    addRow("blanks, then anything", R"re(<div\s*id="native_roll">.*</div>)re", Matching::Shortest,
           "<div id=\"native_roll\"> </div> \t \n \u00a0 x");
    addRow("quotes any number of times", R"re(<div class="lyrics"*>(.*)</div>)re", Matching::Shortest,
           R"re(<div~class="lyrics " > </div> x)re");
    addRow("attributes of a script", R"re(setAttribute\("(.+?)"\s*,\s*"(.+?)"\s*\))re", Matching::Stepwise,
           "setAttribute(\" \" , ) \",\" x \n \t \u00a0"_s);
    addRow("gaps that decide for themselves", R"re(a(.+?)b([^x]*)c(\d+)b(.*?)a)re", Matching::Stepwise,
           "a b c x 1 \n b1 c2b"_s);
}

QTEST_APPLESS_MAIN(tst_ChainPattern)
#include "tst_chainpattern.moc"
