// SPDX-License-Identifier: MIT
#include "SitePages.h"
#include "lyrics/LyricsText.h"
#include "lyrics/NamedCharacters.h"
#include "lyrics/PageBytes.h"
#include "lyrics/SongNames.h"
#include "lyrics/providers/MegaLyricsText.h"
#include "lyrics/providers/TextSearch.h"
#include "support/TestTable.h"

namespace {

QString withoutEscapes(const QString &text)
{
    return QString::fromUtf8(decodePercentEscapes(text.toUtf8()));
}

} // namespace

using TextFunction = QString (*)(const QString &);
Q_DECLARE_METATYPE(TextFunction)

class tst_Texts : public QObject
{
    Q_OBJECT

private slots:
    void areConverted_data();

    void areConverted()
    {
        QFETCH(TextFunction, convert);
        QFETCH(QString, text);
        QTEST(convert(text), "converted");
    }

    void areSearchedForTexts()
    {
        QVERIFY(holdsText("aab"_s, "ab"_s) && !holdsText("aab"_s, "ba"_s));
        QCOMPARE(withoutText("🎵aababb"_s, "ab"_s), "🎵ab"_s);
        QCOMPARE(withoutText("ab;ab"_s, "ab"_s, ";"_s), ";ab"_s);
    }

    // A search that compares anew at each place takes minutes for these.
    void areSearchedInTimeThatGrowsInStep()
    {
        const QString text = repeated("a"_s);
        const QString most = text.left(hostileSize / 3);
        const QLatin1Char b('b');
        for (const QString &part : {b + most, most + b, most + b + most}) {
            QVERIFY(!holdsText(text, part));
            QCOMPARE(withoutText(text + part + text, part).size(), 2 * text.size());
        }
    }

    void logBadEscapes()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Not an hex string: \"\\u001B[2J\"");
        QTest::ignoreMessage(QtCriticalMsg, "error converting hex value to short: \"04\"");
        QCOMPARE(decodeMegaLyricsText("\\u\x1b[2J\\u04"_s), "\\u\x1b[2J\\u04"_s);
    }

    void namesAreComparedLoosely_data()
    {
        addTextColumns("left", "right");
        QTest::addColumn<bool>("agree");
        addRow("a slash is no hyphen", "AC/DC", "AC-DC", false);
        addRow("every mark goes", "a\u2019b`c\"d'e f,g&h", "ABCDEFGH", true);
        addRow("the wanted name within the found one", "Beatles", "The Beatles", true);
        addRow("the found name within the wanted one", "The Beatles", "Beatles", true);
        addRow("nothing left resembles everything", " '&' ", "Foo", true);
        addRow("other scripts in any case", "АРИЯ", "Ария", true);
        addRow("what looks alike", "Beyonce\u0301\u00a0\u2018Ｌ\u00b4ive", "beyoncé live", true);
        addRow("accents count", "Beyonce", "Beyoncé", false);
    }

    void namesAreComparedLoosely()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QTEST(looselyAgree(left, right), "agree");
    }
};

void tst_Texts::areConverted_data()
{
    QTest::addColumn<TextFunction>("convert");
    addTextColumns("text", "converted");
    addRow("scripts and style sheets go whole", withoutScriptsAndStyles,
           "a<Script x>1<style></SCRIPT >b<style>2</style>c<scripture>d</script>", "abc<scripture>d</script>");
    addRow("a longer name does not end a script", withoutScriptsAndStyles, "<script>1</scripts>2</script>b", "b");
    addRow("a script that is not closed stays", withoutScriptsAndStyles, "<style></style><script>1<style></style>",
           "<script>1<style></style>");
    addRow("a script that begins in a comment does not reach beyond it", withoutScriptsAndStyles,
           "a<!--<script>-->b<script>1</script>c<!--<script>2</script>-->", "a<!--<script>-->bc<!---->");
    addRow("breaks in lower case, each with one newline", cleanLyrics, "<p>a<br/>\nb<br>c<br \t/>\n\nd<BR>e</p>\r\n",
           "a\nb\nc\n\nde");
    addRow("all between the first comment and the last", cleanLyrics, "x<!-- 1 -->y<!-- 2 -->z", "xz");
    addRow("a comment that is not closed is a tag", cleanLyrics, "a<!--b>c<!--d", "ac<!--d");
    addRow("tags in one another, empty ones and half ones", cleanLyrics, "<<b>i</b>><>a</>b</i<u>", "i><>ab");
    addRow("blank ends, also inside of tags, but not in references", cleanLyrics, " \n<b> \n a </b>\n&#32;", "a \n ");
    addRow("what references hide is no tag", cleanLyrics, "&lt;b&gt;&amp;&quot;&#60;br&#62;", "<b>&\"<br>");
    addRow("numbers of two to six digits, or five with x", decodeHtmlEntities,
           "&#x41;&#066;&#9;&#x9;&#0000065;&#x000041;", "AB&#9;&#x9;&#0000065;&#x000041;");
    addRow("references that come out of references", decodeHtmlEntities, "&#38;#65;&#35;66;&#38;&#35;67;", "A#66;C");
    addRow("an ampersand uncovers names, and no number", decodeHtmlEntities, "&amp;lt;&amp;#039;&amp;#8217;",
           "<'&#8217;");
    addRow("a pair written as halves", decodeHtmlEntities, "&#xD83C;&#xDFB5;", "🎵");
    addRow("digits in any number, also from others", decodeDecimalReferences, "&#9;&#127925;&#0000065;&#38;#66;&#;&#6",
           "\t🎵AB&#;&#6");
    addRow("beyond Unicode", decodeDecimalReferences, "&#1114112;&#99999999999999999999;", "\ufffd\ufffd");
    const QChar high(0xD83C);
    const QChar low(0xDFB5);
    addRow("NUL goes", withoutBrokenCharacters, "a%1b"_s.arg(QChar(0)), "ab");
    addRow("a high half at the end", withoutBrokenCharacters, "a"_s + high, "a\ufffd");
    addRow("halves in the wrong order", withoutBrokenCharacters, QString(low) + high, "\ufffd\ufffd");
    addRow("a high half before a pair", withoutBrokenCharacters, QString(high) + high + low, "\ufffd🎵");
    addRow("signs of windows-1252, and what controls a device", withoutBrokenCharacters,
           "a\u0092b\u0085\u0081\b\f\u007f\t\r\n", "a’b…\t\r\n");
    addRow("marks without width", withoutBrokenCharacters, "\ufeff\u200ba\ufeff\u200bb\u200b", "a\u200bb");
    addRow("names of characters that are no markup", withNamedCharacters,
           "&rsquo;&eacute;&Eacute;&nbsp;&apos;&amp;&lt;&nosuch;&;&", "’éÉ\u00a0'&amp;&lt;&nosuch;&;&");
    addRow("a letter and its accent in one", queryValue, "e\u0301&", "%C3%A9%26");
    addRow("escapes, in either case, once", withoutEscapes, "a%20b%C3%a9%2541%%41", "a bé%41%A");
    addRow("percent signs that are no escapes", withoutEscapes, "100% sure, 5%! %4 %4", "100% sure, 5%! %4 %4");
    addRow("escapes of bytes that are no UTF-8", withoutEscapes, "100%baby %d0%41 %d0%b0%d0", "100%baby %d0A а%d0");
    addRow("the sign for what is no character", withoutEscapes, "a%EF%BF%BDb", "a\ufffdb");

    addRow("named references", decodeMegaLyricsText, "&quot;&lt;&gt;&nbsp;&middot;&AMP;&apos;", "\"<> &AMP;&apos;");
    addRow("an ampersand uncovers the names behind it", decodeMegaLyricsText, "&amp;lt;&amp;quot;&amp;#1040;",
           "<&quot;А");
    addRow("escapes", decodeMegaLyricsText, R"(a\\nb\b\f\n\r\tc\x\"\)", "a\\nb\b\f\n\r\tc\\x\\\"\\");
    addRow("UTF-16 units, a pair of them, in any case", decodeMegaLyricsText, R"(Д\u0430 \uD83C\udfB5 &\u002339;)",
           "Да 🎵 '");
    addRow("escapes that are none stay", decodeMegaLyricsText, R"(\u12г4 \uxyz \u)", R"(\u12г4 \uxyz \u)");
    addRow("references last", decodeMegaLyricsText, R"(&#1040;&#92;n)", R"(А\n)");

    addRow("several names", normalisedArtist, R"(Foo\\Bar)", "Foo");
    addRow("one backslash is part of the name", normalisedArtist, R"(Foo\Bar)", R"(Foo\Bar)");
    addRow("every marker of a guest is tried, in any case", normalisedArtist, "A Featuring B ft. C", "A");
    addRow("a marker needs its spaces", normalisedArtist, "Daft. Punk feat.Bar", "Daft. Punk feat.Bar");
    addRow("lower-casing would change the length", normalisedArtist, "İİ feat. Bar", "İİ");
    addRow("official, in any case", normalisedTitle, "Song (Official)", "Song");
    addRow("both suffixes, the official one first", normalisedTitle, "Song (official) (Extended Video)",
           "Song (official)");
    addRow("a guest before the suffix takes it along", normalisedTitle, "Song ft. Bar (official)", "Song");
}

QTEST_APPLESS_MAIN(tst_Texts)
#include "tst_texts.moc"
