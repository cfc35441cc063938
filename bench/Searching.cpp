// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "lyrics/LyricsProvider.h"
#include "lyrics/LyricsSearch.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "model/MainModel.h"
#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "support/LoopbackServer.h"
#include "tags/TagWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr std::chrono::milliseconds pageTime(50);
constexpr int songsAtATime = 10;
constexpr int connectionsPerHost = 6;

// Of ten songs each site has one, the song of its own index here; nobody has the others.
constexpr int songsPerRound = 10;

// A site in the order in which they are asked. `@` is where the names stand.
struct Site
{
    Endpoint endpoint;
    int requestsWithoutSong;
    QByteArray searchPage;
    QByteArray songPage;
};

const std::vector<Site> &sites()
{
    static const std::vector<Site> all{
        {Endpoint::LyricsFreak, 1,
         "<div data-sorting-artist=\"Artist\" data-sorting-song=\"@\"><a href=\"/song\" class=\"song\">@</a></div>",
         "<div id=\"content\">la</div>"},
        {Endpoint::Genius, 1,
         R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[{"type":"song","result":{"_type":"song",
            "path":"/song","title":"@","primary_artist":{"name":"Artist"}}}]}]}})",
         "<div class=\"lyrics\">la</div>"},
        {Endpoint::Megalyrics, 1,
         "<div class=\"songs-table\"><table><tbody><tr><td><td><a "
         "href=\"/song\">@</a><td>Artist</td><td><td></tr></tbody>",
         "<div class=\"text_inner\">la</div>"},
        {Endpoint::AZLyrics, 2,
         " <table><tr><td class=\"x\"><a href=\"$/song\"><b>@</b></a><b>Artist</b></td></tr></table>", "<div>la</div>"},
        {Endpoint::DarkLyrics, 1,
         "<div class=\"cntwrap\"><h3>Songs</h3><h2><a x href=\"song#1\" x>Artist - @</a></h2></div>",
         "<div class=\"cntwrap\"><h3><a name=\"1\">@</a></h3>la</div>"},
        {Endpoint::MusixMatch, 1,
         "<ul class=\"tracks list thumb-list\"><li x><a class=\"artist\">Artist</a><a class=\"title\" "
         "href=\"/song\">@</a>"
         "</li></ul>",
         "<div class=\"mxm-lyrics\"><span class=\"lyrics__content__ok\">la</span></div>"},
    };
    return all;
}

LoopbackResponse slowPage(const QByteArray &html)
{
    LoopbackResponse page = LoopbackResponse::page(html);
    page.delay = pageTime;
    return page;
}

// The number in "Song 7", wherever it stands in the request; -1 when it asks for something else.
int songNumber(const LoopbackRequest &request)
{
    static const QRegularExpression song(QStringLiteral("Song (\\d+)"));
    const QRegularExpressionMatch match = song.match(QUrl::fromPercentEncoding(request.target));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

void serve(LoopbackServer &server, int index)
{
    const Site &site = sites().at(static_cast<std::size_t>(index));
    server.route(QStringLiteral("/song"), slowPage(site.songPage));
    server.routeOthers([&site, &server, index](const LoopbackRequest &request) {
        const int number = songNumber(request);
        if (number < 0 || number % songsPerRound != index)
            return slowPage("<html><body>Nothing</body></html>");
        QByteArray page = site.searchPage;
        return slowPage(page.replace('@', "Song " + QByteArray::number(number)).replace('$', server.base().toUtf8()));
    });
}

// All sites, in a thread of their own, so that their work is not counted as the program's.
class SiteThread : public QThread
{
public:
    ~SiteThread() override
    {
        quit();
        wait();
    }

    // By the order of sites().
    QStringList startSites()
    {
        start();
        m_ready.acquire();
        return m_bases;
    }

protected:
    void run() override
    {
        std::vector<std::unique_ptr<LoopbackServer>> servers;
        for (int i = 0; i < static_cast<int>(sites().size()); ++i) {
            servers.push_back(std::make_unique<LoopbackServer>());
            serve(*servers.back(), i);
            m_bases.append(servers.back()->base());
        }
        m_ready.release();
        exec();
    }

private:
    QSemaphore m_ready;
    QStringList m_bases;
};

// With one site after another, as many songs at a time as there may be, and no site with more connections than allowed.
double boundFor(int songs)
{
    const double round = static_cast<double>(songs) / songsPerRound;
    const double pageSeconds = std::chrono::duration<double>(pageTime).count();
    double all = 0;
    double busiest = 0;
    int asking = songsPerRound;
    for (const Site &site : sites()) {
        const double requests = round * (asking * site.requestsWithoutSong + 1);
        all += requests;
        busiest = std::max(busiest, requests);
        --asking;
    }
    return pageSeconds * std::max(all / songsAtATime, busiest / connectionsPerHost);
}

// What is asked for one song when nothing is left out.
QList<QUrl> requestsFor(int song, const QStringList &bases)
{
    QList<QUrl> requests;
    for (int i = 0; i < bases.size(); ++i) {
        const bool hasSong = song % songsPerRound == i;
        const int count = sites().at(static_cast<std::size_t>(i)).requestsWithoutSong + (hasSong ? 1 : 0);
        requests += QVector<QUrl>(count, QUrl(bases.at(i) + QStringLiteral("/nothing"))).toList();
        if (hasSong)
            break;
    }
    return requests;
}

// The same number of requests to the same sites, as many at a time, with nothing but Qt's access manager.
class BareRequests : public QObject
{
public:
    BareRequests(int songs, const QStringList &bases)
    {
        for (int i = 0; i < songs; ++i)
            m_waiting.append(requestsFor(i, bases));
    }

    void run()
    {
        for (int i = 0; i < songsAtATime; ++i)
            goOn({});
        while (m_underWay > 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
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

void searchAll(const QList<QUrl> &songs)
{
    AccessManager manager;
    LyricsSearch search;
    for (std::unique_ptr<LyricsProvider> &provider : makeProviders(&manager))
        search.addProvider(std::move(provider));
    MainModel model;
    model.setReaderProgram(QCoreApplication::applicationFilePath());
    model.setSearch(&search);
    model.add(songs);
    while (model.activeCount() > 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const int siteCount = static_cast<int>(sites().size());
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.itemAt(row)->lyricsTag().isEmpty() != (row % songsPerRound >= siteCount))
            qFatal("song %d: %s", row, qPrintable(model.itemAt(row)->errorString()));
    }
    model.setSearch(nullptr);
}

} // namespace

void benchSearching()
{
    SiteThread thread;
    const QStringList bases = thread.startSites();
    const auto pointTo = [](Endpoint endpoint, const QString &base) {
        QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(endpoint), base);
    };
    for (int i = 0; i < bases.size(); ++i)
        pointTo(sites().at(static_cast<std::size_t>(i)).endpoint, bases.at(i));
    pointTo(Endpoint::AZLyricsSearch, bases.at(3));
    reloadEndpoints();
    const QTemporaryDir folder;
    const QList<QUrl> songs = copySongs(folder.path(), 300);
    const double seconds = secondsOf([&songs] { searchAll(songs); });
    BareRequests bare(songs.size(), bases);
    const double bareSeconds = secondsOf([&bare] { bare.run(); });
    BenchTable::printRow(QStringLiteral("search songs, 6 sites, 50 ms a page / bare requests"), songs.size(), seconds,
                         bareSeconds);
    BenchTable::printNote(QStringLiteral("%1 songs a second, %2 times the least that is possible")
                              .arg(songs.size() / seconds, 0, 'f', 1)
                              .arg(seconds / boundFor(songs.size()), 0, 'f', 2));
    TagWriter::waitForQueued(std::chrono::seconds(30));
}
