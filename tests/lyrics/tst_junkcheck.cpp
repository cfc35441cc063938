// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"

#include <QTest>

class tst_JunkCheck : public QObject
{
    Q_OBJECT

private slots:
    void tellsJunkFromLyrics_data();
    void tellsJunkFromLyrics();
};

void tst_JunkCheck::tellsJunkFromLyrics_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("junk");
    QTest::newRow("nothing at all") << "" << false;
    QTest::newRow("one word") << "La" << false;
    QTest::newRow("another tag left in") << "I <3 you <i>so</i>" << false;
    QTest::newRow("a line about scripts") << "this is my script, my html, my style" << false;
    QTest::newRow("a script") << "la\n<script>alert(1)</script>" << true;
    QTest::newRow("a script in capitals") << "la <SCRIPT src=x>" << true;
    QTest::newRow("a style sheet") << "<style type=text/css>b{}" << true;
    QTest::newRow("a document") << "<html lang=en>" << true;
    QTest::newRow("a document type") << "<!doctype html>" << true;
    QTest::newRow("as long as it may be") << QString(100000, QLatin1Char('a')) << false;
    QTest::newRow("too long") << QString(100001, QLatin1Char('a')) << true;
    QTest::newRow("too long in bytes") << QString(50001, QChar(0x44f)) << true;
}

void tst_JunkCheck::tellsJunkFromLyrics()
{
    QFETCH(QString, text);
    QTEST(isJunk(text), "junk");
}

QTEST_GUILESS_MAIN(tst_JunkCheck)
#include "tst_junkcheck.moc"
