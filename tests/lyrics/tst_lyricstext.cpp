// SPDX-License-Identifier: MIT
#include "RandomText.h"
#include "lyrics/LyricsText.h"
#include "support/TestTable.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QTest>

namespace {

// The same steps with the expressions that define them, however long they take.
namespace plain {

QString decodeHtmlEntities(QString text)
{
    const QRegularExpression reference(QStringLiteral("&#(x[a-fA-F0-9]{2,5}|\\d{2,6});"));
    for (auto match = reference.match(text); match.hasMatch(); match = reference.match(text)) {
        QString digits = match.captured(1);
        const bool hex = digits.startsWith(QLatin1Char('x'));
        const uint code = hex ? digits.mid(1).toUInt(nullptr, 16) : digits.toUInt(nullptr, 10);
        text.replace(match.captured(0), QString::fromUcs4(&code, 1));
    }
    const auto names = QStringLiteral("&amp; & &gt; > &lt; < &quot; \" &#39; ' &#039; '").split(QLatin1Char(' '));
    for (int i = 0; i < names.size(); i += 2)
        text.replace(names.at(i), names.at(i + 1));
    return text;
}

QString decodeDecimalReferences(QString text)
{
    QRegExp reference(QStringLiteral("&#(\\d+);"));
    reference.setMinimal(true);
    while (reference.indexIn(text) >= 0) {
        const uint code = reference.cap(1).toUInt();
        text.replace(reference.cap(0), QString::fromUcs4(&code, 1));
    }
    return text;
}

QString stripTags(QString text)
{
    QRegExp tag(QStringLiteral("</?[^>]+/?>"));
    tag.setMinimal(true);
    QString before;
    do {
        before = text;
        text.remove(tag);
    } while (text != before);
    return text;
}

QString cleanLyrics(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.remove(QRegExp(QStringLiteral("<!--(.*)-->")));
    text.replace(QRegExp(QStringLiteral("<br\\s*/?>\n?")), QStringLiteral("\n"));
    text.remove(QRegExp(QStringLiteral("^\\s*\n\\s*")));
    text.remove(QRegExp(QStringLiteral("\\s*\n?\\s*$")));
    return plain::decodeHtmlEntities(plain::stripTags(text).trimmed());
}

} // namespace plain

using TextFunction = QString (*)(const QString &);

template<typename Plain>
void compareOnRandomTexts(const QString &pieces, TextFunction fast, Plain slow)
{
    RandomText texts(pieces.split(QLatin1Char(' ')) << QStringLiteral(" "));
    for (int i = 0; i < 5000; ++i) {
        const QString text = texts.next(24);
        QVERIFY2(fast(text) == slow(text),
                 qPrintable(QStringLiteral("'%1' gave '%2' instead of '%3'").arg(text, fast(text), slow(text))));
    }
}

} // namespace

class tst_LyricsText : public QObject
{
    Q_OBJECT

private slots:
    void cleansFragments_data()
    {
        addTextColumns("html", "lyrics");
        addRow("breaks, one newline behind each goes", "<p>a<br/>\nb<br>c</p>\r\n", "a\nb\nc");
        addRow("comments go from first to last", "x<!-- 1 -->y<!-- 2 -->z", "xz");
        addRow("a tag swallows an opening bracket", "<<b>i</b>>", "i>");
        addRow("blank ends go, inner space stays", " \n\t<i> a  b </i>\u00a0\n", "a  b");
    }

    void cleansFragments()
    {
        QFETCH(QString, html);
        QTEST(cleanLyrics(html), "lyrics");
    }

    void cleansLikeThePlainExpressions()
    {
        const QString pieces =
            QStringLiteral("<!-- --> -- <br br > /> </ < / \r\n \n \t \u00a0 \u0085 \u200b x &amp; &#60; b>");
        compareOnRandomTexts(pieces, cleanLyrics, plain::cleanLyrics);
        compareOnRandomTexts(pieces, stripTags, plain::stripTags);
    }

    void decodesEntities_data()
    {
        addTextColumns("text", "decoded");
        addRow("hexadecimal, decimal, one digit only", "&#x41;&#66;&#9;", "AB&#9;");
        addRow("an ampersand uncovers a name", "&amp;lt;&amp;#39;&amp;#039;", "<''");
        addRow("an ampersand uncovers no number", "&amp;#8217;", "&#8217;");
        addRow("a pair written as halves", "&#xD83C;&#xDFB5;", "🎵");
        addRow("NUL is kept for whoever removes it", "a&#00;b", QStringLiteral("a%1b").arg(QChar(0)));
    }

    void decodesEntities()
    {
        QFETCH(QString, text);
        QTEST(decodeHtmlEntities(text), "decoded");
    }

    // Halves of surrogate pairs are left out: a regular expression gives up on a text that holds one.
    void decodesLikeThePlainExpressions()
    {
        compareOnRandomTexts(
            QStringLiteral(
                "&#38; &#35; &#x3b; &#59; &#x78; &#48; & # x 1 0 ; amp; &amp; lt; &quot; &#039; 39; &#00; 🎵"),
            decodeHtmlEntities, plain::decodeHtmlEntities);
        compareOnRandomTexts(QStringLiteral("&#38; &#35; &#59; &#0049; &#48; & # 1 0 5 ; x &#0; 🎵"),
                             decodeDecimalReferences, plain::decodeDecimalReferences);
    }

    void decodesDecimalReferences_data()
    {
        addTextColumns("text", "decoded");
        addRow("any number of digits", "&#9;&#1040;&#127925;&#0000000065;", "\tА🎵A");
        addRow("nothing else", "&amp;&#x41;&#;&#6 5;#65;", "&amp;&#x41;&#;&#6 5;#65;");
        addRow("beyond Unicode", "&#1114112;&#99999999999999999999;", "\ufffd\ufffd");
    }

    void decodesDecimalReferences()
    {
        QFETCH(QString, text);
        QTEST(decodeDecimalReferences(text), "decoded");
    }

    void decodesPercentEscapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("decoded");
        addRow("well formed, either case", QByteArray("a%20b%C3%a9"), QByteArray("a b\xC3\xA9"));
        addRow("100% sure", QByteArray("100% sure, 5%!"), QByteArray("100% sure, 5%!"));
        addRow("cut off", QByteArray("%4 %4"), QByteArray("%4 %4"));
        addRow("decoded once", QByteArray("%2541%%41"), QByteArray("%41%A"));
        addRow("at the very end", QByteArray("x%41%"), QByteArray("xA%"));
        addRow("NUL", QByteArray("a%00b"), QByteArray("a\0b", 3));
    }

    void decodesPercentEscapes()
    {
        QFETCH(QByteArray, bytes);
        QTEST(decodePercentEscapes(bytes), "decoded");
    }

    void removesBrokenCharacters_data()
    {
        const QChar high(0xD83C);
        const QChar low(0xDFB5);
        addTextColumns("text", "whole");
        addRow("nothing to do", "la 🎵\n\tla", "la 🎵\n\tla");
        addRow("NUL", QStringLiteral("a%1b").arg(QChar(0)), "ab");
        addRow("a high half at the end", QStringLiteral("a") + high, "a\ufffd");
        addRow("halves in the wrong order", QString(low) + high, "\ufffd\ufffd");
        addRow("a high half before a pair", QString(high) + high + low, "\ufffd🎵");
    }

    void removesBrokenCharacters()
    {
        QFETCH(QString, text);
        QTEST(withoutBrokenCharacters(text), "whole");
    }
};

QTEST_APPLESS_MAIN(tst_LyricsText)
#include "tst_lyricstext.moc"
