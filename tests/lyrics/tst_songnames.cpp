// SPDX-License-Identifier: MIT
#include "lyrics/SongNames.h"
#include "support/TestTable.h"

#include <QTest>

class tst_SongNames : public QObject
{
    Q_OBJECT

private slots:
    void normalisesArtists_data()
    {
        addTextColumns("artist", "normalised");
        addRow("several names", R"(Foo\\Bar)", "Foo");
        addRow("one backslash is part of the name", R"(Foo\Bar)", R"(Foo\Bar)");
        addRow("a separator first leaves nothing", R"(\\Bar)", "");
        addRow("a guest, in any case", "Foo Feat. Bar", "Foo");
        addRow("every marker is tried", "A featuring B ft. C", "A");
        addRow("a marker needs its spaces", "Daft. Punk feat.Bar", "Daft. Punk feat.Bar");
        addRow("lower-casing would change the length", "İİ feat. Bar", "İİ");
    }

    void normalisesArtists()
    {
        QFETCH(QString, artist);
        QTEST(normalisedArtist(artist), "normalised");
    }

    void normalisesTitles_data()
    {
        addTextColumns("title", "normalised");
        addRow("official, in any case", "Song (Official)", "Song");
        addRow("both suffixes, the official one last", "Song (extended video) (official)", "Song");
        addRow("both suffixes, the official one first", "Song (official) (Extended Video)", "Song (official)");
        addRow("only at the end", "Song (official) live", "Song (official) live");
        addRow("a guest before the suffix takes it along", "Song ft. Bar (official)", "Song");
    }

    void normalisesTitles()
    {
        QFETCH(QString, title);
        QTEST(normalisedTitle(title), "normalised");
    }

    void comparesLoosely_data()
    {
        addTextColumns("left", "right");
        QTest::addColumn<bool>("agree");
        addRow("a slash is no hyphen", "AC/DC", "AC-DC", false);
        addRow("apostrophes go", "Guns N' Roses", "Guns N Roses", true);
        addRow("every mark goes", "a\u2019b`c\"d'e f,g&h", "ABCDEFGH", true);
        addRow("the wanted name within the found one", "Beatles", "The Beatles", true);
        addRow("nothing left resembles everything", " '&' ", "Foo", true);
        addRow("other scripts in any case", "АРИЯ", "Ария", true);
        addRow("accents count", "Beyonce", "Beyoncé", false);
    }

    void comparesLoosely()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QTEST(looselyAgree(left, right), "agree");
    }
};

QTEST_APPLESS_MAIN(tst_SongNames)
#include "tst_songnames.moc"
