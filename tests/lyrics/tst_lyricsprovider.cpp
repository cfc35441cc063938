// SPDX-License-Identifier: MIT
#include "lyrics/LyricsProvider.h"
#include "network/AccessManager.h"
#include "support/LoopbackServer.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// Gets one page and takes it whole.
class PageSite : public LyricsProvider
{
public:
    PageSite(QNetworkAccessManager *manager, const QUrl &url, bool percentEncoded = true)
        : LyricsProvider(manager)
        , m_url(url)
        , m_percentEncoded(percentEncoded)
    {
    }

    QString name() const override { return QStringLiteral("PageSite"); }
    QString siteUrl() const override { return {}; }
    LyricsProvider *clone(QObject *) const override { return nullptr; }

    void setUrl(const QUrl &url) { m_url = url; }

protected:
    ProviderStep firstStep(const QString &artist, const QString &) override
    {
        if (artist == QLatin1String("nobody"))
            return ProviderStep::nothing();
        QNetworkRequest request(m_url);
        request.setRawHeader("X-First", "yes");
        return ProviderStep::ask(request, [](const Page &page) {
            const QString fragment = page.url.hasFragment() ? QLatin1Char('#') + page.url.fragment() : QString();
            return ProviderStep::lyrics(page.text + fragment);
        });
    }
    QNetworkRequest redirectedRequest(const QUrl &target) const override
    {
        QNetworkRequest request(target);
        request.setRawHeader("X-Followed", "yes");
        return request;
    }
    bool hasPercentEncodedPages() const override { return m_percentEncoded; }

private:
    QUrl m_url;
    bool m_percentEncoded;
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
    void init();
    void answersEveryKindOfReply_data();
    void answersEveryKindOfReply();
    void putsTheSitesHeadersOnRedirects();
    void leavesPagesAloneThatAreNotPercentEncoded();
    void refusesWhatItCannotSearch();
    void answersFromTheEventLoop();
    void failsWhenNobodyListens();
    void isIdleWhenItReports();
    void worksWithoutASharedManager();
    void abortsTheRequestWhenDestroyed();

private:
    bool search(LyricsProvider &site, const QString &artist = QStringLiteral("a"))
    {
        return site.search(artist, QStringLiteral("t"));
    }

    std::unique_ptr<LoopbackServer> m_server;
    AccessManager m_manager;
};

void tst_LyricsProvider::init()
{
    m_server = std::make_unique<LoopbackServer>();
    QVERIFY(m_server->isListening());
    m_server->route(QStringLiteral("/page"), LoopbackResponse::page("la"));
    m_server->route(QStringLiteral("/301"), redirectPage(301, m_server->base().toUtf8() + "/page"));
    m_server->route(QStringLiteral("/307"), redirectPage(307, "page"));
    m_server->route(QStringLiteral("/302"), redirectPage(302, "/page"));
    m_server->route(QStringLiteral("/303"), redirectPage(303, "/page"));
    m_server->route(QStringLiteral("/anchor"), redirectPage(301, "/page#other"));
    m_server->route(QStringLiteral("/loop"), redirectPage(301, "/loop"));
    m_server->route(QStringLiteral("/file"), redirectPage(301, "file:///etc/passwd"));
    m_server->route(QStringLiteral("/data"), redirectPage(307, "data:text/html,la"));
    m_server->route(QStringLiteral("/nowhere"), redirectPage(301, ""));
    m_server->route(QStringLiteral("/500"), LoopbackResponse::error(500));
    m_server->route(QStringLiteral("/empty"), LoopbackResponse::page(""));
    m_server->route(QStringLiteral("/nul"), LoopbackResponse::page(QByteArray("la\0li", 5)));
    m_server->route(QStringLiteral("/encoded-nul"), LoopbackResponse::page("la%00li"));
    m_server->route(QStringLiteral("/encoded"), LoopbackResponse::page("%D0%B4%d0%b0, 100% sure"));
    m_server->route(QStringLiteral("/invalid"), LoopbackResponse::page("l\xFF"
                                                                       "a"));
    m_server->route(QStringLiteral("/large"), LoopbackResponse::page(QByteArray(1100 * 1024, 'x')));
    LoopbackResponse cut = LoopbackResponse::page(QByteArray(5000, 'x'));
    cut.cutAfter = 2000;
    m_server->route(QStringLiteral("/cut"), cut);
    LoopbackResponse hang;
    hang.hang = true;
    m_server->route(QStringLiteral("/hang"), hang);
    m_server->routeOthers([](const LoopbackRequest &request) {
        const int hops = request.path.section(QLatin1Char('/'), 2).toInt();
        if (!request.path.startsWith(QLatin1String("/hops/")))
            return LoopbackResponse::error(404);
        return hops > 0 ? redirectPage(301, QByteArray::number(hops - 1)) : LoopbackResponse::page("la");
    });
}

void tst_LyricsProvider::answersEveryKindOfReply_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("lyrics");
    QTest::addColumn<QString>("error"); // what its text holds; empty: there is none
    const auto found = [](const char *name, const QByteArray &target, const QString &lyrics) {
        QTest::newRow(name) << target << lyrics << QString();
    };
    const auto failed = [](const char *name, const QByteArray &target, const char *error) {
        QTest::newRow(name) << target << QString() << QString::fromLatin1(error);
    };
    found("a page", "/page", QStringLiteral("la"));
    found("an empty page", "/empty", QString());
    found("301", "/301", QStringLiteral("la"));
    found("307 with a relative location", "/307", QStringLiteral("la"));
    found("302 is read as a page", "/302", QStringLiteral("moved"));
    found("303 is read as a page", "/303", QStringLiteral("moved"));
    found("a redirect inherits the fragment", "/301#song", QStringLiteral("la#song"));
    found("a redirect brings its own fragment", "/anchor#song", QStringLiteral("la#other"));
    found("as many redirects as are allowed", "/hops/20", QStringLiteral("la"));
    failed("one redirect more", "/hops/21", "too often");
    failed("a redirect to itself", "/loop", "too often");
    failed("a redirect to a file", "/file", "not a web page");
    failed("a redirect to data", "/data", "not a web page");
    failed("a redirect to nowhere", "/nowhere", "not a web page");
    failed("404", "/404", "404");
    failed("500", "/500", "500");
    failed("a page that is cut off", "/cut", "onnection");
    failed("a page over the limit", "/large", "larger than 1 MiB");
    found("text ends at NUL", "/nul", QStringLiteral("la"));
    found("text ends at an encoded NUL", "/encoded-nul", QStringLiteral("la"));
    found("percent-decoded where well formed", "/encoded", QStringLiteral("да, 100% sure"));
    found("invalid UTF-8", "/invalid", QStringLiteral("l\ufffda"));
}

void tst_LyricsProvider::answersEveryKindOfReply()
{
    QFETCH(QByteArray, target);
    QFETCH(QString, error);
    PageSite site(&m_manager, m_server->url(target));
    QSignalSpy finished(&site, &LyricsProvider::finished);
    QVERIFY(search(site));
    QTRY_COMPARE(finished.size(), 1);
    QTEST(finished.first().first().toString(), "lyrics");
    QVERIFY2(site.errorString().contains(error) && site.errorString().isEmpty() == error.isEmpty(),
             qPrintable(site.errorString()));
    QTest::qWait(0);
    QCOMPARE(finished.size(), 1);
    for (const LoopbackRequest &request : m_server->requests())
        QCOMPARE(request.method, QByteArray("GET"));
}

void tst_LyricsProvider::putsTheSitesHeadersOnRedirects()
{
    PageSite site(&m_manager, m_server->url("/301"));
    QSignalSpy finished(&site, &LyricsProvider::finished);
    QVERIFY(search(site));
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(m_server->requests().size(), 2);
    QVERIFY(m_server->requests().at(0).header("X-First") == "yes" &&
            m_server->requests().at(0).header("X-Followed").isNull());
    QVERIFY(m_server->requests().at(1).header("X-First").isNull() &&
            m_server->requests().at(1).header("X-Followed") == "yes");
}

void tst_LyricsProvider::leavesPagesAloneThatAreNotPercentEncoded()
{
    PageSite site(&m_manager, m_server->url("/encoded"), false);
    QSignalSpy finished(&site, &LyricsProvider::finished);
    QVERIFY(search(site));
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first().toString(), QStringLiteral("%D0%B4%d0%b0, 100% sure"));
}

void tst_LyricsProvider::refusesWhatItCannotSearch()
{
    PageSite site(&m_manager, m_server->url("/page"));
    QSignalSpy finished(&site, &LyricsProvider::finished);
    QVERIFY(!site.search(QStringLiteral("  "), QStringLiteral("Song")));
    QVERIFY(!site.search(QStringLiteral("Artist"), QString()));
    QVERIFY(search(site));
    QVERIFY2(!search(site), "it is busy");
    QTRY_COMPARE(finished.size(), 1);
    QTest::qWait(0);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(m_server->requests().size(), 1);
}

void tst_LyricsProvider::answersFromTheEventLoop()
{
    PageSite site(&m_manager, m_server->url("/page"));
    QSignalSpy finished(&site, &LyricsProvider::finished);
    QVERIFY(search(site, QStringLiteral("nobody")));
    QVERIFY(site.isBusy());
    QVERIFY(finished.isEmpty());
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!site.isBusy());
}

void tst_LyricsProvider::failsWhenNobodyListens()
{
    PageSite site(&m_manager, m_server->url("/page"));
    m_server->stop();
    QSignalSpy finished(&site, &LyricsProvider::finished);
    QVERIFY(search(site));
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(finished.first().first().toString().isEmpty() && !site.errorString().isEmpty());
}

void tst_LyricsProvider::isIdleWhenItReports()
{
    PageSite site(&m_manager, m_server->url("/500"));
    QStringList results;
    connect(&site, &LyricsProvider::finished, this, [&](const QString &lyrics) {
        results.append(lyrics + (site.errorString().isEmpty() ? QString() : QStringLiteral("failed")));
        site.setUrl(m_server->url("/page"));
        if (results.size() == 1)
            QVERIFY(search(site));
    });
    QVERIFY(search(site));
    QTRY_COMPARE(results.size(), 2);
    QCOMPARE(results, (QStringList{QStringLiteral("failed"), QStringLiteral("la")}));
}

void tst_LyricsProvider::worksWithoutASharedManager()
{
    PageSite site(nullptr, m_server->url("/page"));
    QSignalSpy finished(&site, &LyricsProvider::finished);
    for (int i = 1; i <= 2; ++i) {
        QVERIFY(search(site));
        QTRY_COMPARE(finished.size(), i);
        QCOMPARE(finished.last().first().toString(), QStringLiteral("la"));
    }
    QCOMPARE(m_server->mostConnections(), 1);
}

void tst_LyricsProvider::abortsTheRequestWhenDestroyed()
{
    auto site = std::make_unique<PageSite>(&m_manager, m_server->url("/hang"));
    QSignalSpy finished(site.get(), &LyricsProvider::finished);
    QVERIFY(search(*site));
    QTRY_COMPARE(m_server->requests().size(), 1);
    site.reset();
    QTRY_COMPARE(m_server->openConnections(), 0);
    QVERIFY(finished.isEmpty());
    QTRY_VERIFY(m_manager.findChildren<QNetworkReply *>().isEmpty());
}

QTEST_GUILESS_MAIN(tst_LyricsProvider)
#include "tst_lyricsprovider.moc"
