// SPDX-License-Identifier: MIT
#include "lyrics/LyricsProvider.h"
#include "network/AccessManager.h"
#include "support/LoopbackServer.h"
#include "support/TestTable.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// Gets one page and takes it whole.
class PageSite : public LyricsProvider
{
public:
    PageSite(QNetworkAccessManager *manager, const QUrl &url)
        : LyricsProvider(manager)
        , m_url(url)
    {
    }

    QString name() const override { return "PageSite"_s; }
    QString siteUrl() const override { return {}; }
    LyricsProvider *clone(QObject *) const override { return nullptr; }

protected:
    ProviderStep firstStep(const QString &artist, const QString &) override
    {
        if (artist == "nobody"_s)
            return ProviderStep::without(SongLink::Missing::NoSuchSong);
        return ProviderStep::ask(QNetworkRequest(m_url), [](const Page &page) {
            if (page.text == "other songs"_s)
                return ProviderStep::without(SongLink::Missing::NoSuchSong);
            const QString fragment = page.url.hasFragment() ? QLatin1Char('#') + page.url.fragment() : QString();
            return ProviderStep::lyrics(page.text == "empty"_s ? QString() : page.text + fragment);
        });
    }
    QNetworkRequest redirectedRequest(const QUrl &target) const override { return QNetworkRequest(target); }

private:
    QUrl m_url;
};

LoopbackResponse redirectPage(int status, const QByteArray &location)
{
    LoopbackResponse response = LoopbackResponse::redirect(status, location);
    response.body = "moved";
    return response;
}

} // namespace

class tst_LyricsProvider : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_server = std::make_unique<LoopbackServer>();
        m_server->route("/page"_s, LoopbackResponse::page("la"));
        m_server->routeOthers([](const LoopbackRequest &request) {
            const int hops = request.path.section(QLatin1Char('/'), 2).toInt();
            if (!request.path.startsWith("/hops/"_s))
                return LoopbackResponse::error(404);
            return hops > 0 ? redirectPage(301, QByteArray::number(hops - 1)) : LoopbackResponse::page("la");
        });
    }

    // What is asked for is "/asked#song"; what is logged begins with the site's name.
    void answersEveryKindOfReply_data()
    {
        QTest::addColumn<LoopbackResponse>("response");
        addTextColumns("lyrics", "error", "logged"); // `error` is a part of its text; empty: there is none
        const auto page = [](const char *name, const QByteArray &text, const char *lyrics,
                             const char *logged = "has the lyrics") {
            addRow(name, LoopbackResponse::page(text), lyrics, "", logged);
        };
        const auto moved = [](const char *name, int status, const QByteArray &target, const char *lyrics) {
            addRow(name, redirectPage(status, target), lyrics, "", "has the lyrics");
        };
        const auto failed = [](const char *name, const LoopbackResponse &response, const char *error,
                               const char *logged) {
            addRow(name, response, "", error, logged);
        };
        page("a page, percent-decoded where well formed", "%D0%B4%d0%b0, 100% sure", "да, 100% sure#song");
        page("text ends at NUL", QByteArray("lx\0li", 5), "lx#song");
        page("a page that names its charset", "<meta charset=\"windows-1251\"> \xeb\xe0 %D0%B4",
             "<meta charset=\"windows-1251\"> ла д#song");
        page("characters by their names", "I&rsquo;m &amp;", "I’m &amp;#song");
        page("other songs", "other songs", "", "has no such song");
        page("a song's page that gives nothing", "empty", "", "gave a page that was not understood");
        moved("301, and the fragment is inherited", 301, "/page", "la#song");
        moved("307 with a relative location and its own fragment", 307, "page#other", "la#other");
        moved("302 is read as a page", 302, "/page", "moved#song");
        moved("as many redirects as are allowed", 301, "/hops/19", "la#song");
        failed("one redirect more", redirectPage(301, "/hops/20"), "too often", "redirects too often");
        failed("a redirect to a file", redirectPage(301, "file:///etc/passwd"), "not a web page",
               "redirects to something that is not a web page");
        failed("404", LoopbackResponse::error(404), "404", "answered with HTTP status 404");
        LoopbackResponse latin;
        latin.body = "D\xe9j\xe0 <meta charset=utf-8>";
        const LoopbackResponse named = latin.with("Content-Type", "text/html; Charset=\"iso-8859-1\"; a=b");
        addRow("a header that names the charset", named, "Déjà <meta charset=utf-8>#song", "", "has the lyrics");
        LoopbackResponse oneBroken = named;
        oneBroken.body = QByteArray("Déjà vu? ").repeated(9) + QByteArray("\0\xd0.", 3);
        addRow("UTF-8 with one broken character", oneBroken, "Déjà vu? "_s.repeated(9) + "#song"_s, "",
               "has the lyrics");
        failed("a page that is not what it says", latin, "holds no lyrics", "gave a page that holds no lyrics");
        failed("a notice", LoopbackResponse::page("You must be logged in to read on."), "holds no lyrics",
               "gave a page that holds no lyrics");
        LoopbackResponse cut = LoopbackResponse::page(QByteArray(5000, 'x'));
        cut.cutAfter = 2000;
        failed("a page that is cut off", cut, "onnection", "gave an answer that failed (RemoteHostClosedError)");
        failed("nobody", redirectPage(301, "http://127.0.0.1:1/"), "efused", "did not answer (ConnectionRefusedError)");
    }

    void answersEveryKindOfReply()
    {
        QFETCH(LoopbackResponse, response);
        QFETCH(QString, error);
        QFETCH(QString, logged);
        m_server->route("/asked"_s, response);
        PageSite site(&m_manager, m_server->url("/asked#song"));
        QSignalSpy finished(&site, &LyricsProvider::finished);
        QTest::ignoreMessage(QtInfoMsg, qUtf8Printable("PageSite "_s + logged)); // fails when it is not
        QTEST(result(site), "lyrics");
        QVERIFY2(site.errorString().contains(error) && site.errorString().isEmpty() == error.isEmpty(),
                 qPrintable(site.errorString()));
        QTest::qWait(0);
        QCOMPARE(finished.size(), 1);
    }

    void refusesWhatItCannotSearchAndAnswersFromTheEventLoop()
    {
        PageSite site(&m_manager, m_server->url("/page"));
        QSignalSpy finished(&site, &LyricsProvider::finished);
        QVERIFY(!site.search("  "_s, "Song"_s) && !site.search("Artist"_s, QString()));
        QVERIFY(search(site, "nobody"_s) && site.isBusy() && finished.isEmpty());
        QVERIFY2(!search(site), "it is busy");
        QTRY_COMPARE(finished.size(), 1);
        QTest::qWait(0);
        QVERIFY(finished.size() == 1 && !site.isBusy() && m_server->requests().isEmpty());
    }

    // Each page may be redirected as often as the one before.
    void worksWithoutASharedManager()
    {
        PageSite site(nullptr, m_server->url("/hops/15"));
        QCOMPARE(result(site), "la"_s);
        QCOMPARE(result(site), "la"_s);
        QCOMPARE(m_server->mostConnections(), 1);
    }

    // The pause is wished for by another server than the one that is asked first.
    void leavesASiteAloneAsAWhole()
    {
        LoopbackServer other;
        other.route("/busy"_s, LoopbackResponse::error(429).with("Retry-After", "30"));
        m_server->route("/busy"_s, redirectPage(301, other.base().toUtf8() + "/busy"));
        AccessManager manager;
        PageSite site(&manager, m_server->url("/busy"));
        QVERIFY(result(site).isEmpty());
        const int requests = m_server->requests().size();
        QVERIFY(result(site).isEmpty());
        QCOMPARE(m_server->requests().size(), requests);
        QVERIFY(!site.errorString().isEmpty());
    }

    void abortsTheRequestWhenDestroyed()
    {
        m_server->route("/hang"_s, LoopbackResponse::hanging());
        auto site = std::make_unique<PageSite>(&m_manager, m_server->url("/hang"));
        QSignalSpy finished(site.get(), &LyricsProvider::finished);
        QVERIFY(search(*site));
        QTRY_COMPARE(m_server->requests().size(), 1);
        site.reset();
        QTRY_COMPARE(m_server->openConnections(), 0);
        QVERIFY(finished.isEmpty());
        QTRY_VERIFY(m_manager.findChildren<QNetworkReply *>().isEmpty());
    }

private:
    bool search(LyricsProvider &site, const QString &artist = "a"_s) { return site.search(artist, "t"_s); }

    QString result(LyricsProvider &site)
    {
        QSignalSpy finished(&site, &LyricsProvider::finished);
        return search(site) && finished.wait() ? finished.first().first().toString() : "no answer"_s;
    }

    std::unique_ptr<LoopbackServer> m_server;
    AccessManager m_manager;
};

QTEST_GUILESS_MAIN(tst_LyricsProvider)
#include "tst_lyricsprovider.moc"
