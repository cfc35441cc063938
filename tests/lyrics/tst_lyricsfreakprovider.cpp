// SPDX-License-Identifier: MIT
#include "lyrics/LyricsText.h"
#include "lyrics/providers/LyricsFreakProvider.h"
#include "lyrics/providers/ProviderCatalogue.h"
#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "support/LoopbackServer.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Menus, tag clouds and adverts, as much as surrounds the rows of a real page.
QString furniture()
{
    QString html;
    for (int i = 0; i < 120; ++i)
        html += QStringLiteral("<div class=\"menu\"><a href=\"/top/%1/\" class=\"menu__link\">Top %1</a><!-- %1 -->"
                               "<script>q(%1 < 3 ? '<b>' : \"\");</script></div>\n")
                    .arg(i);
    return html;
}

QString fixture(const QString &name)
{
    QFile file(QStringLiteral(VERSEWELL_TEST_DATA_DIR "/lyricsfreak/") + name);
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).replace(QStringLiteral("@FURNITURE@"), furniture())
               : QString();
}

QString repeated(const QString &piece, int size)
{
    return piece.repeated(size / piece.size());
}

QString fixtureLyrics()
{
    return QStringLiteral("Harbour lights are counting slow,\none for every boat below & above,\n"
                          "I've a lantern made of tin,\nhalf a match to let light in.\n\n"
                          "Огни горят, и гавань спит,\nהים שקט והרוח באה,\n🎵 la la, 100% sure 🎵");
}

} // namespace

class tst_LyricsFreakProvider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void findsTheLink_data();
    void findsTheLink();
    void findsTheLinkInRows_data();
    void findsTheLinkInRows();
    void findsTheLyrics_data();
    void findsTheLyrics();
    void answersHostilePages_data();
    void answersHostilePages();
    void asksForTheSearchAndThenForTheSong();
    void carriesBrowserHeadersOnRedirects();
    void asksForLinksAsTheyStand_data();
    void asksForLinksAsTheyStand();
    void standsInTheCatalogue();

private:
    QString searchResult(const QString &artist, const QString &title, QString *error = nullptr);

    QTemporaryDir m_settingsFolder;
    std::unique_ptr<LoopbackServer> m_server;
    AccessManager m_manager;
};

void tst_LyricsFreakProvider::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsFolder.path());
}

void tst_LyricsFreakProvider::init()
{
    m_server = std::make_unique<LoopbackServer>();
    QSettings().setValue(QStringLiteral("endpoints/LyricsFreak"), m_server->base());
    reloadEndpoints();
}

QString tst_LyricsFreakProvider::searchResult(const QString &artist, const QString &title, QString *error)
{
    LyricsFreakProvider site(&m_manager);
    QSignalSpy finished(&site, &LyricsProvider::finished);
    if (!site.search(artist, title) || !(finished.size() == 1 || finished.wait()))
        return QStringLiteral("no answer");
    if (error)
        *error = site.errorString();
    return finished.first().first().toString();
}

void tst_LyricsFreakProvider::findsTheLink_data()
{
    QTest::addColumn<QString>("artist");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("link");
    QTest::newRow("decoys, comments and a row without a link before it") << "Tin Lanterns"
                                                                         << "Harbour Lights"
                                                                         << "/t/tin+lanterns/harbour+lights_20443.html";
    QTest::newRow("the found name within the wanted one") << "Paper Kites Club, The Paper Kites Club"
                                                          << "harbour lights"
                                                          << "/p/paper+kites+club/harbour+lights_20441.html";
    QTest::newRow("Cyrillic behind entities, any case") << "ПАРУСА"
                                                        << "огни Гавани"
                                                        << "/p/parusa/ogni+gavani_20444.html";
    QTest::newRow("right to left, with quotation marks") << "מגדלור"
                                                         << "נמל קטן"
                                                         << "/m/migdalor/namal_20445.html";
    QTest::newRow("marks that do not count, and another host") << "Moth Lamp"
                                                               << "Don't Dim"
                                                               << "https://mirror.invalid/m/moth/dont+dim_20446.html";
    QTest::newRow("a row that names no song resembles every title") << "Unsigned Hands"
                                                                    << "Anything"
                                                                    << "/u/unsigned+hands/untitled_20447.html";
    QTest::newRow("an artist who is not there") << "Nobody At All"
                                                << "Harbour Lights"
                                                << "";
    QTest::newRow("a song that is not there") << "Tin Lanterns"
                                              << "Lighthouse"
                                              << "";
}

void tst_LyricsFreakProvider::findsTheLink()
{
    QFETCH(QString, artist);
    QFETCH(QString, title);
    const QString page = fixture(QStringLiteral("search.html"));
    QVERIFY(page.size() > 20000 && page.size() < 60000);
    QTEST(LyricsFreakProvider::songLink(page, artist, title).value_or(QString()), "link");
}

// The wanted song is always "a" by "b"; the letters stand in no other name.
void tst_LyricsFreakProvider::findsTheLinkInRows_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("link");
    QTest::newRow("at the very start of the page") << "@ROW@LINK</div>"
                                                   << "/1";
    QTest::newRow("a row that is not closed has no block") << "@ROW@LINK"
                                                           << "";
    QTest::newRow("a link behind the row's own block") << "@ROW</div>@LINK"
                                                       << "";
    QTest::newRow("an inner block is part of the row") << "@ROW<div></div>@LINK</div>"
                                                       << "/1";
    QTest::newRow("a row within a row that has a link") << "@ROW@ROW</div>@LINK</div>"
                                                        << "/1";
    QTest::newRow("the next row after one without a link") << "@ROW</div>@ROW@LINK</div>"
                                                           << "/1";
    QTest::newRow("the next row after one without a block, and a link in it") << "@ROW<divider>@ROW@LINK</div>"
                                                                              << "/1";
    QTest::newRow("the song may stand before the artist")
        << R"(<div data-sorting-song="a" data-sorting-artist="b">@LINK</div>)"
        << "/1";
    QTest::newRow("the class must not stand before the address") << R"(@ROW<a class="song" href="/1">x</a></div>)"
                                                                 << "";
    QTest::newRow("single quotation marks do not count") << "<div data-sorting-artist='b'>@LINK</div>"
                                                         << "";
    QTest::newRow("an upper-case tag does not count") << R"(<DIV data-sorting-artist="b">@LINK</DIV>)"
                                                      << "";
    QTest::newRow("an empty name resembles everything") << R"(<div data-sorting-artist="">@LINK</div>)"
                                                        << "/1";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_LyricsFreakProvider::findsTheLinkInRows()
{
    QFETCH(QString, page);
    page.replace(QLatin1String("@ROW"), QLatin1String(R"(<div data-sorting-artist="b" data-sorting-song="a">)"));
    page.replace(QLatin1String("@LINK"), QLatin1String(R"(<a href="/1" class="song">x</a>)"));
    const auto link = LyricsFreakProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a"));
    QTEST(link.value_or(QString()), "link");
}

void tst_LyricsFreakProvider::findsTheLyrics_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("lyrics");
    QTest::newRow("a whole page") << fixture(QStringLiteral("song.html")) << fixtureLyrics();
    QTest::newRow("up to the first closing tag") << "<div id=\"content\">la<div>li</div>lu</div>"
                                                 << "lali";
    QTest::newRow("the quotation marks need not agree") << "<div id=\"content'>la</div>"
                                                        << "la";
    QTest::newRow("no content block") << "<div id=\"contents\">la</div>"
                                      << "";
    QTest::newRow("a content block that is not closed") << "<div id=\"content\">la"
                                                        << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_LyricsFreakProvider::findsTheLyrics()
{
    QFETCH(QString, page);
    QTEST(LyricsFreakProvider::lyricsOfPage(page), "lyrics");
}

// As large as pages may be. What tries the rest of the page anew from every tag takes minutes for these.
void tst_LyricsFreakProvider::answersHostilePages_data()
{
    QTest::addColumn<QString>("page");
    constexpr int size = 1024 * 1024;
    const QString row = QStringLiteral("<div data-sorting-artist=\"\" data-sorting-song=\"\">");
    QTest::newRow("brackets") << repeated(QStringLiteral("<"), size);
    QTest::newRow("openings") << repeated(QStringLiteral("<div "), size);
    QTest::newRow("openings, then nearly a content block")
        << repeated(QStringLiteral("<div "), size) + QStringLiteral("id=\"content\"> x</div");
    QTest::newRow("content blocks that are not closed") << repeated(QStringLiteral("<div id=\"content\">"), size);
    QTest::newRow("content blocks without an end of the tag") << repeated(QStringLiteral("<div id=\"content\" "), size);
    QTest::newRow("names that do not end") << repeated(QStringLiteral("<div data-sorting-artist=\""), size);
    QTest::newRow("matching rows that are not closed") << repeated(row, size);
    QTest::newRow("matching rows one inside the other")
        << repeated(row, size * 9 / 10) + repeated(QStringLiteral("</div>"), size / 10);
    QTest::newRow("matching rows with half a link")
        << repeated(row + QStringLiteral("<a href=\"<a href=\""), size * 9 / 10) +
               repeated(QStringLiteral("</div>"), size / 10);
}

void tst_LyricsFreakProvider::answersHostilePages()
{
    QFETCH(QString, page);
    QVERIFY(!LyricsFreakProvider::songLink(page, QStringLiteral("b"), QStringLiteral("a")));
    QVERIFY(LyricsFreakProvider::lyricsOfPage(page).isEmpty());
    QVERIFY(cleanLyrics(page).size() <= page.size());
}

void tst_LyricsFreakProvider::asksForTheSearchAndThenForTheSong()
{
    m_server->route(QStringLiteral("/search.php"),
                    LoopbackResponse::page(fixture(QStringLiteral("search.html")).toUtf8()));
    m_server->route(QStringLiteral("/t/tin+lanterns/harbour+lights_20443.html"),
                    LoopbackResponse::page(fixture(QStringLiteral("song.html")).toUtf8()));
    QCOMPARE(searchResult(QStringLiteral("Tin Lanterns feat. Moth"), QStringLiteral("Harbour Lights (Official)")),
             fixtureLyrics());
    QCOMPARE(m_server->requests().size(), 2);
    const LoopbackRequest search = m_server->requests().at(0);
    QCOMPARE(search.target, QByteArray("/search.php?a=search&type=song&q=Harbour%20Lights"));
    QCOMPARE(search.header("Referer"), m_server->url("/search.php").toEncoded());
    const LoopbackRequest song = m_server->requests().at(1);
    QVERIFY(song.header("Referer").isNull());
    for (const LoopbackRequest &request : m_server->requests())
        QVERIFY2(!request.header("User-Agent").contains("Chrome"), "only redirects show a browser");

    QVERIFY(searchResult(QStringLiteral("Nobody"), QStringLiteral("50% + C&A #1 да")).isEmpty());
    QCOMPARE(m_server->requests().at(2).target,
             QByteArray("/search.php?a=search&type=song&q=50%25%20%2B%20C%26A%20%231%20%D0%B4%D0%B0"));
}

void tst_LyricsFreakProvider::carriesBrowserHeadersOnRedirects()
{
    const QByteArray row =
        "<div data-sorting-artist=\"b\" data-sorting-song=\"a\"><a href=\"/1\" class=\"song\"></a></div>";
    m_server->route(QStringLiteral("/search.php"), LoopbackResponse::redirect(301, "/found"));
    m_server->route(QStringLiteral("/found"), LoopbackResponse::page(row));
    m_server->route(QStringLiteral("/1"), LoopbackResponse::redirect(307, "/2"));
    m_server->route(QStringLiteral("/2"), LoopbackResponse::page("<div id=\"content\">la</div>"));
    QCOMPARE(searchResult(QStringLiteral("b"), QStringLiteral("a")), QStringLiteral("la"));
    QCOMPARE(m_server->requests().size(), 4);
    for (const int followed : {1, 3}) {
        const LoopbackRequest request = m_server->requests().at(followed);
        QCOMPARE(request.header("Referer"), m_server->url("/search.php").toEncoded());
        QVERIFY(request.header("User-Agent").contains("Chrome/46.0.2490.86"));
    }
}

void tst_LyricsFreakProvider::asksForLinksAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<QString>("lyrics");
    QTest::addColumn<bool>("failed");
    QTest::newRow("on the site") << QByteArray("/song") << "la" << false;
    QTest::newRow("a full address") << QByteArray("@BASE@/song") << "la" << false;
    QTest::newRow("a second slash leads to no other host") << QByteArray("//other.invalid/song") << "" << true;
    QTest::newRow("an address without a host") << QByteArray("song") << "" << true;
    QTest::newRow("a file") << QByteArray("file:///etc/passwd") << "" << true;
    QTest::newRow("nothing") << QByteArray() << "" << true;
}

void tst_LyricsFreakProvider::asksForLinksAsTheyStand()
{
    QFETCH(QByteArray, link);
    QFETCH(bool, failed);
    link.replace("@BASE@", m_server->base().toUtf8());
    m_server->route(QStringLiteral("/song"), LoopbackResponse::page("<div id=\"content\">la</div>"));
    m_server->route(QStringLiteral("/search.php"), LoopbackResponse::page("<div data-sorting-artist=\"\"><a href=\"" +
                                                                          link + "\" class=\"song\"></a></div>"));
    QString error;
    QTEST(searchResult(QStringLiteral("b"), QStringLiteral("a"), &error), "lyrics");
    QCOMPARE(!error.isEmpty(), failed);
}

void tst_LyricsFreakProvider::standsInTheCatalogue()
{
    const auto providers = makeProviders(&m_manager);
    QCOMPARE(providers.size(), std::size_t(1));
    QCOMPARE(providers.front()->name(), QStringLiteral("LyricsFreak"));
    QCOMPARE(providers.front()->siteUrl(), m_server->base());
    QObject owner;
    const LyricsProvider *copy = providers.front()->clone(&owner);
    QCOMPARE(copy->parent(), &owner);
    QCOMPARE(copy->metaObject(), providers.front()->metaObject());
}

QTEST_GUILESS_MAIN(tst_LyricsFreakProvider)
#include "tst_lyricsfreakprovider.moc"
