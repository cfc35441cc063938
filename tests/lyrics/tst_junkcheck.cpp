// SPDX-License-Identifier: MIT
#include "lyrics/JunkCheck.h"
#include "support/TestTable.h"

class tst_JunkCheck : public QObject
{
    Q_OBJECT

private slots:
    void tellsJunkFromLyrics_data()
    {
        QTest::addColumn<bool>("junk");
        addTextColumns("text", "markup");
        const auto junk = [](const char *name, const QString &text, const QString &markup = {}) {
            addRow(name, true, text, markup);
        };
        const auto song = [](const char *name, const QString &text, const QString &markup = {}) {
            addRow(name, false, text, markup);
        };
        song("nothing at all", {}, "<script>"_s);
        song("tags and brackets", "I <3 you <i>so</i>"_s, "<div class=\"script\">la</div>"_s);
        song("the only word in brackets", "<Instrumental>"_s);
        song("a heart that opens, and nothing closes it", "<3 you and me>"_s);
        junk("a script", "la\n<script>alert(1)</script>"_s);
        junk("a style sheet", "<style type=text/css>b{}"_s);
        junk("a document", "<html lang=en>"_s);
        junk("a document type", "<!doctype html>"_s);
        junk("a script that the clean-up hides", "la li"_s, "la<Script>ad(1)</script>li"_s);
        junk("a style sheet that the clean-up hides", "la li"_s, "<style>b{}</style>li"_s);
        junk("the end of a script", "la"_s, "ad(1)</script>la"_s);
        song("as long as it may be", QString(100000, QLatin1Char('a')));
        junk("too long in bytes", QString(50001, QChar(0x44f)));
        junk("not licensed", "Unfortunately, we are not authorized\nto show these lyrics."_s);
        junk("withdrawn, in Russian", "Текст удалён по требованию правообладателя."_s);
        junk("log-in wall", "You must be logged in to read on. No account? It's free."_s);
        junk("refused by the server", "You don\u2019t have permission to access this resource."_s);
        junk("shell", "Please enable\n  JavaScript to see this page"_s);
        junk("nothing but a status", " 404 Not Found "_s);
        junk("an empty shell", "Loading lyrics..."_s);
        junk("blanks and tags alone", " \n<br/>&nbsp;<p>\u00a0</p>"_s);
        const QString long30 = "Ten lines and ten more\n"_s.repeated(30);
        junk("an unmistakable notice below a song", long30 + "Cloudflare Ray ID: 7d2"_s);
        song("notices within a song", long30 + "Solve the captcha of my heart\nyou must be logged in to my love"_s);
        song("blocked", "You have been blocked, she told my number\nall rights are hers to keep"_s);
        song("a status in a line", "Access denied, says the door to your heart\nnot found, not found"_s);
        song("a robot", "I'm not a robot, I bake cookies, I enable me\nsign in, sign out, log in, log out"_s);
        song("no words", "[Instrumental]"_s);
    }

    void tellsJunkFromLyrics()
    {
        QFETCH(QString, text);
        QFETCH(QString, markup);
        QTEST(isJunk(text, markup), "junk");
    }
};

QTEST_APPLESS_MAIN(tst_JunkCheck)
#include "tst_junkcheck.moc"
