// SPDX-License-Identifier: MIT
#include "app/Application.h"

#include "app/GraphicsBackend.h"
#include "app/Stage.h"
#include "support/AsOrdinaryUser.h"
#include "support/LoopbackServer.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QNetworkProxy>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <functional>
#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

// Each list holds the next one; read as a value, they would use up the stack.
QByteArray endlessLists()
{
    return "[General]\nlyricsFontSize=20\nlanguage=@Variant(" +
           QByteArray("\\0\\0\\0\\t\\0\\0\\0\\x1").repeated(400000) + ")\n";
}

QString sample(const char *name)
{
    return QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(name);
}

} // namespace

using Step = std::function<void(const Stage &)>;

Q_DECLARE_METATYPE(Step)

class tst_Application : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setSetuidAllowed(true); } // for the tests that give up the rights of root

    void theSavedListIsRestored_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("wanted");
        QTest::addColumn<QStringList>("expected");
        const QString flac = sample("plain.flac");
        const QString mp3 = sample("plain-v23.mp3");
        const QString flacUrl = QUrl::fromLocalFile(flac).toString(QUrl::FullyEncoded);
        QTest::newRow("urls") << QVariant(QStringList{QUrl::fromLocalFile(mp3).toString(), flacUrl}) << true
                              << QStringList{mp3, flac};
        QTest::newRow("paths") << QVariant(QStringList{flac, mp3}) << true << QStringList{flac, mp3};
        QTest::newRow("a list of one, which the store keeps as a text")
            << QVariant(flacUrl) << true << QStringList{flac};
        QTest::newRow("nonsense among the files")
            << QVariant(QStringList{QString(), QStringLiteral("http://[::bad"), flac, QStringLiteral("/gone.mp3")})
            << true << QStringList{flac};
        QTest::newRow("a number") << QVariant(17) << true << QStringList{};
        QTest::newRow("not wanted") << QVariant(QStringList{flac}) << false << QStringList{};
    }

    void theSavedListIsRestored()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, wanted);
        QFETCH(QStringList, expected);
        Stage app({{QStringLiteral("filesList"), stored}, {QStringLiteral("saveFilesList"), wanted}});
        QVERIFY(app->mainModel()->urls().isEmpty());
        app->restoreFilesList();
        const auto paths = [&app] {
            QStringList list;
            for (const QUrl &url : app->mainModel()->urls())
                list.append(url.toLocalFile());
            return list;
        };
        QTRY_COMPARE(paths(), expected);
        QTRY_COMPARE(app->mainModel()->rowCount(), expected.size());
    }

    void servicesAreWired()
    {
        Stage app({{QStringLiteral("providersOrder"), QStringLiteral(" lyricsfreak ;;Nobody")}});
        QVERIFY(!app->isOtherInstanceRunning());
        QVERIFY(Application::isLinux() && !Application::isWindows() && !Application::isMacOS());
        QCOMPARE(Application::applicationName(), QStringLiteral("Versewell"));
        QCOMPARE(Application::organizationName(), QStringLiteral("Quillmarsh"));
        QCOMPARE(Application::applicationVersion(), QStringLiteral("1.5.6"));
        QCOMPARE(app->mainModel()->supportedTypesMask(QStringLiteral(" ")),
                 QStringLiteral("*.aifc *.aiff *.aif *.opus *.aac *.ogg *.wma *.alac *.ape *.flac *.m4p *.m4a *.mp3"));
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Base, QColor(1, 2, 3));
        QApplication::setPalette(palette); // as the desktop does when its theme changes
        QCOMPARE(app->appPalette()->value(QStringLiteral("listBackground")).value<QColor>(), QColor(1, 2, 3));
        QCOMPARE(app->settings()->providersOrder(), app->lyricsSearch()->providersOrder());
        QVERIFY(!app->settings()->providersOrder().contains(QLatin1String("Nobody")));
        app->settings()->setProvidersOrder(QStringLiteral("LyricsFreak::0"));
        QVERIFY(app->lyricsSearch()->providersOrder().contains(QLatin1String("LyricsFreak::0")));
    }

    void betterNamesAreAskedForWhenNoSiteHasTheSong()
    {
        Stage app;
        LoopbackServer service;
        service.route(QStringLiteral("/2.0/"), LoopbackResponse::page("<lfm/>"));
        QSettings().setValue(endpointGroup() + QLatin1Char('/') + endpointKey(Endpoint::Lastfm), service.base());
        reloadEndpoints();
        LyricsSearch *search = app->lyricsSearch();
        const QString disabled = QStringLiteral("::0");
        search->setProvidersOrder(
            search->providersOrder().replace(QLatin1String(";;"), disabled + QLatin1String(";;")) + disabled);
        QSignalSpy finished(search, &LyricsSearch::searchFinished);
        QVERIFY(search->search(1, QStringLiteral("Nora Vale"), QStringLiteral("Harbour")));
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(service.requestCount(QStringLiteral("/2.0/")), 2);
    }

    void theProxyFollowsTheSettings()
    {
        Stage app({{QStringLiteral("proxy/type"), 1},
                   {QStringLiteral("proxy/address"), QStringLiteral("127.0.0.1")},
                   {QStringLiteral("proxy/port"), 9}});
        const auto proxy = [&app] {
            return app->networkManager()->proxy();
        };
        QCOMPARE(proxy().type(), QNetworkProxy::Socks5Proxy);
        QCOMPARE(proxy().hostName(), QStringLiteral("127.0.0.1"));
        QCOMPARE(proxy().port(), quint16(9));
        app->settings()->setProxyType(2);
        QCOMPARE(proxy().type(), QNetworkProxy::HttpProxy);
        app->settings()->setProxyAddress(QString());
        QCOMPARE(proxy().type(), QNetworkProxy::DefaultProxy);
    }

    void aDamagedSettingsFileIsMended_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("half") << QByteArray("[General]\nlyricsFontSize=20\nlanguage=\"d");
        QTest::newRow("lists in lists without end") << endlessLists();
    }

    void aDamagedSettingsFileIsMended()
    {
        QFETCH(QByteArray, content);
        Stage app({}, [&](const Stage &stage) { stage.folder.write(stage.settingsFile, content); });
        QCOMPARE(app->settings()->lyricsFontSize(), 20);
        QVERIFY(app->settingsMending().damaged && app->areSettingsStored());
        QCOMPARE(app->settingsMending().copy, app.settingsFile + QLatin1String(".bad"));
        QCOMPARE(app.folder.read(app->settingsMending().copy), content);
        QVERIFY(app->settings()->save());
        QVERIFY(app.folder.read(app.settingsFile).contains("lyricsFontSize=20\n"));
    }

    void aSettingsFileThatMustNotBeReadIsNotRead_data()
    {
        QTest::addColumn<Step>("obstacle");
        QTest::addColumn<int>("fontSize");
        QTest::newRow("all names for a copy are taken") << Step([](const Stage &stage) {
            for (int i = 1; i <= 99; ++i)
                stage.folder.write(
                    stage.settingsFile + (i == 1 ? QStringLiteral(".bad") : QStringLiteral(".bad.%1").arg(i)), "other");
        }) << 20;
        QTest::newRow("the folder cannot be written to") << Step(forbidWriting) << 20;
        QTest::newRow("the disk is full") << Step([](const Stage &) {
            signal(SIGXFSZ, SIG_IGN);
            QVERIFY(getrlimit(RLIMIT_FSIZE, &m_usualSize) == 0);
            const rlimit none{0, m_usualSize.rlim_max};
            QVERIFY(setrlimit(RLIMIT_FSIZE, &none) == 0);
        }) << 12;
        QTest::newRow("another instance runs")
            << Step([](const Stage &stage) { m_other = std::make_unique<SingleInstance>(stage.lockFile()); }) << 20;
    }

    void aSettingsFileThatMustNotBeReadIsNotRead()
    {
        QFETCH(Step, obstacle);
        QStringList namesBefore;
        Stage app({{QStringLiteral("saveFilesList"), true}}, [&](const Stage &stage) {
            stage.folder.write(stage.settingsFile, endlessLists());
            obstacle(stage);
            namesBefore = stage.folder.names(QStringLiteral("Quillmarsh"));
        });
        const int fontSize = app->settings()->lyricsFontSize();
        const bool isStored = app->settings()->save();
        m_user.reset();
        m_other.reset();
        if (m_usualSize.rlim_max != 0)
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &m_usualSize), 0);
        m_usualSize = {};
        QTEST(fontSize, "fontSize");
        QVERIFY(!isStored && !app->areSettingsStored());
        QVERIFY(app->settingsMending().damaged && app->settingsMending().copy.isEmpty());
        QCOMPARE(app.folder.read(app.settingsFile), endlessLists());
        QStringList names = app.folder.names(QStringLiteral("Quillmarsh"));
        names.removeOne(QStringLiteral("Versewell.lock"));
        namesBefore.removeOne(QStringLiteral("Versewell.lock"));
        QCOMPARE(names, namesBefore);
    }

    void whatIsNoSettingsFileIsNotOpened()
    {
        Stage app({}, [](const Stage &stage) { // would never answer
            QVERIFY(QFile::remove(stage.folder.write(stage.settingsFile)));
            QVERIFY(mkfifo(QFile::encodeName(stage.settingsFile).constData(), 0600) == 0);
        });
        app->noteStart();
        QVERIFY(app->settingsMending().unreadable && !app->areSettingsStored());
        QCOMPARE(app->settings()->lyricsFontSize(), 12);
        QVERIFY(!app->settings()->save());
    }

    // The lock cannot be made, so that somebody else may be using the list.
    void withoutTheLockNoListIsRestoredOrStored()
    {
        Stage app({{QStringLiteral("saveFilesList"), true}, {QStringLiteral("filesList"), sample("plain.flac")}},
                  forbidWriting);
        m_user.reset();
        QVERIFY(!app->isOtherInstanceRunning());
        QVERIFY(app->settings()->saveFilesList() && !app->settings()->keepsFilesList());
        QCOMPARE(app->mainModel()->urls(), QList<QUrl>());
    }

    void makerPagesAreOpenedOnce_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<QStringList>("pages");
        const QString first = QStringLiteral("FirstStart");
        const QVariantMap site{{QStringLiteral("endpoints/Maker"), QStringLiteral("http://127.0.0.1:9")}};
        const auto with = [&site](const QString &key, const QVariant &value) {
            QVariantMap map = site;
            map.insert(key, value);
            return map;
        };
        QTest::newRow("the first start") << site
                                         << QStringList{QStringLiteral("http://127.0.0.1:9/versewell/welcome.html")};
        QTest::newRow("a start after an update")
            << with(first, QStringLiteral("1.5.5"))
            << QStringList{QStringLiteral("http://127.0.0.1:9/versewell/update.html")};
        QTest::newRow("another start") << with(first, QStringLiteral("1.5.6")) << QStringList{};
        QTest::newRow("no pages wanted") << with(QStringLiteral("openQuillmarshSite"), false) << QStringList{};
        QTest::newRow("a build without a maker's site") << QVariantMap() << QStringList{};
    }

    void makerPagesAreOpenedOnce()
    {
        QFETCH(QVariantMap, stored);
        QFETCH(QStringList, pages);
        Stage app(stored);
        m_opened.clear();
        QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "noteOpenedUrl");
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "noteOpenedUrl");
        app->noteStart();
        app->noteStart();
        QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QCOMPARE(QUrl::toStringList(m_opened), pages);
        QCOMPARE(QSettings().value(QStringLiteral("FirstStart")).toString(), QStringLiteral("1.5.6"));
    }

    void languagesAreFoundAndChosen_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("locale");
        const QString de = QStringLiteral("tst_application.de.qm");
        const QString en = QStringLiteral("tst_application.en.qm");
        const QString brazil = QStringLiteral("tst_application.pt_BR.qm");
        QTest::newRow("no translations") << QStringList{} << "de" << QStringList{QStringLiteral("en")} << "en";
        QTest::newRow("English comes first when it has no file")
            << QStringList{brazil, de, QStringLiteral("other.fr.qm")} << "pt_BR"
            << QStringList{QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("pt_BR")} << "pt_BR";
        QTest::newRow("English keeps its place when it has one")
            << QStringList{de, en} << "" << QStringList{QStringLiteral("de"), QStringLiteral("en")} << "en";
        QTest::newRow("a language that is not there")
            << QStringList{de} << "xx" << QStringList{QStringLiteral("en"), QStringLiteral("de")} << "en";
    }

    void languagesAreFoundAndChosen()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, chosen);
        QFETCH(QString, locale);
        Stage app({{QStringLiteral("language"), chosen}});
        QDir folder(Application::applicationDirPath() + QLatin1String("/locale"));
        QVERIFY(folder.removeRecursively() && folder.mkpath(QStringLiteral(".")));
        for (const QString &name : files) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        app->setUpLanguages();
        QTEST(app->property("languageList").toStringList(), "languages");
        QCOMPARE(QLocale(), QLocale(locale));
        app->settings()->setLanguage(QStringLiteral("en"));
        QCOMPARE(QLocale(), QLocale(QStringLiteral("en")));
        QVERIFY(folder.removeRecursively());
    }

    void theGraphicsBackendIsChosen_data()
    {
        QTest::addColumn<QByteArray>("environment");
        QTest::addColumn<QVariant>("method");
        QTest::addColumn<QByteArray>("device");
        QTest::newRow("nothing said") << QByteArray() << QVariant() << QByteArray("softwarecontext");
        QTest::newRow("automatic") << QByteArray() << QVariant(0) << QByteArray();
        QTest::newRow("the environment wins") << QByteArray("mine") << QVariant(2) << QByteArray("mine");
        QTest::newRow("more than there are numbers")
            << QByteArray() << QVariant(1LL << 32) << QByteArray("softwarecontext");
    }

    void theGraphicsBackendIsChosen()
    {
        QFETCH(QByteArray, environment);
        QFETCH(QVariant, method);
        Stage app(method.isValid() ? QVariantMap{{QStringLiteral("openGlMethod"), method}} : QVariantMap());
        qputenv("QMLSCENE_DEVICE", environment);
        chooseGraphicsBackend();
        QTEST(qgetenv("QMLSCENE_DEVICE"), "device");
        qunsetenv("QMLSCENE_DEVICE");
    }

public slots:
    void noteOpenedUrl(const QUrl &url) { m_opened.append(url); }

private:
    static void forbidWriting(const Stage &stage)
    {
        QVERIFY(chmod(QFile::encodeName(stage.folder.path()).constData(), 0755) == 0);
        QVERIFY(chmod(QFile::encodeName(QFileInfo(stage.settingsFile).path()).constData(), 0555) == 0);
        m_user = std::make_unique<AsOrdinaryUser>();
    }

    QList<QUrl> m_opened;
    // What the obstacles put up until a test has looked.
    static inline std::unique_ptr<AsOrdinaryUser> m_user;
    static inline std::unique_ptr<SingleInstance> m_other;
    static inline rlimit m_usualSize = {};
};

QTEST_APPLESS_MAIN(tst_Application)
#include "tst_application.moc"
