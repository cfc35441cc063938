// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "lyrics/ChainScan.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>

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
        const auto chainMatches = [&](const QString &text) {
            return allMatches(ChainScan(chain, text));
        };
        compareOnRandomTexts(pieces + " ~"_s, chainMatches, plainMatches, 20);
    }
};

void tst_ChainPattern::matchesWhatTheExpressionMatches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<Matching>("matching");
    QTest::addColumn<QString>("pieces"); // separated by blanks
    addRow("search row, longest", R"re(<div[^>]*data-sorting-artist="([^"]*)"[^>]*>)re", Matching::Longest,
           R"re(<div data-sorting-artist=" " > x)re");
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
