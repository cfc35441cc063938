// SPDX-License-Identifier: MIT
#include "SiteRig.h"
#include "lyrics/LastfmTagCorrector.h"
#include "support/TestTable.h"

#include <QTest>

using Names = LastfmTagCorrector::Names;

namespace {

QString document(const QString &content)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<lfm status=\"ok\">\n%1</lfm>\n"_s.arg(content);
}

QString correction(const QString &artist, const QString &title)
{
    return "<correction index=\"0\" artistcorrected=\"1\" trackcorrected=\"1\"><track>\n"
           " <name>%2</name><mbid>5d2c</mbid><url>http://127.0.0.1/music?a=1&amp;b=2</url>\n"
           " <artist><name>%1</name><mbid></mbid><url>http://127.0.0.1/artist</url></artist>\n"
           "</track></correction>\n"_s.arg(artist, title);
}

QString corrections(const QString &content)
{
    return document("<corrections for=\"x\">%1</corrections>"_s.arg(content));
}

QString found(const QString &artist, const QString &title)
{
    return "<track>\n <name>%2</name>\n <artist>%1</artist>\n <streamable fulltrack=\"0\">0</streamable>"
           "<listeners>20443</listeners>\n <image size=\"small\"></image>\n</track>\n"_s.arg(artist, title);
}

QString searchAnswer(const QString &tracks)
{
    return document(
        "<results for=\"x\" xmlns:opensearch=\"http://127.0.0.1/opensearch/1.1/\">\n"
        "<opensearch:Query role=\"request\" searchTerms=\"x\" startPage=\"1\"/>\n"
        "<opensearch:totalResults>2</opensearch:totalResults>\n<trackmatches>%1</trackmatches></results>"_s.arg(
            tracks));
}

QString errorDocument()
{
    return "<lfm status=\"failed\"><error code=\"10\">Invalid API key</error></lfm>"_s;
}

// "artist/title" for each pair.
QStringList pairs(const QStringList &artists, const QStringList &titles)
{
    QStringList pairs;
    for (int i = 0; i < std::max(artists.size(), titles.size()); ++i)
        pairs.append(artists.value(i, "none"_s) + QLatin1Char('/') + titles.value(i, "none"_s));
    return pairs;
}

} // namespace

class tst_LastfmTagCorrector : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_rig = std::make_unique<SiteRig>(std::initializer_list<Endpoint>{Endpoint::Lastfm}); }

    void givesPairsInTheirOrder_data()
    {
        addTextColumns("getCorrection", "search");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<bool>("failed");
        const auto row = [](const char *name, const QString &getCorrection, const QString &search,
                            const QStringList &expected, bool failed = false) {
            addRow(name, getCorrection, search, expected, failed);
        };
        const QString tin = "Tin &amp; Lanterns"_s;
        const QString one = corrections(correction(tin, "Огни 🎵"_s));
        const QString two = searchAnswer(found("A"_s, "1"_s) + found("B"_s, "2"_s));
        const QStringList corrected{"Tin & Lanterns/Огни 🎵"_s};
        const QStringList both{"A/1"_s, "B/2"_s};
        row("corrections before what the search found", one, two, corrected + both);
        row("a second correction, and one without a track's name",
            corrections(correction(tin, QString()) + correction("C"_s, "3"_s)), two, QStringList{"C/3"_s} + both);
        row("the service reports an error", errorDocument(), errorDocument(), {});
        row("the service fails at once", QString(), two, {}, true);
        row("the search fails", one, QString(), corrected, true);
        row("a correction that is cut off", one.left(one.size() - 9), two, both);
        row("an answer that is a page", "<html><body>Busy<br></body></html>"_s, two, both);
    }

    void givesPairsInTheirOrder()
    {
        QFETCH(QString, getCorrection);
        QFETCH(QString, search);
        QFETCH(bool, failed);
        answer(getCorrection, search);
        LastfmTagCorrector corrector(m_rig->manager());
        QTEST(correct(corrector, "tin lantern"_s, "ogni"_s), "expected");
        QCOMPARE(!corrector.errorString().isEmpty(), failed);
        QVERIFY(!corrector.isBusy());
    }

    void asksWithTheNamesAsTheyWere()
    {
        answer(corrections(correction("X"_s, "Y"_s)), searchAnswer(QString()));
        LastfmTagCorrector corrector(m_rig->manager());
        const std::unique_ptr<TagCorrector> copy(corrector.clone(nullptr));
        correct(*copy, " C&A + #1 "_s, "50% да\n"_s);
        const QByteArray names = "&api_key=4c1e9a7b30d2f58e6a0b7c3d9e2f1a85&artist=C%26A%20%2B%20%231"
                                 "&track=50%25%20%D0%B4%D0%B0";
        QCOMPARE(m_rig->targets(), (QList<QByteArray>{"/2.0/?method=track.getCorrection" + names,
                                                      "/2.0/?method=track.search" + names + "&limit=2"}));
    }

    void asksForTheArtistAlone()
    {
        answer(corrections("<correction><artist><name>Tin Lanterns</name></artist></correction>"_s), {});
        LastfmTagCorrector corrector(m_rig->manager());
        QCOMPARE(correct(corrector, "tin"_s, " "_s), QStringList{"Tin Lanterns/none"_s});
        QCOMPARE(m_rig->targets(), (QList<QByteArray>{"/2.0/?method=artist.getCorrection"
                                                      "&api_key=4c1e9a7b30d2f58e6a0b7c3d9e2f1a85&artist=tin"}));
    }

    void boundsWhatItBelieves()
    {
        const QString many = found("A"_s, "1"_s).repeated(5000);
        QCOMPARE(LastfmTagCorrector::foundTracks(searchAnswer(many).toUtf8()).artists.size(), 50);
        const QString longName = QString(1001, QLatin1Char('x'));
        QVERIFY(
            LastfmTagCorrector::trackCorrections(corrections(correction("A"_s, longName)).toUtf8()).titles.isEmpty());
    }

    void refusesWhatItCannotCorrect()
    {
        answer(corrections(QString()), searchAnswer(QString()));
        LastfmTagCorrector corrector(m_rig->manager());
        QVERIFY(!corrector.correct(" \t"_s, "Song"_s));
        QVERIFY(!corrector.isBusy());
        QVERIFY(corrector.correct("a"_s, "b"_s));
        QVERIFY2(!corrector.correct("c"_s, "d"_s), "it is busy");
        QSignalSpy finished(&corrector, &TagCorrector::finished);
        QVERIFY(finished.wait());
        QCOMPARE(m_rig->server().requests().size(), 2);
    }

    void abortsTheRequest()
    {
        m_rig->server().route("/2.0/"_s, LoopbackResponse::hanging());
        LastfmTagCorrector corrector(nullptr);
        QSignalSpy finished(&corrector, &TagCorrector::finished);
        QVERIFY2(!corrector.abort(), "nothing is in flight");
        QVERIFY(corrector.correct("a"_s, "b"_s));
        QTRY_COMPARE(m_rig->server().requests().size(), 1);
        QVERIFY(corrector.abort() && !corrector.isBusy());
        QTRY_COMPARE(m_rig->server().openConnections(), 0);
        QVERIFY(finished.isEmpty());
    }

private:
    QStringList correct(TagCorrector &corrector, const QString &artist, const QString &title)
    {
        QSignalSpy finished(&corrector, &TagCorrector::finished);
        if (!corrector.correct(artist, title) || !finished.isEmpty() || !finished.wait())
            return {"no answer"_s};
        return pairs(finished.first().at(0).toStringList(), finished.first().at(1).toStringList());
    }

    // Answers by method; an empty answer is an error.
    void answer(const QString &getCorrection, const QString &search)
    {
        m_rig->server().route("/2.0/"_s, [=](const LoopbackRequest &request) {
            const bool isSearch = request.query.queryItemValue("method"_s) == "track.search"_s;
            const QString &text = isSearch ? search : getCorrection;
            return text.isEmpty() ? LoopbackResponse::error(500) : LoopbackResponse::page(text.toUtf8());
        });
    }

    std::unique_ptr<SiteRig> m_rig;
};

QTEST_GUILESS_MAIN(tst_LastfmTagCorrector)
#include "tst_lastfmtagcorrector.moc"
