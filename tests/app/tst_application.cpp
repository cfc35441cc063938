// SPDX-License-Identifier: MIT
#include "app/Application.h"

#include "app/GraphicsBackend.h"
#include "app/Stage.h"
#include "support/AsOrdinaryUser.h"
#include "support/FullDisk.h"
#include "support/TestTable.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QNetworkProxy>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

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
        addRow("urls", QVariant(QStringList{QUrl::fromLocalFile(mp3).toString(), flacUrl}), true,
               QStringList{mp3, flac});
        addRow("paths", QVariant(QStringList{flac, mp3}), true, QStringList{flac, mp3});
        addRow("a list of one, which the store keeps as a text", QVariant(flacUrl), true, QStringList{flac});
        addRow("nonsense among the files",
               QVariant(QStringList{QString(), "http://[::bad"_s, flac, sample("gone.mp3")}), true, QStringList{flac});
        addRow("a number", QVariant(17), true, QStringList{});
        addRow("not wanted", QVariant(QStringList{flac}), false, QStringList{});
    }

    void theSavedListIsRestored()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, wanted);
        QFETCH(QStringList, expected);
        Stage app({{"filesList"_s, stored}, {"saveFilesList"_s, wanted}});
        QVERIFY(app->mainModel()->urls().isEmpty());
        app->restoreFilesList();
        QCOMPARE(app->mainModel()->isRestoring(), wanted && stored.canConvert<QStringList>());
        app->mainModel()->restore();
        QTRY_VERIFY(!app->mainModel()->isRestoring());
        QTRY_COMPARE(app->mainModel()->urls().size(), expected.size());
        QTRY_COMPARE(app->mainModel()->rowCount(), expected.size());
        for (int row = 0; row < expected.size(); ++row)
            QCOMPARE(app->mainModel()->itemAt(row)->url().toLocalFile(), expected.at(row));
    }

    void servicesAreWired()
    {
        Stage app({{"providersOrder"_s, " lyricsfreak ;;Nobody"_s},
                   {"proxy/type"_s, 1},
                   {"proxy/address"_s, "127.0.0.1"_s},
                   {"proxy/port"_s, 9}});
        QCOMPARE(app->networkManager()->proxy(), QNetworkProxy(QNetworkProxy::Socks5Proxy, "127.0.0.1"_s, 9));
        QCOMPARE(app->mainModel()->supportedTypesMask(" "_s),
                 "*.aifc *.aiff *.aif *.opus *.aac *.ogg *.wma *.alac *.ape *.flac *.m4p *.m4a *.mp3"_s);
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Base, QColor(1, 2, 3));
        QApplication::setPalette(palette); // as the desktop does when its theme changes
        QCOMPARE(app->appPalette()->value("listBackground"_s).value<QColor>(), QColor(1, 2, 3));
        QCOMPARE(app->settings()->providersOrder(), app->lyricsSearch()->providersOrder());
        QVERIFY(!app->settings()->providersOrder().contains(QLatin1String("Nobody")));
        app->settings()->setProvidersOrder("LyricsFreak::0"_s);
        QVERIFY(app->lyricsSearch()->providersOrder().contains(QLatin1String("LyricsFreak::0")));
    }

    void aDamagedSettingsFileIsMended()
    {
        Stage app({}, [&](const Stage &stage) {
            stage.folder.write(stage.settingsFile, endlessLists());
            stage.folder.write(stage.settingsFile + QLatin1String(".AbCdEf.part")); // of a program that was killed
        });
        QCOMPARE(app->settings()->lyricsFontSize(), 20);
        QVERIFY(!QFile::exists(app.settingsFile + QLatin1String(".AbCdEf.part")));
        QVERIFY(app->settingsMending().damaged && app->areSettingsStored());
        QCOMPARE(app->settingsMending().copy, app.settingsFile + QLatin1String(".bad"));
        QCOMPARE(app.folder.read(app->settingsMending().copy), endlessLists());
        QVERIFY(app->settings()->save());
        QVERIFY(app.folder.read(app.settingsFile).contains("lyricsFontSize=20\n"));
    }

    void aSettingsFileThatMustNotBeReadIsNotRead_data()
    {
        QTest::addColumn<Step>("obstacle");
        QTest::addColumn<int>("fontSize");
        addRow("all names for a copy are taken", Step(takeAllNames), 20);
        addRow("the folder cannot be written to", Step(forbidWriting), 20);
        addRow("the disk is full", Step(fillDisk), 12);
        addRow("another instance runs", Step(runAnother), 20);
    }

    void aSettingsFileThatMustNotBeReadIsNotRead()
    {
        QFETCH(Step, obstacle);
        QStringList namesBefore;
        Stage app({{"saveFilesList"_s, true}}, [&](const Stage &stage) {
            stage.folder.write(stage.settingsFile, endlessLists());
            obstacle(stage);
            namesBefore = stage.folder.names("Quillmarsh"_s);
        });
        const int fontSize = app->settings()->lyricsFontSize();
        const bool isStored = app->settings()->save();
        m_user.reset();
        m_other.reset();
        m_disk.reset();
        QTEST(fontSize, "fontSize");
        QVERIFY(!isStored && !app->areSettingsStored());
        QVERIFY(app->settingsMending().damaged && app->settingsMending().copy.isEmpty());
        QCOMPARE(app.folder.read(app.settingsFile), endlessLists());
        const QStringList names = app.folder.names("Quillmarsh"_s);
        QCOMPARE(names.filter("Versewell.conf"_s), namesBefore.filter("Versewell.conf"_s));
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

    void whatCannotBeStoredIsTold()
    {
        Stage app;
        QSignalSpy told(&*app, &Application::settingsNotStored);
        QVERIFY(app->settings()->save() && told.isEmpty());
        app->settings()->setLanguage("fr"_s);
        m_disk = std::make_unique<FullDisk>();
        QVERIFY(!app->settings()->save());
        m_disk.reset();
        QVERIFY(told.size() == 1 && !app->areSettingsStored());
    }

    void onlyALockThatSomebodyHoldsCounts_data()
    {
        QTest::addColumn<QByteArray>("content");
        addRow("of another machine", QByteArray("1\nversewell\nelsewhere\n0123456789abcdef\nfedcba\n"));
        addRow("empty", QByteArray());
        addRow("NULs", QByteArray(50, '\0'));
    }

    void onlyALockThatSomebodyHoldsCounts()
    {
        QFETCH(QByteArray, content);
        const TestFolder folder;
        const QString path = folder.write("a.lock"_s, content);
        const SingleInstance first(path);
        QVERIFY(first.isHolder() && !first.isOtherRunning());
        folder.write(path, content); // as another machine sees it
        QVERIFY(SingleInstance(path).isOtherRunning());
    }

    // The lock cannot be made, so that somebody else may be using the list.
    void withoutTheLockNoListIsRestoredOrStored()
    {
        Stage app({{"saveFilesList"_s, true}, {"filesList"_s, sample("plain.flac")}}, forbidWriting);
        m_user.reset();
        QVERIFY(!app->isOtherInstanceRunning());
        QVERIFY(app->settings()->saveFilesList() && !app->settings()->keepsFilesList());
        QCOMPARE(app->mainModel()->urls(), QList<QUrl>());
    }

    void makerPagesAreOpenedOnce_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        addTextColumns("pages");
        const std::pair<QString, QVariant> site("endpoints/Maker"_s, "http://127.0.0.1:9"_s);
        addRow("the first start", QVariantMap{site}, "http://127.0.0.1:9/versewell/welcome.html");
        addRow("a start after an update", QVariantMap{site, {"FirstStart"_s, "1.5.5"_s}},
               "http://127.0.0.1:9/versewell/update.html");
        addRow("another start", QVariantMap{site, {"FirstStart"_s, "1.5.6"_s}}, "");
        addRow("no pages wanted", QVariantMap{site, {"openQuillmarshSite"_s, false}}, "");
        addRow("a build without a maker's site", QVariantMap(), "");
    }

    void makerPagesAreOpenedOnce()
    {
        QFETCH(QVariantMap, stored);
        Stage app(stored);
        m_opened.clear();
        for (const QString &scheme : {"http"_s, "https"_s})
            QDesktopServices::setUrlHandler(scheme, this, "noteOpenedUrl");
        app->noteStart();
        app->noteStart();
        QTEST(QUrl::toStringList(m_opened).join(QLatin1Char(' ')), "pages");
        QCOMPARE(QSettings().value("FirstStart"_s).toString(), "1.5.6"_s);
    }

    void languagesAreFoundAndChosen_data()
    {
        addTextColumns("files", "chosen", "languages", "locale");
        addRow("no translations", "", "de", "en", "en");
        addRow("English comes first when it has no file", "tst_application.pt_BR tst_application.de other.fr", "pt_BR",
               "en de pt_BR", "pt_BR");
        addRow("English keeps its place when it has one", "tst_application.de tst_application.en", "", "de en", "en");
        addRow("a language that is not there", "tst_application.de", "xx", "en de", "en");
    }

    void languagesAreFoundAndChosen()
    {
        QFETCH(QString, files);
        QFETCH(QString, chosen);
        QFETCH(QString, locale);
        Stage app({{"language"_s, chosen}});
        QDir folder(Application::applicationDirPath() + QLatin1String("/locale"));
        QVERIFY(folder.removeRecursively() && folder.mkpath("."_s));
        for (const QString &name : files.split(QLatin1Char(' ')))
            QVERIFY(QFile(folder.filePath(name + ".qm"_s)).open(QIODevice::WriteOnly));
        app->setUpLanguages();
        QTEST(app->property("languageList").toStringList().join(QLatin1Char(' ')), "languages");
        QCOMPARE(QLocale(), QLocale(locale));
        app->settings()->setLanguage("en"_s);
        QCOMPARE(QLocale(), QLocale("en"_s));
        QVERIFY(folder.removeRecursively());
    }

    void theGraphicsBackendIsChosen_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        addTextColumns("environment", "device");
        addRow("nothing said", QVariantMap(), "", "softwarecontext");
        addRow("automatic", QVariantMap{{"openGlMethod"_s, 0}}, "", "");
        addRow("the environment wins", QVariantMap{{"openGlMethod"_s, 2}}, "mine", "mine");
        addRow("more than there are numbers", QVariantMap{{"openGlMethod"_s, 1LL << 32}}, "", "softwarecontext");
    }

    void theGraphicsBackendIsChosen()
    {
        QFETCH(QVariantMap, stored);
        QFETCH(QString, environment);
        Stage app(stored);
        qputenv("QMLSCENE_DEVICE", environment.toLatin1());
        chooseGraphicsBackend();
        QTEST(qEnvironmentVariable("QMLSCENE_DEVICE"), "device");
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

    static void takeAllNames(const Stage &stage)
    {
        for (int i = 1; i <= 99; ++i)
            stage.folder.write(stage.settingsFile + (i == 1 ? ".bad"_s : ".bad.%1"_s.arg(i)), "other");
    }

    static void fillDisk(const Stage &) { m_disk = std::make_unique<FullDisk>(); }
    static void runAnother(const Stage &stage) { m_other = std::make_unique<SingleInstance>(stage.lockFile()); }

    QList<QUrl> m_opened;
    // What the obstacles put up until a test has looked.
    static inline std::unique_ptr<AsOrdinaryUser> m_user;
    static inline std::unique_ptr<SingleInstance> m_other;
    static inline std::unique_ptr<FullDisk> m_disk;
};

QTEST_APPLESS_MAIN(tst_Application)
#include "tst_application.moc"
