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
    const QRegularExpression reference("&#(x[a-fA-F0-9]{2,5}|\\d{2,6});"_s);
    for (auto match = reference.match(text); match.hasMatch(); match = reference.match(text)) {
        QString digits = match.captured(1);
        const bool hex = digits.startsWith(QLatin1Char('x'));
        const uint code = hex ? digits.mid(1).toUInt(nullptr, 16) : digits.toUInt(nullptr, 10);
        text.replace(match.captured(0), QString::fromUcs4(&code, 1));
    }
    const auto names = "&amp; & &gt; > &lt; < &quot; \" &#39; ' &#039; '"_s.split(QLatin1Char(' '));
    for (int i = 0; i < names.size(); i += 2)
        text.replace(names.at(i), names.at(i + 1));
    return text;
}

QString decodeDecimalReferences(QString text)
{
    QRegExp reference("&#(\\d+);"_s);
    reference.setMinimal(true);
    while (reference.indexIn(text) >= 0) {
        const uint code = reference.cap(1).toUInt();
        text.replace(reference.cap(0), QString::fromUcs4(&code, 1));
    }
    return text;
}

QString stripTags(QString text)
{
    QRegExp tag("</?[^>]+/?>"_s);
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
    text.replace("\r\n"_s, "\n"_s);
    text.remove(QRegExp("<!--(.*)-->"_s));
    text.replace(QRegExp("<br\\s*/?>\n?"_s), "\n"_s);
    text.remove(QRegExp("^\\s*\n\\s*"_s));
    text.remove(QRegExp("\\s*\n?\\s*$"_s));
    return plain::decodeHtmlEntities(plain::stripTags(text).trimmed());
}

} // namespace plain

} // namespace

using TextFunction = QString (*)(const QString &);
Q_DECLARE_METATYPE(TextFunction)

class tst_LyricsText : public QObject
{
    Q_OBJECT

private slots:
    void convertsTexts_data()
    {
        QTest::addColumn<TextFunction>("convert");
        addTextColumns("text", "converted");
        const auto withoutScripts = withoutScriptsAndStyles;
        addRow("scripts and style sheets go whole", withoutScripts,
               "a<Script x>1<style></SCRIPT >b<style>2</style>c<scripture>d</script>", "abc<scripture>d</script>");
        addRow("a longer name does not end a script", withoutScripts, "a<script>1</scripts>2</script>b", "ab");
        addRow("a script that is not closed stays", withoutScripts, "<style></style><script>1<style></style>",
               "<script>1<style></style>");
        addRow("an ampersand uncovers names", decodeHtmlEntities, "&amp;lt;&amp;#39;&amp;#039;", "<''");
        addRow("an ampersand uncovers no number", decodeHtmlEntities, "&amp;#8217;", "&#8217;");
        addRow("a pair written as halves", decodeHtmlEntities, "&#xD83C;&#xDFB5;", "🎵");
        addRow("NUL is kept for whoever removes it", decodeHtmlEntities, "a&#00;b", "a%1b"_s.arg(QChar(0)));
        addRow("any number of digits", decodeDecimalReferences, "&#9;&#1040;&#127925;&#0000000065;", "\tА🎵A");
        addRow("beyond Unicode", decodeDecimalReferences, "&#1114112;&#99999999999999999999;", "\ufffd\ufffd");
        const QChar high(0xD83C);
        const QChar low(0xDFB5);
        addRow("NUL goes", withoutBrokenCharacters, "a%1b"_s.arg(QChar(0)), "ab");
        addRow("a high half at the end", withoutBrokenCharacters, "a"_s + high, "a\ufffd");
        addRow("halves in the wrong order", withoutBrokenCharacters, QString(low) + high, "\ufffd\ufffd");
        addRow("a high half before a pair", withoutBrokenCharacters, QString(high) + high + low, "\ufffd🎵");
    }

    void convertsTexts()
    {
        QFETCH(TextFunction, convert);
        QFETCH(QString, text);
        QTEST(convert(text), "converted");
    }

    // Halves of surrogate pairs are left out: a regular expression gives up on a text that holds one.
    void convertsLikeThePlainExpressions()
    {
        const QString tags = "<!-- --> -- <br br > /> </ < / \r\n \n \t \u00a0 \u0085 \u200b x &amp; &#60; b> ~"_s;
        compareOnRandomTexts(tags, cleanLyrics, plain::cleanLyrics);
        compareOnRandomTexts(tags, stripTags, plain::stripTags);
        compareOnRandomTexts(
            "&#38; &#35; &#x3b; &#59; &#x78; &#48; & # x 1 0 ; amp; &amp; lt; &quot; &#039; 39; &#00; 🎵 ~"_s,
            decodeHtmlEntities, plain::decodeHtmlEntities);
        compareOnRandomTexts("&#38; &#35; &#59; &#0049; &#48; & # 1 0 5 ; x &#0; 🎵 ~"_s, decodeDecimalReferences,
                             plain::decodeDecimalReferences);
    }

    void decodesPercentEscapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("decoded");
        addRow("well formed, either case", QByteArray("a%20b%C3%a9"), QByteArray("a b\xC3\xA9"));
        addRow("100% sure", QByteArray("100% sure, 5%!"), QByteArray("100% sure, 5%!"));
        addRow("cut off", QByteArray("%4 %4"), QByteArray("%4 %4"));
        addRow("decoded once", QByteArray("%2541%%41"), QByteArray("%41%A"));
        addRow("NUL", QByteArray("a%00b"), QByteArray("a\0b", 3));
    }

    void decodesPercentEscapes()
    {
        QFETCH(QByteArray, bytes);
        QTEST(decodePercentEscapes(bytes), "decoded");
    }
};

QTEST_APPLESS_MAIN(tst_LyricsText)
#include "tst_lyricstext.moc"
