// SPDX-License-Identifier: MIT
#include "app/Application.h"

#include "app/GraphicsBackend.h"
#include "network/Endpoints.h"

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// An application object on a settings file of its own; like the program, one at a time.
class Stage
{
public:
    explicit Stage(const QVariantMap &stored = {})
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_configuration.path());
        QSettings store(Application::settingsFile(), QSettings::NativeFormat);
        for (auto entry = stored.begin(); entry != stored.end(); ++entry)
            store.setValue(entry.key(), entry.value());
        store.sync();
        start();
    }

    // With a settings file of this content.
    explicit Stage(const QByteArray &content)
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_configuration.path());
        QDir(m_configuration.path()).mkdir(QStringLiteral("Quillmarsh"));
        QFile file(Application::settingsFile());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        file.close();
        start();
    }

    Application *operator->() { return m_app.get(); }
    Application &operator*() { return *m_app; }

private:
    void start()
    {
        reloadEndpoints();
        m_app = std::make_unique<Application>(m_argc, m_argv);
    }

    QTemporaryDir m_configuration;
    int m_argc = 1;
    char m_name[16] = "tst_application";
    char *m_argv[2] = {m_name, nullptr};
    std::unique_ptr<Application> m_app;
};

QString sample(const char *name)
{
    return QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + QLatin1String(name);
}

} // namespace

class tst_Application : public QObject
{
    Q_OBJECT

private slots:
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
        QStringList paths;
        for (const QUrl &url : app->mainModel()->urls())
            paths.append(url.toLocalFile());
        QCOMPARE(paths, expected);
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

    void aDamagedSettingsFileStopsNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("damaged");
        QTest::addColumn<int>("fontSize");
        QTest::newRow("whole") << QByteArray("[General]\nlyricsFontSize=20\n") << false << 20;
        QTest::newRow("half") << QByteArray("[General]\nlyricsFontSize=20\nlanguage=\"d") << true << 20;
        QTest::newRow("an open quote before the rest") << QByteArray("language=\"d\nlyricsFontSize=20\n") << true << 20;
        QTest::newRow("NULs") << QByteArray(4096, '\0') << true << 12;
        QTest::newRow("random bytes") << QCryptographicHash::hash("seed", QCryptographicHash::Sha3_512) << true << 12;
        // Each list holds the next one; read as a value, they would use up the stack.
        QByteArray lists("[General]\nlyricsFontSize=20\nlanguage=@Variant(");
        for (int depth = 0; depth < 400000; ++depth)
            lists += "\\0\\0\\0\\t\\0\\0\\0\\x1";
        QTest::newRow("lists in lists without end") << lists + ")\n" << true << 20;
    }

    void aDamagedSettingsFileStopsNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, damaged);
        Stage app(content);
        QTEST(app->settings()->lyricsFontSize(), "fontSize");
        QCOMPARE(app->settingsMending().damaged, damaged);
        QFile copy(Application::settingsFile() + QLatin1String(".bad"));
        QCOMPARE(copy.exists(), damaged);
        QCOMPARE(app->settingsMending().copy, damaged ? copy.fileName() : QString());
        if (damaged) {
            QVERIFY(copy.open(QIODevice::ReadOnly));
            QCOMPARE(copy.readAll(), content);
        }
        QVERIFY(app->settings()->save());
        QVERIFY(!mendSettingsFile(Application::settingsFile()).damaged);
    }

    void theLockHasOneHolder()
    {
        const QTemporaryDir folder;
        const QString lock = folder.filePath(QStringLiteral("a.lock"));
        const SingleInstance first(lock);
        QVERIFY(first.isHolder() && !first.isOtherRunning());
        const SingleInstance second(lock);
        QVERIFY(!second.isHolder() && second.isOtherRunning());
        const SingleInstance unlockable(QStringLiteral("/proc/there is no such folder/a.lock"));
        QVERIFY(!unlockable.isHolder() && !unlockable.isOtherRunning());
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

    void searchesAreReported_data()
    {
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("both") << " Nora Vale "
                              << " Harbour " << QStringList{QStringLiteral("Nora Vale // Harbour")};
        QTest::newRow("the first alone") << "Nora Vale"
                                         << " " << QStringList{QStringLiteral("Nora Vale")};
        QTest::newRow("without the first nothing is said") << "  "
                                                           << "Harbour" << QStringList{};
    }

    void searchesAreReported()
    {
        QFETCH(QString, artist);
        QFETCH(QString, title);
        Stage app;
        QStringList labels;
        connect(&*app, &Application::usageEvent, this,
                [&labels](const QString &category, const QString &action, const QString &label) {
                    if (category == QLatin1String("usage") && action == QLatin1String("search"))
                        labels.append(label);
                });
        app->trackUsage(artist, title);
        QTEST(labels, "labels");
    }

    void theGraphicsBackendIsChosen_data()
    {
        QTest::addColumn<QByteArray>("environment");
        QTest::addColumn<QVariant>("method");
        QTest::addColumn<QByteArray>("device");
        QTest::newRow("nothing said") << QByteArray() << QVariant() << QByteArray("softwarecontext");
        QTest::newRow("software") << QByteArray() << QVariant(2) << QByteArray("softwarecontext");
        QTest::newRow("automatic") << QByteArray() << QVariant(0) << QByteArray();
        QTest::newRow("OpenGL ES") << QByteArray() << QVariant(1) << QByteArray();
        QTest::newRow("desktop OpenGL") << QByteArray() << QVariant(3) << QByteArray();
        QTest::newRow("the environment wins") << QByteArray("mine") << QVariant(2) << QByteArray("mine");
        QTest::newRow("out of range") << QByteArray() << QVariant(-7) << QByteArray("softwarecontext");
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
    QList<QUrl> m_opened;
};

QTEST_APPLESS_MAIN(tst_Application)
#include "tst_application.moc"
