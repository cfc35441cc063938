// SPDX-License-Identifier: MIT
#include "model/LyricsFile.h"

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
        const QString cafe = QStringLiteral("café\r\nla");
        const QString russian = QStringLiteral("Слово");
        QTest::newRow("only the last suffix goes") << "No. 5.live.mp3"
                                                   << "No. 5.live.txt" << QByteArray("UTF-8") << cafe << cafe.toUtf8();
        QTest::newRow("the locale's encoding where it can hold the text")
            << "a.mp3"
            << "a.txt" << QByteArray("ISO-8859-1") << cafe << cafe.toLatin1();
        QTest::newRow("else UTF-8") << "a.mp3"
                                    << "a.txt" << QByteArray("ISO-8859-1") << russian << russian.toUtf8();
        QTest::newRow("an odd name, no lyrics") << "#1 %41\n.ogg"
                                                << "#1 %41\n.txt" << QByteArray("UTF-8") << "" << QByteArray();
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
        QVERIFY(!writeLyricsFile(folder.filePath(QStringLiteral("gone/a.mp3")), QStringLiteral("la")));
        // A folder stands where the text file would be.
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("a.txt")));
        QVERIFY(!writeLyricsFile(folder.filePath(QStringLiteral("a.mp3")), QStringLiteral("la")));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{QStringLiteral("a.txt")});
    }
};

QTEST_GUILESS_MAIN(tst_LyricsFile)
#include "tst_lyricsfile.moc"
