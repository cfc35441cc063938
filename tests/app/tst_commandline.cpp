// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <QTest>

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QString>("unknownOption");
        const QString none;
        QTest::newRow("relative") << QStringList{"a.mp3", "../b"} << QStringList{"/music/x/a.mp3", "/music/b"} << none;
        QTest::newRow("characters of addresses")
            << QStringList{"/m/50% #1?.mp3"} << QStringList{"/m/50% #1?.mp3"} << none;
        QTest::newRow("an address") << QStringList{"file:///m/a%20b.mp3"} << QStringList{"/m/a b.mp3"} << none;
        QTest::newRow("looks like a site") << QStringList{"http:"} << QStringList{"/music/x/http:"} << none;
        QTest::newRow("behind the options") << QStringList{"--", "--x"} << QStringList{"/music/x/--x"} << none;
        QTest::newRow("an option nobody knows")
            << QStringList{"--recursive", "a"} << QStringList{"/music/x/a"} << "--recursive";
        QTest::newRow("empty") << QStringList{""} << QStringList() << none;
    }

    void reads()
    {
        QFETCH(QStringList, arguments);
        arguments.prepend("versewell");
        const CommandLine line = readCommandLine(arguments, "/music/x");
        QStringList paths;
        for (const QUrl &song : line.songs)
            paths.append(song.toLocalFile());
        QTEST(paths, "paths");
        QTEST(line.unknownOption, "unknownOption");
    }

    void answers()
    {
        const char *const version[] = {"versewell", "a.mp3", "-v"};
        QCOMPARE(answerFor(3, version), QByteArray("Versewell " VERSEWELL_VERSION "\n"));
        const char *const behind[] = {"versewell", "--", "--help"};
        QVERIFY(answerFor(3, behind).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
