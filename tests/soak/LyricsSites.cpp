// SPDX-License-Identifier: MIT
#include "soak/LyricsSites.h"

#include "network/Endpoints.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

#include <array>
#include <memory>
#include <utility>
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

constexpr std::array<Site, LyricsSites::count> sites{
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
constexpr int azLyrics = 3; // which is asked for a script before

// The number in "Song 7", wherever it stands in the request; -1 when it asks for something else.
int songNumber(const QByteArray &target)
{
    static const QRegularExpression song(QStringLiteral("Song (\\d+)"));
    const QRegularExpressionMatch match = song.match(QUrl::fromPercentEncoding(target));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

void serve(LoopbackServer &server, int index, const LyricsSites::Answer &answer)
{
    server.route(QStringLiteral("/round"), LoopbackResponse::redirect(301, "/round"));
    server.routeOthers([&server, index, &answer](const LoopbackRequest &request) {
        const QByteArray page = LyricsSites::pageFor(index, request.target, server.base());
        return answer({index, songNumber(request.target), page});
    });
}

} // namespace

LyricsSites::LyricsSites(Answer answer)
    : m_answer(std::move(answer))
{
}

LyricsSites::~LyricsSites()
{
    quit();
    wait();
}

int LyricsSites::requestsInVain(int site)
{
    return site == azLyrics ? 2 : 1;
}

QByteArray LyricsSites::pageFor(int site, const QByteArray &target, const QString &base)
{
    const Site &pages = sites.at(static_cast<std::size_t>(site));
    const int song = songNumber(target);
    QByteArray page = song < 0 ? pages.songPage : pages.searchPage;
    return page.replace('@', "Song " + QByteArray::number(song)).replace('$', base.toUtf8());
}

void LyricsSites::startSites()
{
    start();
    m_ready.acquire();
    const auto pointTo = [](Endpoint endpoint, const QString &base) {
        QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(endpoint), base);
    };
    for (int i = 0; i < count; ++i)
        pointTo(sites.at(static_cast<std::size_t>(i)).endpoint, m_bases.at(i));
    pointTo(Endpoint::AZLyricsSearch, m_bases.at(azLyrics));
    pointTo(Endpoint::Lastfm, m_bases.first()); // it gets pages that name no other song
    reloadEndpoints();
}

void LyricsSites::run()
{
    std::vector<std::unique_ptr<LoopbackServer>> servers;
    for (int i = 0; i < count; ++i) {
        servers.push_back(std::make_unique<LoopbackServer>());
        serve(*servers.back(), i, m_answer);
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
