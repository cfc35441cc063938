// SPDX-License-Identifier: MIT
#include "model/LyricsFile.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

class tst_LyricsFile : public QObject
{
    Q_OBJECT

private slots:
    void lyricsAreWrittenBesideTheSong_data()
    {
        QTest::addColumn<QString>("song");
        QTest::addColumn<QString>("textFile");
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("lyrics");
        QTest::addColumn<QByteArray>("bytes");
        const QString cafe = "café\r\nla"_s;
        const QString russian = "Слово"_s;
        addRow("only the last suffix goes", "No. 5.live.mp3", "No. 5.live.txt", QByteArray("UTF-8"), cafe,
               cafe.toUtf8());
        addRow("the locale's encoding where it can hold the text", "a.mp3", "a.txt", QByteArray("ISO-8859-1"), cafe,
               cafe.toLatin1());
        addRow("else UTF-8", "a.mp3", "a.txt", QByteArray("ISO-8859-1"), russian, russian.toUtf8());
        addRow("an odd name, no lyrics", "#1 %41\n.ogg", "#1 %41\n.txt", QByteArray("UTF-8"), "", QByteArray());
    }

    void lyricsAreWrittenBesideTheSong()
    {
        QFETCH(QString, song);
        QFETCH(QString, textFile);
        QFETCH(QByteArray, locale);
        QFETCH(QString, lyrics);
        const QTemporaryDir folder;
        QFile old(folder.filePath(textFile));
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write(QByteArray(5000, 'x')) == 5000);
        old.close();

        QTextCodec *before = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(locale));
        const bool written = writeLyricsFile(folder.filePath(song), lyrics);
        QTextCodec::setCodecForLocale(before);
        QVERIFY(written);
        QVERIFY(old.open(QIODevice::ReadOnly));
        QTEST(old.readAll(), "bytes");
    }

    void whatCannotBeWrittenIsLeftAlone()
    {
        const QTemporaryDir folder;
        QVERIFY(!writeLyricsFile(folder.filePath("gone/a.mp3"_s), "la"_s));
        // A folder stands where the text file would be.
        QVERIFY(QDir(folder.path()).mkdir("a.txt"_s));
        QVERIFY(!writeLyricsFile(folder.filePath("a.mp3"_s), "la"_s));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{"a.txt"_s});
    }
};

QTEST_GUILESS_MAIN(tst_LyricsFile)
#include "tst_lyricsfile.moc"
