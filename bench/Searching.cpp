// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "model/MainModel.h"
#include "network/AccessManager.h"
#include "soak/LyricsSites.h"

#include <QCoreApplication>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <memory>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr int songsAtATime = 10;
constexpr int connectionsPerHost = 6;

// Of ten songs each site has one, the song of its own index here; nobody has the others.
constexpr int songsPerRound = 10;

bool hasSong(int site, int song)
{
    return song % songsPerRound == site;
}

// How many requests a site is sent for a song: in vain, or with one more for the words.
int requestsFor(int site, int song)
{
    return LyricsSites::requestsInVain(site) + (hasSong(site, song) ? 1 : 0);
}

LoopbackResponse answer(const LyricsSites::Request &request, std::chrono::milliseconds delay)
{
    const bool isList = request.song >= 0;
    LoopbackResponse page = LoopbackResponse::page(
        !isList || hasSong(request.site, request.song) ? request.found : "<html><body>Nothing</body></html>");
    page.delay = delay;
    return page;
}

// With one site after another, as many songs at a time as there may be, and no site with more connections than allowed.
double boundFor(int songs, std::chrono::milliseconds pageTime)
{
    int all = 0;
    std::vector<int> ofSite(LyricsSites::count, 0);
    for (int song = 0; song < songs; ++song) {
        for (int site = 0; site < LyricsSites::count; ++site) {
            ofSite[static_cast<std::size_t>(site)] += requestsFor(site, song);
            all += requestsFor(site, song);
            if (hasSong(site, song))
                break;
        }
    }
    const int busiest = *std::max_element(ofSite.begin(), ofSite.end());
    const double rounds =
        std::max(static_cast<double>(all) / songsAtATime, static_cast<double>(busiest) / connectionsPerHost);
    return std::chrono::duration<double>(pageTime).count() * rounds;
}

// The same number of requests to the same sites, as many at a time, with nothing but Qt's access manager.
class BareRequests : public QObject
{
public:
    BareRequests(int songs, const QStringList &bases)
    {
        for (int song = 0; song < songs; ++song) {
            QList<QUrl> requests;
            for (int site = 0; site < bases.size() && (site == 0 || !hasSong(site - 1, song)); ++site) {
                for (int i = 0; i < requestsFor(site, song); ++i)
                    requests.append(QUrl(bases.at(site) + QStringLiteral("/song")));
            }
            m_waiting.append(requests);
        }
    }

    void run()
    {
        for (int i = 0; i < songsAtATime; ++i)
            goOn({});
        turnUntil([this] { return m_underWay == 0; });
    }

private:
    // With the rest of a song, or with the next one.
    void goOn(QList<QUrl> rest)
    {
        if (rest.isEmpty() && m_waiting.isEmpty())
            return;
        if (rest.isEmpty())
            rest = m_waiting.takeFirst();
        QNetworkReply *reply = m_manager.get(QNetworkRequest(rest.takeFirst()));
        ++m_underWay;
        connect(reply, &QNetworkReply::finished, this, [this, reply, rest] {
            --m_underWay;
            reply->deleteLater();
            goOn(rest);
        });
    }

    QNetworkAccessManager m_manager;
    QList<QList<QUrl>> m_waiting;
    int m_underWay = 0;
};

QList<QUrl> copySongs(const QString &folder, int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString copy = QStringLiteral("%1/Artist - Song %2.mp3").arg(folder).arg(i);
        if (!QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), copy))
            qFatal("cannot copy the sample");
        urls.append(QUrl::fromLocalFile(copy));
    }
    return urls;
}

// The list with the sites that the program asks.
class Searcher
{
public:
    Searcher()
    {
        for (std::unique_ptr<LyricsProvider> &provider : makeProviders(&m_manager))
            m_search.addProvider(std::move(provider));
        m_model.setReaderProgram(QCoreApplication::applicationFilePath());
        m_model.setAutoStart(false);
        m_model.setSearch(&m_search);
    }
    ~Searcher() { m_model.setSearch(nullptr); }

    // Adds them and waits until their tags are read.
    void load(const QList<QUrl> &songs)
    {
        m_model.add(songs);
        turnUntil([this] { return m_model.itemAt(m_model.rowCount() - 1)->tagsLoaded(); });
    }

    // Until the last search has ended; what was found is stored meanwhile.
    void searchAll()
    {
        int left = m_model.rowCount();
        const auto connection =
            QObject::connect(&m_search, &LyricsSearch::searchFinished, &m_search, [&left] { --left; });
        for (int row = 0; row < m_model.rowCount(); ++row)
            m_model.startSearch(m_model.itemAt(row)->id());
        turnUntil([&left] { return left == 0; });
        QObject::disconnect(connection);
    }

    // Waits until all that was found is stored.
    void checkFound() const
    {
        for (int row = 0; row < m_model.rowCount(); ++row) {
            const ModelItem &song = *m_model.itemAt(row);
            turnUntil([&song] { return !song.active() && !song.writingTags(); });
            if (song.lyricsTag().isEmpty() != (row % songsPerRound >= LyricsSites::count))
                qFatal("song %d: %s", row, qPrintable(song.errorString()));
        }
    }

private:
    AccessManager m_manager;
    LyricsSearch m_search;
    MainModel m_model;
};

// From the first search on, in seconds.
struct Waits
{
    std::vector<double> found;  // until the last search has ended
    std::vector<double> stored; // until what was found is in the songs
};

// One round more. Their tags are read before: that is a row of its own.
void search(int songs, Waits *waits)
{
    const QTemporaryDir folder;
    Searcher searcher;
    searcher.load(copySongs(folder.path(), songs));
    const double found = secondsOf([&searcher] { searcher.searchAll(); });
    const double rest = secondsOf([&searcher] { searcher.checkFound(); });
    waits->found.push_back(found);
    waits->stored.push_back(found + rest);
}

double bareTime(int songs, const QStringList &bases)
{
    BareRequests bare(songs, bases);
    return secondsOf([&bare] { bare.run(); });
}

// The aim is that of the searches, whose writes go on meanwhile.
void print(const QString &work, int songs, const Waits &waits, double reference, double aim)
{
    BenchTable::printRow(work, songs, median(waits.found), reference, 0, 0, {aim});
    BenchTable::printRow(QStringLiteral("until all that they found is stored / the same"), songs, median(waits.stored),
                         reference);
}

} // namespace

void benchSearching()
{
    const int songs = benchSize(300);
    const auto delay = std::make_shared<std::atomic<std::chrono::milliseconds>>(50ms);
    LyricsSites sites([delay](const LyricsSites::Request &request) { return answer(request, delay->load()); });
    sites.startSites();
    Waits slow;
    while (slow.found.size() < 5)
        search(songs, &slow);
    print(QStringLiteral("search songs, 50 ms a page / the least possible"), songs, slow, boundFor(songs, 50ms), 1.1);
    delay->store(5ms);
    Waits fast;
    std::vector<double> bare;
    while (fast.found.size() < 9) {
        search(songs, &fast);
        bare.push_back(bareTime(songs, sites.bases()));
    }
    print(QStringLiteral("search songs, 5 ms a page / bare requests"), songs, fast, median(bare), 1.5);
}
