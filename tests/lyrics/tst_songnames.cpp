// SPDX-License-Identifier: MIT
#include "lyrics/SongNames.h"
#include "support/TestTable.h"

#include <QTest>

using NameFunction = QString (*)(const QString &);
Q_DECLARE_METATYPE(NameFunction)

class tst_SongNames : public QObject
{
    Q_OBJECT

private slots:
    void normalisesNames_data()
    {
        QTest::addColumn<NameFunction>("normalise");
        addTextColumns("name", "normalised");
        addRow("several names", normalisedArtist, R"(Foo\\Bar)", "Foo");
        addRow("one backslash is part of the name", normalisedArtist, R"(Foo\Bar)", R"(Foo\Bar)");
        addRow("a separator first leaves nothing", normalisedArtist, R"(\\Bar)", "");
        addRow("a guest, in any case", normalisedArtist, "Foo Feat. Bar", "Foo");
        addRow("every marker is tried", normalisedArtist, "A featuring B ft. C", "A");
        addRow("a marker needs its spaces", normalisedArtist, "Daft. Punk feat.Bar", "Daft. Punk feat.Bar");
        addRow("lower-casing would change the length", normalisedArtist, "İİ feat. Bar", "İİ");
        addRow("official, in any case", normalisedTitle, "Song (Official)", "Song");
        addRow("both suffixes, the official one first", normalisedTitle, "Song (official) (Extended Video)",
               "Song (official)");
        addRow("a guest before the suffix takes it along", normalisedTitle, "Song ft. Bar (official)", "Song");
    }

    void normalisesNames()
    {
        QFETCH(NameFunction, normalise);
        QFETCH(QString, name);
        QTEST(normalise(name), "normalised");
    }

    void comparesLoosely_data()
    {
        addTextColumns("left", "right");
        QTest::addColumn<bool>("agree");
        addRow("a slash is no hyphen", "AC/DC", "AC-DC", false);
        addRow("apostrophes go", "Guns N' Roses", "Guns N Roses", true);
        addRow("every mark goes", "a\u2019b`c\"d'e f,g&h", "ABCDEFGH", true);
        addRow("the wanted name within the found one", "Beatles", "The Beatles", true);
        addRow("the found name within the wanted one", "The Beatles", "Beatles", true);
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
