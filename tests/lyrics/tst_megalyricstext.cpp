// SPDX-License-Identifier: MIT
#include "lyrics/providers/MegaLyricsText.h"
#include "support/TestTable.h"

#include <QTest>

class tst_MegaLyricsText : public QObject
{
    Q_OBJECT

private slots:
    void decodesTexts_data()
    {
        addTextColumns("text", "decoded");
        addRow("named references", "&quot;&lt;&gt;&nbsp;&middot;&AMP;&apos;", "\"<> &AMP;&apos;");
        addRow("an ampersand uncovers the names behind it", "&amp;lt;&amp;quot;&amp;#1040;", "<&quot;А");
        addRow("escapes", R"(a\\nb\b\f\n\r\tc\x\"\)", "a\\nb\b\f\n\r\tc\\x\\\"\\");
        addRow("UTF-16 units, a pair of them, in any case", R"(Д\u0430 \uD83C\udfB5 &\u002339;)", "Да 🎵 '");
        addRow("escapes that are none stay", R"(\u12г4 \uxyz \u)", R"(\u12г4 \uxyz \u)");
        addRow("references last", R"(&#1040;&#92;n)", R"(А\n)");
    }

    void decodesTexts()
    {
        QFETCH(QString, text);
        QTEST(decodeMegaLyricsText(text), "decoded");
    }

    void logsBadEscapes()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Not an hex string: xy12");
        QTest::ignoreMessage(QtCriticalMsg, "error converting hex value to short: 04");
        QCOMPARE(decodeMegaLyricsText(R"(\uxy12\u04)"_s), R"(\uxy12\u04)"_s);
    }
};

QTEST_APPLESS_MAIN(tst_MegaLyricsText)
#include "tst_megalyricstext.moc"
