// SPDX-License-Identifier: MIT
#include "SiteRig.h"
#include "lyrics/LastfmTagCorrector.h"
#include "support/TestTable.h"

#include <QSignalSpy>

namespace {

QString corrections(const QString &content)
{
    return "<lfm status=\"ok\"><corrections for=\"x\">%1</corrections></lfm>"_s.arg(content);
}

QString correction(const QString &artist, const QString &title)
{
    return "<correction index=\"0\" artistcorrected=\"1\" trackcorrected=\"1\"><track>\n"
           " <name>%2</name><mbid>5d2c</mbid><url>http://127.0.0.1/music?a=1&amp;b=2</url>\n"
           " <artist><name>%1</name><mbid></mbid><url>http://127.0.0.1/artist</url></artist>\n"
           "</track></correction>\n"_s.arg(artist, title);
}

QString found(const QString &tracks)
{
    return "<lfm status=\"ok\"><results for=\"x\" xmlns:opensearch=\"http://127.0.0.1/opensearch/1.1/\">\n"
           "<opensearch:totalResults>2</opensearch:totalResults>\n<trackmatches>%1</trackmatches></results></lfm>"_s
               .arg(tracks);
}

QString track(const QString &artist, const QString &title)
{
    return "<track>\n <name>%2</name>\n <artist>%1</artist>\n <image size=\"small\"></image>\n</track>\n"_s.arg(artist,
                                                                                                                title);
}

} // namespace

class tst_LastfmTagCorrector : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_rig = std::make_unique<SiteRig>(); }

    void givesPairsInTheirOrder_data()
    {
        addTextColumns("getCorrection", "search", "pairs"); // "failed" is among them when there is an error text
        const QString one = corrections(correction("Tin &amp; Lanterns"_s, "Огни 🎵"_s));
        const QString two = found(track("A"_s, "1"_s) + track("B"_s, "2"_s));
        addRow("corrections before what the search found", one, two, "Tin & Lanterns/Огни 🎵 A/1 B/2");
        addRow("a second correction, and one without a track's name",
               corrections(correction("X"_s, {}) + correction("C"_s, "3"_s)), two, "C/3 A/1 B/2");
        addRow("the service fails at once", "", two, "failed");
        addRow("the search fails", one, "", "Tin & Lanterns/Огни 🎵 failed");
        addRow("an answer that is a page", "<html><body>Busy<br></body></html>", two, "A/1 B/2");
        const QString longName = QString(1001, QLatin1Char('x'));
        addRow("what is too long for a name, and more than was asked for", corrections(correction("A"_s, longName)),
               found(track("A"_s, "1"_s).repeated(100)), "A/1 "_s.repeated(50).trimmed());
        addRow("an answer of 400 kB", one, found(track("A"_s, "1"_s).repeated(5000)), "Tin & Lanterns/Огни 🎵");
    }

    void givesPairsInTheirOrder()
    {
        QFETCH(QString, getCorrection);
        QFETCH(QString, search);
        answer(getCorrection, search);
        LastfmTagCorrector corrector(m_rig->manager());
        QTEST(correct(corrector, "tin lantern"_s, "ogni"_s), "pairs");
        QVERIFY(!corrector.isBusy());
    }

    void asksWithTheNamesAsTheyWere()
    {
        answer(corrections(correction("X"_s, "Y"_s)), found({}));
        const std::unique_ptr<TagCorrector> copy(LastfmTagCorrector(m_rig->manager()).clone(nullptr));
        correct(*copy, " C&A + #1 "_s, "50% да\n"_s);
        const QString names = "&api_key=4c1e9a7b30d2f58e6a0b7c3d9e2f1a85&artist=C%26A%20%2B%20%231"_s;
        const QString title = "&track=50%25%20%D0%B4%D0%B0"_s;
        QCOMPARE(m_rig->targets(), "/2.0/?method=track.getCorrection"_s + names + title +
                                       " /2.0/?method=track.search"_s + names + title + "&limit=2"_s);
    }

    void asksForTheArtistAlone()
    {
        answer(corrections("<correction><artist><name>Tin Lanterns</name></artist></correction>"_s), {});
        LastfmTagCorrector corrector(m_rig->manager());
        QCOMPARE(correct(corrector, "tin"_s, " "_s), "Tin Lanterns/"_s);
        QCOMPARE(m_rig->targets(),
                 "/2.0/?method=artist.getCorrection&api_key=4c1e9a7b30d2f58e6a0b7c3d9e2f1a85&artist=tin"_s);
    }

    void abortsTheRequest()
    {
        m_rig->server().route("/2.0/"_s, LoopbackResponse::hanging());
        LastfmTagCorrector corrector(nullptr);
        QSignalSpy finished(&corrector, &TagCorrector::finished);
        QVERIFY2(!corrector.abort(), "nothing is in flight");
        QVERIFY2(!corrector.correct(" \t"_s, "Song"_s) && !corrector.isBusy(), "without an artist");
        QVERIFY(corrector.correct("a"_s, "b"_s));
        QVERIFY2(!corrector.correct("c"_s, "d"_s), "it is busy");
        QTRY_COMPARE(m_rig->server().requests().size(), 1);
        QVERIFY(corrector.abort() && !corrector.isBusy());
        QTRY_COMPARE(m_rig->server().openConnections(), 0);
        QVERIFY(finished.isEmpty());
    }

private:
    static QString correct(TagCorrector &corrector, const QString &artist, const QString &title)
    {
        QSignalSpy finished(&corrector, &TagCorrector::finished);
        if (!corrector.correct(artist, title) || !finished.isEmpty() || !finished.wait())
            return "no answer"_s;
        const QStringList artists = finished.first().at(0).toStringList();
        const QStringList titles = finished.first().at(1).toStringList();
        QStringList pairs;
        for (int i = 0; i < std::max(artists.size(), titles.size()); ++i)
            pairs.append(artists.value(i) + QLatin1Char('/') + titles.value(i));
        if (!corrector.errorString().isEmpty())
            pairs.append("failed"_s);
        return pairs.join(QLatin1Char(' '));
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
