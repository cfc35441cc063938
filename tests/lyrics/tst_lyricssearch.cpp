// SPDX-License-Identifier: MIT
#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "lyrics/TagCorrector.h"
#include "support/TestTable.h"

#include <QMap>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>

namespace {

// What the scripted sites and correctors answer, and what they were asked. Names are written "Artist/Title".
struct Script
{
    // By "Site:Artist/Title"; "!reason" is a failure. Anything else is not found.
    QMap<QString, QString> answers;
    // A site whose clones refuse every search.
    QString refusing;
    QStringList asked;
    QList<QPointer<LyricsProvider>> clones;
};

class ScriptedSite : public LyricsProvider
{
public:
    ScriptedSite(const QString &name, Script *script, QObject *parent = nullptr)
        : LyricsProvider(nullptr, parent)
        , m_name(name)
        , m_script(script)
    {
    }

    QString name() const override { return m_name; }
    QString siteUrl() const override { return {}; }
    bool canSearch(const QString &artist, const QString &title) const override
    {
        return !(parent() && m_script->refusing == m_name) && LyricsProvider::canSearch(artist, title);
    }
    LyricsProvider *clone(QObject *parent) const override
    {
        auto *copy = new ScriptedSite(m_name, m_script, parent);
        m_script->clones.append(copy);
        return copy;
    }

protected:
    ProviderStep firstStep(const QString &artist, const QString &title) override
    {
        m_script->asked.append("%1:%2/%3"_s.arg(m_name, artist, title));
        const QString answer = m_script->answers.value(m_script->asked.last());
        return answer.startsWith(QLatin1Char('!')) ? ProviderStep::failure(answer.mid(1))
                                                   : ProviderStep::lyrics(answer);
    }

private:
    QString m_name;
    Script *m_script;
};

// Answers a fixed list of pairs.
class ScriptedCorrector : public TagCorrector
{
public:
    ScriptedCorrector(const QStringList &pairs, Script *script, QObject *parent = nullptr)
        : TagCorrector(parent)
        , m_pairs(pairs)
        , m_script(script)
    {
    }

    bool correct(const QString &artist, const QString &title) override
    {
        m_script->asked.append("correct:%1/%2"_s.arg(artist, title));
        QStringList artists = m_pairs;
        QStringList titles = m_pairs;
        artists.replaceInStrings(QRegularExpression("/.*"_s), {});
        titles.replaceInStrings(QRegularExpression(".*/"_s), {});
        QMetaObject::invokeMethod(
            this, [=] { emit finished(artists, titles); }, Qt::QueuedConnection);
        return true;
    }
    bool isBusy() const override { return false; }
    bool abort() override { return false; }
    TagCorrector *clone(QObject *parent) const override { return new ScriptedCorrector(m_pairs, m_script, parent); }
    QString errorString() const override { return {}; }

private:
    QStringList m_pairs;
    Script *m_script;
};

QStringList words(const QString &text, char separator = ' ')
{
    return text.split(QLatin1Char(separator), Qt::SkipEmptyParts);
}

} // namespace

class tst_LyricsSearch : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_script = Script();
        m_search = std::make_unique<LyricsSearch>();
        m_finished = std::make_unique<QSignalSpy>(m_search.get(), &LyricsSearch::searchFinished);
    }

    void appliesOrders_data()
    {
        addTextColumns("order", "applied");
        addRow("nothing keeps the order", "", "Freak;;Genius;;Mega");
        addRow("disabled", "Mega::0;;Genius", "Mega::0;;Genius;;Freak");
        addRow("duplicates, any case, unknown ones", "genius;;GENIUS::0;;Foo", "Genius;;Freak;;Mega");
        addRow("a mark needs the exact name", "genius::0;;Mega::1", "Genius;;Freak;;Mega");
        addRow("another mark makes another name", "Mega::1", "Freak;;Genius;;Mega");
        addRow("blank ends", " Mega::0 ;;\tGenius", "Mega;;Genius;;Freak");
    }

    void appliesOrders()
    {
        QFETCH(QString, order);
        makeSites("Freak Genius Mega"_s, order);
        QTEST(m_search->providersOrder(), "applied");
    }

    // `sites` is the order to apply; `corrections` are separated by "|" for each corrector; `answers` are
    // "Site:Artist/Title=answer"; `result` is artist, title, lyrics, error.
    void triesSitesAndNamesInOrder_data()
    {
        addTextColumns("sites", "corrections", "answers", "asked", "result");
        addRow("the first site has it", "A;;B", "", "A:a/t=la", "A:a/t", "a|t|la|");
        addRow("a disabled site is not asked", "A::0;;B", "", "A:a/t=la", "B:a/t", "a|t||");
        addRow("the last failure is told", "A;;B", "", "A:a/t=!one B:a/t=!two", "A:a/t B:a/t", "a|t||two");
        addRow("withdrawn lyrics are none", "A;;B", "", "A:a/t=x_gracenote_takedown_x B:a/t=gracenote&#95;takedown",
               "A:a/t B:a/t", "a|t||");
        addRow("corrected names, every site", "A;;B", "c/u", "B:c/u=la", "A:a/t B:a/t correct:a/t A:c/u B:c/u",
               "c|u|la|");
        addRow("a second pair goes to the first site, then on", "A;;B", "c/u d/v", "",
               "A:a/t B:a/t correct:a/t A:c/u B:c/u A:d/v B:d/v", "a|t||");
        addRow("own names, blanks and doubles are left out", "A;;B", "a/t /u c/ c/u c/u C/u", "",
               "A:a/t B:a/t correct:a/t A:c/u B:c/u A:C/u B:C/u", "a|t||");
        addRow("two correctors before any of their names", "A;;B", "c/u|d/v", "A:d/v=la",
               "A:a/t B:a/t correct:a/t correct:a/t A:c/u B:c/u A:d/v", "d|v|la|");
        addRow("all disabled, the next pairs go to the first site", "B::0;;A::0", "c/u d/v e/w", "B:e/w=la",
               "correct:a/t B:d/v B:e/w", "e|w|la|");
        addRow("the first site disabled, second pair starts with it", "A::0;;B", "c/u d/v", "",
               "B:a/t correct:a/t B:c/u A:d/v B:d/v", "a|t||");
    }

    void triesSitesAndNamesInOrder()
    {
        QFETCH(QString, sites);
        QFETCH(QString, corrections);
        QFETCH(QString, answers);
        QFETCH(QString, asked);
        makeSites("A B"_s, sites);
        for (const QString &answer : words(answers))
            m_script.answers.insert(answer.section(QLatin1Char('='), 0, 0), answer.section(QLatin1Char('='), 1));
        for (const QString &pairs : words(corrections, '|'))
            m_search->addCorrector(std::make_unique<ScriptedCorrector>(words(pairs), &m_script));

        QVERIFY(search(7));
        QTRY_COMPARE(m_finished->size(), 1);
        QCOMPARE(m_script.asked, words(asked));
        QStringList result;
        for (const QVariant &argument : m_finished->first())
            result.append(argument.toString());
        QCOMPARE(result.takeFirst(), "7"_s);
        QTEST(result.join(QLatin1Char('|')), "result");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY2(m_search->children().isEmpty(), "clones are released");
    }

    void acceptsEachIdOnce()
    {
        QVERIFY2(m_search->canSearch({}, {}), "there is nobody to refuse");
        makeSites("A B"_s, "A;;B::0"_s);
        QVERIFY2(!m_search->search(1, "a"_s, " \t"_s), "a disabled site refuses as well");
        QCOMPARE(m_search->searchCount(), 0);
        m_script.answers.insert("A:a/t"_s, "la"_s);
        QVERIFY(search(1));
        bool isFreeAtOnce = false;
        connect(m_search.get(), &LyricsSearch::searchFinished, this, [&] {
            if (m_finished->size() == 1)
                isFreeAtOnce = search(1);
        });
        QVERIFY(!m_search->search(1, "b"_s, "t"_s));
        QTRY_COMPARE(m_finished->size(), 2);
        QCOMPARE(lyricsOf(0), "la"_s);
        QVERIFY2(isFreeAtOnce, "a slot may start the next search");
    }

    void reportsFromTheEventLoopAndCounts()
    {
        QSignalSpy counts(m_search.get(), &LyricsSearch::searchCountChanged);
        QVERIFY2(search(1), "without any provider");
        m_script.refusing = "A"_s;
        m_script.answers.insert("B:a/t"_s, "la"_s);
        makeSites("A B"_s);
        QVERIFY2(search(2), "the first clone refuses");
        QVERIFY(m_finished->isEmpty());
        QTRY_COMPARE(m_finished->size(), 2);
        QTest::qWait(0);
        QCOMPARE(m_finished->size(), 2);
        QCOMPARE(m_finished->at(0).mid(0, 4), (QVariantList{quint16(1), "a"_s, "t"_s, QString()}));
        QCOMPARE(lyricsOf(1), "la"_s);
        QCOMPARE(counts, (QList<QVariantList>{{1}, {2}, {1}, {0}}));
    }

    void asksNobodyForWhatIsTooLongForAName()
    {
        makeSites("A B"_s);
        QVERIFY(m_search->search(1, "a"_s, QString(1001, QLatin1Char('t'))) && m_finished->isEmpty());
        QTRY_COMPARE(m_finished->size(), 1);
        QVERIFY(m_script.asked.isEmpty() && !m_finished->first().at(4).toString().isEmpty());
    }

    void ignoresLateAnswers()
    {
        makeSites("A B"_s);
        m_script.answers.insert("B:a/t"_s, "la"_s);
        QVERIFY(search(1));
        LyricsProvider *first = m_script.clones.first();
        emit first->finished(QString());
        QVERIFY(m_finished->isEmpty());
        emit first->finished("too late"_s);
        QTRY_COMPARE(m_finished->size(), 1);
        QCOMPARE(lyricsOf(0), "la"_s);
    }

    void endsQuietlyWhenDestroyed()
    {
        makeSites("A"_s);
        QVERIFY(search(1));
        m_search.reset();
        QCoreApplication::processEvents();
        QVERIFY(m_finished->isEmpty() && m_script.clones.first().isNull());
    }

private:
    void makeSites(const QString &names, const QString &order = {})
    {
        for (const QString &name : words(names))
            m_search->addProvider(std::make_unique<ScriptedSite>(name, &m_script));
        m_search->setProvidersOrder(order);
    }

    bool search(quint16 id) { return m_search->search(id, "a"_s, "t"_s); }
    QString lyricsOf(int search) const { return m_finished->at(search).at(3).toString(); }

    Script m_script;
    std::unique_ptr<LyricsSearch> m_search;
    std::unique_ptr<QSignalSpy> m_finished;
};

QTEST_GUILESS_MAIN(tst_LyricsSearch)
#include "tst_lyricssearch.moc"
