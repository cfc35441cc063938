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
        notice("not licensed", "Unfortunately, we are not authorized\nto show these lyrics."_s);
        notice("licensed in part", "One line of the song\n\nWe are not licensed to display the rest here."_s);
        notice("withdrawn", "This text was removed at the request of the copyright owner."_s);
        notice("withdrawn, in Russian", "Текст удалён по требованию правообладателя."_s);
        notice("another country", "Sorry! These lyrics are not available in your country (yet)."_s);
        notice("log-in wall", "You must be logged in to read on. No account? It's free."_s);
        notice("block notice", "Sorry, you have been blocked\nCloudflare Ray ID: 7d2"_s);
        notice("refused by the server", "You don\u2019t have permission to access this resource."_s);
        notice("shell", "Please enable\n  JavaScript to see this page"_s);
        notice("nothing but a status", " 404 Not Found "_s);
        notice("an empty shell", "Loading lyrics..."_s);
        notice("nothing there yet", "We do not have the lyrics of this one. Add them?"_s);
        notice("blanks and tags alone", " \n<br/>&nbsp;<p>\u00a0</p>"_s);
        song("brackets", "<3"_s);
        song("one word again and again", "No\nNo no no\nNo"_s);
        song("blocked", "You have been blocked, she told my number\nblocked by the moon"_s);
        song("copyright", "There's a copyright on kisses\nall rights are hers to keep"_s);
        song("access denied in a line", "Access denied, says the door to your heart\nnot found, not found"_s);
        song("a robot", "I'm not a robot, I can prove I'm human\nsign in, sign out, log in, log out"_s);
        song("no words", "[Instrumental]"_s);
        const auto longSong = [](const char *name, const QString &line) {
            addRow(name, "Ten lines and ten more\n"_s.repeated(30) + line, false);
        };
        longSong("a captcha in a song", "Solve the captcha of my heart\nand enable javascript"_s);
        longSong("a lost love", "You're not found on this server, we do not have the lyrics"_s);
        longSong("licences", "Gone due to licensing restrictions, you must be logged in to my love"_s);
        addRow("an unmistakable notice below a song", "La la la\n"_s.repeated(100) + "Cloudflare Ray ID: 7d2"_s, true);
        song("brackets around the only word", "<Instrumental>"_s);
        song("a heart that opens, and nothing closes it", "<3 you and me>"_s);
        song("scripts and cookies", "She writes javascript and bakes me cookies\nenable me"_s);
    }

    void tellsJunkFromLyrics()
    {
        QFETCH(QString, text);
        QTEST(isJunk(text), "junk");
        QVERIFY2(!isJunk(QString(), text), "no text, no junk");
    }

    void seesScriptsThatTheCleanUpHides_data()
    {
        QTest::addColumn<QString>("markup");
        QTest::addColumn<bool>("junk");
        addRow("a script amid the words", "la<Script>ad(1)</script>li", true);
        addRow("a style sheet", "<style>b{}</style>li", true);
        addRow("a script between two comments", "la<!-- --><script>x</script><!-- -->li", true);
        addRow("the end of a script", "ad(1)</script>la", true);
        addRow("other tags", "<div class=\"script\">la</div>", false);
    }

    void seesScriptsThatTheCleanUpHides()
    {
        QFETCH(QString, markup);
        QTEST(isJunk("la li"_s, markup), "junk");
    }
};

QTEST_GUILESS_MAIN(tst_JunkCheck)
#include "tst_junkcheck.moc"
