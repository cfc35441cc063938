// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "support/TestTable.h"

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QString>("unknown");
        const auto row = [](const char *name, const QStringList &arguments, const QStringList &paths,
                            const QString &unknown = {}) {
            addRow(name, arguments, paths, unknown);
        };
        row("relative", {"a.mp3", "../b"}, {"/music/x/a.mp3", "/music/b"});
        row("characters of addresses", {"/m/50% #1?.mp3"}, {"/m/50% #1?.mp3"});
        row("an address", {"file:///m/a%20b.mp3"}, {"/m/a b.mp3"});
        row("looks like a site", {"http:"}, {"/music/x/http:"});
        row("behind the options", {"--", "--x"}, {"/music/x/--x"});
        row("an option nobody knows", {"--recursive", "a"}, {"/music/x/a"}, "--recursive");
        row("empty", {""}, {});
    }

    void reads()
    {
        QFETCH(QStringList, arguments);
        const CommandLine line = readCommandLine(QStringList("versewell") + arguments, "/music/x");
        QStringList paths;
        for (const QUrl &song : line.songs)
            paths.append(song.toLocalFile());
        QTEST(paths, "paths");
        QTEST(line.unknownOption, "unknown");
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
