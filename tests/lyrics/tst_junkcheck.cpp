// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"
#include "support/TestTable.h"

#include <QTest>

class tst_JunkCheck : public QObject
{
    Q_OBJECT

private slots:
    void tellsJunkFromLyrics_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("junk");
        addRow("nothing at all", "", false);
        addRow("one word", "La", false);
        addRow("another tag left in", "I <3 you <i>so</i>", false);
        addRow("a script", "la\n<script>alert(1)</script>", true);
        addRow("a style sheet", "<style type=text/css>b{}", true);
        addRow("a document", "<html lang=en>", true);
        addRow("a document type", "<!doctype html>", true);
        addRow("as long as it may be", QString(100000, QLatin1Char('a')), false);
        addRow("too long", QString(100001, QLatin1Char('a')), true);
        addRow("too long in bytes", QString(50001, QChar(0x44f)), true);
        const auto notice = [](const char *name, const QString &text) {
            addRow(name, text, true);
        };
        const auto song = [](const char *name, const QString &text) {
            addRow(name, text, false);
        };
        notice("not licensed", QStringLiteral("Unfortunately, we are not authorized\nto show these lyrics."));
        notice("licensed in part",
               QStringLiteral("One line of the song\n\nWe are not licensed to display the rest here."));
        notice("withdrawn", QStringLiteral("This text was removed at the request of the copyright owner."));
        notice("withdrawn, in Russian", QStringLiteral("Текст удалён по требованию правообладателя."));
        notice("another country", QStringLiteral("Sorry! These lyrics are not available in your country (yet)."));
        notice("log-in wall", QStringLiteral("You must be logged in to read on. No account? It's free."));
        notice("block notice", QStringLiteral("Sorry, you have been blocked\nCloudflare Ray ID: 7d2"));
        notice("refused by the server", QStringLiteral("You don\u2019t have permission to access this resource."));
        notice("captcha", QStringLiteral("One more step\nPlease complete the captcha below to go on"));
        notice("shell", QStringLiteral("Please enable\n  JavaScript to see this page"));
        notice("nothing but a status", QStringLiteral(" 404 Not Found "));
        notice("an empty shell", QStringLiteral("Loading lyrics..."));
        notice("nothing there yet", QStringLiteral("We do not have the lyrics of this one. Add them?"));
        notice("blanks and tags alone", QStringLiteral(" \n<br/>&nbsp;<p>\u00a0</p>"));
        song("brackets", QStringLiteral("<3"));
        song("one word again and again", QStringLiteral("No\nNo no no\nNo"));
        song("blocked", QStringLiteral("You have been blocked, she told my number\nblocked by the moon"));
        song("copyright", QStringLiteral("There's a copyright on kisses\nall rights are hers to keep"));
        song("access denied in a line",
             QStringLiteral("Access denied, says the door to your heart\nnot found, not found"));
        song("a robot", QStringLiteral("I'm not a robot, I can prove I'm human\nsign in, sign out, log in, log out"));
        song("request and license", QStringLiteral("By request of the owner of the bar\nno license to drive that car"));
        song("loading", QStringLiteral("Loading, loading, just a moment more"));
        song("no words", QStringLiteral("[Instrumental]"));
        song("scripts and cookies", QStringLiteral("She writes javascript and bakes me cookies\nenable me"));
    }

    void tellsJunkFromLyrics()
    {
        QFETCH(QString, text);
        QTEST(isJunk(text), "junk");
    }

    void seesScriptsThatTheCleanUpHides_data()
    {
        QTest::addColumn<QString>("markup");
        QTest::addColumn<bool>("junk");
        addRow("a script amid the words", "la<Script>ad(1)</script>li", true);
        addRow("a style sheet", "<style>b{}</style>li", true);
        addRow("a script between two comments goes with them", "la<!-- --><script>x</script><!-- -->li", false);
        addRow("other tags", "<div class=\"script\">la</div>", false);
    }

    void seesScriptsThatTheCleanUpHides()
    {
        QFETCH(QString, markup);
        QTEST(isJunk(QStringLiteral("la li"), markup), "junk");
    }
};

QTEST_GUILESS_MAIN(tst_JunkCheck)
#include "tst_junkcheck.moc"
