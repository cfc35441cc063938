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
        junk("a script in references", "&lt;script&gt;la"_s);
        junk("a character that was lost", "D\ufffdj\u00e0 vu"_s);
        junk("blanks and tags alone", " \n<br/>&nbsp;<p>&#160;\ufeff\u200b</p>"_s);
        junk("no word, and no bracket either", "... [\u266a] ?"_s);
        song("a word of letters beyond the first plane", "\U00020000"_s);
        for (const char *notice : {
                 "Unfortunately, we are not authorized\nto show these lyrics.",
                 "Текст удалён по требованию правообладателя.",
                 "Текст скрыт по запросу правообладателя",
                 "Текст песни пока не добавлен",
                 "Lyrics for this song are currently unavailable",
                 "These lyrics have been removed by their owner",
                 "Lyrics coming soon...",
                 "[Lyrics not available]",
                 "Sorry, lyrics not available.",
                 "(No lyrics found)",
                 "Lyrics licensed & provided by LyricFind",
                 "We don&#x27;t have the lyrics for this song yet.",
                 "we don&rsquo;t have the lyrics to this song yet",
                 "This song is an instrumental",
                 "This song is instrumental. Let the music play...",
                 "You must be logged in to read on. No account? It's free.",
                 "Please log in to continue.",
                 "You don’t have permission to access this resource.",
                 "Please enable\n  JavaScript to see this page",
                 " 404 Not Found ",
                 "Loading lyrics...",
                 "The page you are looking for could not be found",
                 "This page does not exist",
                 "The page you requested was not found",
                 "We use cookies to improve your experience.",
                 "Before you continue, choose what you agree to.",
                 "Just a moment...Checking if the site connection is secure",
                 "Verify you are human by ticking the box",
                 "Please verify you are a human",
                 "Verifying you are human. This may take a few seconds.",
                 "Please prove you are not a robot",
                 "Sorry, you have been blocked\nYou are unable to access lyrics.invalid",
                 "lyrics.invalid needs to review the security of your connection before proceeding.",
                 "Access to this page has been denied because we believe you are using automation tools",
                 "We are down for maintenance",
                 "This account has been suspended",
                 "Error establishing a database connection",
                 "This domain is for sale",
             })
            junk(notice, QString::fromUtf8(notice));
        const QString long30 = "Ten lines and ten more\n"_s.repeated(30);
        junk("an unmistakable notice below a song", long30 + "Cloudflare Ray ID: 7d2"_s);
        junk("a wall with much below it", "Please complete the captcha.\n"_s + long30);
        song("notices within a song", long30 + "Solve the captcha of my heart\nyou must be logged in to my love"_s);
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
