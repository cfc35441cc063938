// SPDX-License-Identifier: MIT
#include "lyrics/SongNames.h"

#include <QTest>

class tst_SongNames : public QObject
{
    Q_OBJECT

private slots:
    void normalisesArtists_data();
    void normalisesArtists();
    void normalisesTitles_data();
    void normalisesTitles();
    void comparesLoosely_data();
    void comparesLoosely();
};

void tst_SongNames::normalisesArtists_data()
{
    QTest::addColumn<QString>("artist");
    QTest::addColumn<QString>("normalised");
    QTest::newRow("several names") << R"(Foo\\Bar)"
                                   << "Foo";
    QTest::newRow("one backslash is part of the name") << R"(Foo\Bar)"
                                                       << R"(Foo\Bar)";
    QTest::newRow("a separator first leaves nothing") << R"(\\Bar)"
                                                      << "";
    QTest::newRow("a guest, in any case") << "Foo Feat. Bar"
                                          << "Foo";
    QTest::newRow("every marker is tried") << "A featuring B ft. C"
                                           << "A";
    QTest::newRow("a marker needs its spaces") << "Daft. Punk feat.Bar"
                                               << "Daft. Punk feat.Bar";
    QTest::newRow("lower-casing would change the length") << "İİ feat. Bar"
                                                          << "İİ";
    QTest::newRow("suffixes of titles stay") << " Foo (official) "
                                             << "Foo (official)";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_SongNames::normalisesArtists()
{
    QFETCH(QString, artist);
    QTEST(normalisedArtist(artist), "normalised");
}

void tst_SongNames::normalisesTitles_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("normalised");
    QTest::newRow("official, in any case") << "Song (Official)"
                                           << "Song";
    QTest::newRow("both suffixes, the official one last") << "Song (extended video) (official)"
                                                          << "Song";
    QTest::newRow("both suffixes, the official one first") << "Song (official) (Extended Video)"
                                                           << "Song (official)";
    QTest::newRow("only at the end") << "Song (official) live"
                                     << "Song (official) live";
    QTest::newRow("a guest before the suffix takes it along") << "Song ft. Bar (official)"
                                                              << "Song";
    QTest::newRow("backslashes stay") << R"(Up\\Down)"
                                      << R"(Up\\Down)";
}

void tst_SongNames::normalisesTitles()
{
    QFETCH(QString, title);
    QTEST(normalisedTitle(title), "normalised");
}

void tst_SongNames::comparesLoosely_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("agree");
    QTest::newRow("a slash is no hyphen") << "AC/DC"
                                          << "AC-DC" << false;
    QTest::newRow("apostrophes go") << "Guns N' Roses"
                                    << "Guns N Roses" << true;
    QTest::newRow("every mark goes") << "a\u2019b`c\"d'e f,g&h"
                                     << "ABCDEFGH" << true;
    QTest::newRow("the left quotation mark stays") << "a\u2018b"
                                                   << "ab" << false;
    QTest::newRow("the wanted name within the found one") << "Beatles"
                                                          << "The Beatles" << true;
    QTest::newRow("the found name within the wanted one") << "The Beatles"
                                                          << "Beatles" << true;
    QTest::newRow("nothing left resembles everything") << " '&' "
                                                       << "Foo" << true;
    QTest::newRow("other scripts in any case") << "АРИЯ"
                                               << "Ария" << true;
    QTest::newRow("accents count") << "Beyonce"
                                   << "Beyoncé" << false;
}

void tst_SongNames::comparesLoosely()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QTEST(looselyAgree(left, right), "agree");
}

QTEST_APPLESS_MAIN(tst_SongNames)
#include "tst_songnames.moc"
