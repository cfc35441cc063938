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
        junk("a document", "<html lang=en>"_s);
        junk("a document type", "<!doctype html>"_s);
        junk("a script that the clean-up hides", "la li"_s, "la<Script>ad(1)</script>li"_s);
        junk("a style sheet that the clean-up hides", "la li"_s, "<style>b{}</style>li"_s);
        junk("the end of a script", "la"_s, "ad(1)</script>la"_s);
        song("as long as it may be", QString(100000, QLatin1Char('a')));
        junk("too long in bytes", QString(50001, QChar(0x44f)));
        junk("a script in references", "&lt;script&gt;la"_s);
        junk("a character that was lost", "D\ufffdj\u00e0 vu"_s);
        junk("blanks and tags alone", " \n<br/>&nbsp;<p>&#160;\ufeff\u200b</p>"_s);
        junk("no word, and no bracket either", "... [\u266a] ?"_s);
        song("a word of letters beyond the first plane", "\U00020000"_s);
        for (const char *notice : {
                 "Unfortunately, we are not authorized\nto show these lyrics.",
                 "Текст удалён по требованию правообладателя.",
                 "Текст песни пока не добавлен",
                 "Lyrics coming soon...",
                 "Sorry, lyrics not available.",
                 "[Lyrics not available]",
                 "Lyrics licensed & provided by LyricFind",
                 "We don&#x27;t have the lyrics for this song yet.",
                 "This song is instrumental. Let the music play...",
                 "You must be logged in to read on. No account? It's free.",
                 "You don’t have permission to access this resource.",
                 "Please enable\n  JavaScript to see this page",
                 " 404 Not Found ",
                 "The page you are looking for could not be found",
                 "Just a moment...Checking if the site connection is secure",
                 "Please verify you are a human",
                 "Sorry, you have been blocked\nYou are unable to access lyrics.invalid",
             })
            junk(notice, QString::fromUtf8(notice));
        const QString long30 = "Ten lines and ten more\n"_s.repeated(30);
        junk("an unmistakable notice below a song", long30 + "Cloudflare Ray ID: 7d2"_s);
        junk("a wall with much below it", "Please complete the captcha.\n"_s + long30);
        song("notices within a song", long30 + "Solve the captcha of my heart\nyou must be logged in to my love"_s);
        song("words of short notices in a long song", long30 + "before you continue, verify you are human"_s);
        song("blocked", "You have been blocked, she told my number\nall rights are hers to keep"_s);
        song("a status in a line", "Access denied, says the door to your heart\nnot found, not found"_s);
        song("short, with words of walls", "Just a moment, before you go on\nthe song is not found, not for sale"_s);
        song("with its licence", long30 + "Lyrics licensed & provided by LyricFind"_s);
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
