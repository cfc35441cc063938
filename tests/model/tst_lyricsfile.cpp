// SPDX-License-Identifier: MIT
#include "model/LyricsFile.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QTest>
#include <QTextCodec>

class tst_LyricsFile : public QObject
{
    Q_OBJECT

private slots:
    void lyricsAreWrittenBesideTheSong_data()
    {
        addTextColumns("song", "textFile", "locale", "lyrics");
        QTest::addColumn<QByteArray>("bytes");
        const QString cafe = "café\r\nla"_s;
        const QString russian = "Слово"_s;
        addRow("only the last suffix goes", "No. 5.live.mp3", "No. 5.live.txt", "UTF-8", cafe, cafe.toUtf8());
        addRow("the locale's encoding where it can hold the text", "a.mp3", "a.txt", "ISO-8859-1", cafe,
               cafe.toLatin1());
        addRow("else UTF-8", "a.mp3", "a.txt", "ISO-8859-1", russian, russian.toUtf8());
        addRow("an odd name, no lyrics", "#1 %41\n.ogg", "#1 %41\n.txt", "UTF-8", "", QByteArray());
    }

    void lyricsAreWrittenBesideTheSong()
    {
        QFETCH(QString, song);
        QFETCH(QString, textFile);
        QFETCH(QString, locale);
        QFETCH(QString, lyrics);
        const TestFolder folder;
        folder.write(textFile, QByteArray(5000, 'x'));
        QTextCodec *before = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(locale.toLatin1()));
        const bool written = writeLyricsFile(folder.path(song), lyrics);
        QTextCodec::setCodecForLocale(before);
        QVERIFY(written);
        QTEST(folder.read(textFile), "bytes");
    }

    void whatCannotBeWrittenIsLeftAlone()
    {
        const TestFolder folder;
        QVERIFY(!writeLyricsFile(folder.path("gone/a.mp3"_s), "la"_s));
        folder.write("a.txt/song"_s); // a folder stands where the text file would be
        QVERIFY(!writeLyricsFile(folder.path("a.mp3"_s), "la"_s));
        QCOMPARE(folder.names(), QStringList{"a.txt"_s});
    }
};

QTEST_GUILESS_MAIN(tst_LyricsFile)
#include "tst_lyricsfile.moc"
