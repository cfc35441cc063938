// SPDX-License-Identifier: MIT
#include "soak/FailingSites.h"

#include "network/Endpoints.h"
#include "support/LoopbackServer.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

#include <array>
#include <memory>
#include <vector>

namespace {

using namespace std::chrono_literals;

// `@` is where the title stands, `$` the site's address.
struct Site
{
    Endpoint endpoint;
    const char *searchPage;
    const char *songPage;
};

constexpr std::array<Site, 6> sites{
    {{Endpoint::LyricsFreak,
      R"(<div data-sorting-artist="Artist" data-sorting-song="@"><a href="/song" class="song">@</a></div>)",
      R"(<div id="content">la la</div>)"},
     {Endpoint::Genius,
      R"({"meta":{"status":200},"response":{"sections":[{"type":"song","hits":[{"type":"song","result":{"_type":"song",
         "path":"/song","title":"@","primary_artist":{"name":"Artist"}}}]}]}})",
      R"(<div class="lyrics">la le</div>)"},
     {Endpoint::Megalyrics,
      R"(<div class="songs-table"><table><tbody><tr><td><td><a href="/song">@</a><td>Artist</td><td><td></tr></tbody>)",
      R"(<div class="text_inner">la li</div>)"},
     {Endpoint::AZLyrics, R"( <table><tr><td class="x"><a href="$/song"><b>@</b></a><b>Artist</b></td></tr></table>)",
      R"(<div>la lo</div>)"},
     {Endpoint::DarkLyrics, R"(<div class="cntwrap"><h3>Songs</h3><h2><a x href="song#1" x>Artist - @</a></h2></div>)",
      R"(<div class="cntwrap"><h3><a name="1">@</a></h3>la lu</div>)"},
     {Endpoint::MusixMatch,
      R"(<ul class="tracks list thumb-list"><li x><a class="artist">Artist</a><a class="title" href="/song">@</a></li></ul>)",
      R"(<div class="mxm-lyrics"><span class="lyrics__content__ok">la ly</span></div>)"}}};

QByteArray titleIn(const LoopbackRequest &request)
{
    static const QRegularExpression song(QStringLiteral("Song \\d+"));
    return song.match(QUrl::fromPercentEncoding(request.target)).captured().toUtf8();
}

QByteArray rubbish(std::mt19937 &random)
{
    QByteArray bytes(static_cast<int>(random() % 20000), '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

LoopbackResponse distorted(const LoopbackResponse &good, std::mt19937 &random)
{
    LoopbackResponse response = good;
    const quint32 dice = random() % 100;
    if (dice < 12)
        return LoopbackResponse::page("<html><body>Nothing</body></html>");
    if (dice < 20)
        return LoopbackResponse::error(404);
    if (dice < 26)
        return LoopbackResponse::error(500);
    if (dice < 30)
        return LoopbackResponse::page(rubbish(random));
    if (dice < 33)
        return LoopbackResponse::redirect(302, "/round");
    if (dice < 36)
        response.cutAfter = static_cast<qint64>(random()) % 40;
    else if (dice < 40)
        response.dripInterval = 1ms;
    else if (dice == 40)
        return LoopbackResponse::error(503).with("Retry-After", "1");
    else
        response.delay = std::chrono::milliseconds(random() % 20);
    return response;
}

void serve(LoopbackServer &server, const Site &site, std::mt19937 &random)
{
    server.route(QStringLiteral("/round"), LoopbackResponse::redirect(302, "/round"));
    server.routeOthers([&server, &site, &random](const LoopbackRequest &request) {
        const QByteArray title = titleIn(request);
        QByteArray page = title.isEmpty() ? site.songPage : site.searchPage;
        page.replace('@', title).replace('$', server.base().toUtf8());
        return distorted(LoopbackResponse::page(page), random);
    });
}

} // namespace

FailingSites::FailingSites(quint32 seed)
    : m_seed(seed)
{
}

FailingSites::~FailingSites()
{
    quit();
    wait();
}

void FailingSites::startSites()
{
    start();
    m_ready.acquire();
    const auto pointTo = [](Endpoint endpoint, const QString &base) {
        QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(endpoint), base);
    };
    for (std::size_t i = 0; i < sites.size(); ++i)
        pointTo(sites.at(i).endpoint, m_bases.at(static_cast<int>(i)));
    pointTo(Endpoint::AZLyricsSearch, m_bases.at(3));
    reloadEndpoints();
}

void FailingSites::run()
{
    std::mt19937 random(m_seed);
    std::vector<std::unique_ptr<LoopbackServer>> servers;
    for (const Site &site : sites) {
        servers.push_back(std::make_unique<LoopbackServer>());
        serve(*servers.back(), site, random);
        m_bases.append(servers.back()->base());
    }
    // The servers keep all requests for those who want to look at them.
    QTimer forget;
    QObject::connect(&forget, &QTimer::timeout, &forget, [&servers] {
        for (const auto &server : servers)
            server->forgetRequests();
    });
    forget.start(1s);
    m_ready.release();
    exec();
}
