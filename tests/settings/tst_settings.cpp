// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include "settings/SettingsKeys.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaProperty>
#include <QSet>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void anEmptyStoreGivesTheDefaults();
    void whatIsSavedIsLoadedWithoutASignal();
    void settersEmitOnceAndOnlyOnChange_data();
    void settersEmitOnceAndOnlyOnChange();
    void fontSizeKeepsToItsRange_data();
    void fontSizeKeepsToItsRange();
    void propertiesStandInTheirOrder();
    void oddValuesAreHarmless_data();
    void oddValuesAreHarmless();
    void secretsAreNotReadableInTheFile();
    void aSecretOfAnotherRunIsRead();
    void theTableHasDefaultsOfItsTypes();
    void aFailedSaveLosesNothing();
    void aLinkedFileStaysLinked();

private:
    QTemporaryDir m_folder;
};

void tst_Settings::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
}

void tst_Settings::init()
{
    QSettings().clear();
}

void tst_Settings::anEmptyStoreGivesTheDefaults()
{
    const QVariantMap expected{{QStringLiteral("lyricsFontSize"), 12},
                               {QStringLiteral("language"), QString()},
                               {QStringLiteral("proxyType"), 0},
                               {QStringLiteral("proxyAddress"), QString()},
                               {QStringLiteral("proxyPort"), 0},
                               {QStringLiteral("proxyAuthentication"), false},
                               {QStringLiteral("proxyUsername"), QString()},
                               {QStringLiteral("proxyPassword"), QString()},
                               {QStringLiteral("saveFilesList"), false},
                               {QStringLiteral("searchProvider"), QString()},
                               {QStringLiteral("generateLyricsFileAuto"), false},
                               {QStringLiteral("prependNewLine"), false},
                               {QStringLiteral("providersOrder"), QString()}};
    Settings settings;
    settings.load();
    for (auto value = expected.begin(); value != expected.end(); ++value)
        QCOMPARE(settings.property(value.key().toLatin1().constData()), value.value());
    QCOMPARE(settings.proxy().type(), QNetworkProxy::NoProxy);
}

void tst_Settings::whatIsSavedIsLoadedWithoutASignal()
{
    const QVariantMap values{{QStringLiteral("lyricsFontSize"), 31},
                             {QStringLiteral("language"), QStringLiteral("pt_BR")},
                             {QStringLiteral("proxyType"), 2},
                             {QStringLiteral("proxyAddress"), QStringLiteral("proxy.example")},
                             {QStringLiteral("proxyPort"), 65535},
                             {QStringLiteral("proxyAuthentication"), true},
                             {QStringLiteral("proxyUsername"), QStringLiteral("nora.vale")},
                             {QStringLiteral("proxyPassword"), QStringLiteral("swördfish, \"=;")},
                             {QStringLiteral("saveFilesList"), true},
                             {QStringLiteral("searchProvider"), QStringLiteral("Яндекс, \"=;")},
                             {QStringLiteral("generateLyricsFileAuto"), true},
                             {QStringLiteral("prependNewLine"), true},
                             {QStringLiteral("providersOrder"), QStringLiteral("Genius::0;;LyricsFreak")}};
    Settings written;
    for (auto value = values.begin(); value != values.end(); ++value)
        QVERIFY(written.setProperty(value.key().toLatin1().constData(), value.value()));
    QVERIFY2(QSettings().allKeys().isEmpty(), "a setter wrote to the store");
    QVERIFY(written.save());

    Settings loaded;
    QSignalSpy changes(&loaded, &Settings::changed);
    QSignalSpy orders(&loaded, &Settings::providersOrderChanged);
    loaded.load();
    QCOMPARE(changes.count() + orders.count(), 0);
    for (auto value = values.begin(); value != values.end(); ++value) {
        QCOMPARE(loaded.property(value.key().toLatin1().constData()), value.value());
    }
    QCOMPARE(loaded.proxy().password(), loaded.proxyPassword());
    QStringList known;
    for (const SettingsKeyRow &row : settingsKeyTable())
        known.append(row.name);
    QCOMPARE(QSet<QString>(known.begin(), known.end()).size(), known.size());
    QCOMPARE(QSettings().allKeys().size(), values.size());
    for (const QString &key : QSettings().allKeys())
        QVERIFY2(known.contains(key), qPrintable(key));
}

void tst_Settings::settersEmitOnceAndOnlyOnChange_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("changedCount");
    const QVariant text = QStringLiteral("fr");
    const QByteArray proxy(SIGNAL(proxyChanged()));
    QTest::newRow("font size") << QByteArray("lyricsFontSize") << QVariant(20) << QByteArray(SIGNAL(changed())) << 1;
    QTest::newRow("language") << QByteArray("language") << text << QByteArray(SIGNAL(languageChanged(QString))) << 1;
    QTest::newRow("proxy type") << QByteArray("proxyType") << QVariant(7) << proxy << 1;
    QTest::newRow("proxy address") << QByteArray("proxyAddress") << text << proxy << 1;
    QTest::newRow("proxy port") << QByteArray("proxyPort") << QVariant(1080) << proxy << 1;
    QTest::newRow("proxy log-in") << QByteArray("proxyAuthentication") << QVariant(true) << proxy << 1;
    QTest::newRow("proxy user") << QByteArray("proxyUsername") << text << proxy << 1;
    QTest::newRow("proxy password") << QByteArray("proxyPassword") << text << proxy << 1;
    QTest::newRow("keep the list") << QByteArray("saveFilesList") << QVariant(true)
                                   << QByteArray(SIGNAL(saveFilesListChanged(bool))) << 0;
    QTest::newRow("browser engine") << QByteArray("searchProvider") << text
                                    << QByteArray(SIGNAL(searchProviderChanged(QString))) << 0;
    QTest::newRow("text file") << QByteArray("generateLyricsFileAuto") << QVariant(true)
                               << QByteArray(SIGNAL(generateLyricsFileAutoChanged(bool))) << 0;
    QTest::newRow("line break") << QByteArray("prependNewLine") << QVariant(true)
                                << QByteArray(SIGNAL(prependNewLineChanged(bool))) << 0;
    QTest::newRow("order of sites") << QByteArray("providersOrder") << text
                                    << QByteArray(SIGNAL(providersOrderChanged(QString))) << 0;
}

void tst_Settings::settersEmitOnceAndOnlyOnChange()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, signal);
    QFETCH(int, changedCount);
    Settings settings;
    QSignalSpy own(&settings, signal.constData());
    QSignalSpy changed(&settings, &Settings::changed);
    for (int time = 0; time < 2; ++time) {
        QVERIFY(settings.setProperty(property.constData(), value));
        QCOMPARE(settings.property(property.constData()), value);
        QCOMPARE(own.count(), 1);
        QCOMPARE(changed.count(), changedCount);
    }
}

void tst_Settings::fontSizeKeepsToItsRange_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("expected");
    QTest::newRow("just too small") << 5 << 12;
    QTest::newRow("smallest") << 6 << 6;
    QTest::newRow("largest") << 40 << 40;
    QTest::newRow("just too large") << 41 << 12;
}

void tst_Settings::fontSizeKeepsToItsRange()
{
    QFETCH(int, asked);
    QFETCH(int, expected);
    Settings settings;
    settings.setLyricsFontSize(asked);
    QCOMPARE(settings.lyricsFontSize(), expected);
}

// Scenes and dialogs show them in this order.
void tst_Settings::propertiesStandInTheirOrder()
{
    const QMetaObject &meta = Settings::staticMetaObject;
    QStringList names;
    QStringList signalNames;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names.append(QString::fromLatin1(meta.property(i).name()));
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            signalNames.append(QString::fromLatin1(meta.method(i).name()));
    }
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("lyricsFontSize language proxyType proxyAddress proxyPort proxyAuthentication "
                            "proxyUsername proxyPassword saveFilesList searchProvider generateLyricsFileAuto "
                            "prependNewLine providersOrder"));
    QCOMPARE(signalNames.join(QLatin1Char(' ')),
             QStringLiteral("changed languageChanged proxyChanged saveFilesListChanged searchProviderChanged "
                            "generateLyricsFileAutoChanged prependNewLineChanged providersOrderChanged"));
}

void tst_Settings::oddValuesAreHarmless_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("expected");
    const QString size = QStringLiteral("lyricsFontSize");
    const QString port = QStringLiteral("proxy/port");
    const QString user = QStringLiteral("proxy/username");
    const QString huge = QString(1000000, QLatin1Char('9'));
    const QVariant list = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    QTest::newRow("font size: a word") << size << QVariant(QStringLiteral("big")) << QByteArray("lyricsFontSize")
                                       << QVariant(12);
    QTest::newRow("font size: too large") << size << QVariant(41) << QByteArray("lyricsFontSize") << QVariant(12);
    QTest::newRow("font size: smallest") << size << QVariant(QStringLiteral("6")) << QByteArray("lyricsFontSize")
                                         << QVariant(6);
    QTest::newRow("font size: endless") << size << QVariant(huge) << QByteArray("lyricsFontSize") << QVariant(12);
    QTest::newRow("port: past the last") << port << QVariant(65536 + 80) << QByteArray("proxyPort") << QVariant(0);
    QTest::newRow("port: negative") << port << QVariant(-1) << QByteArray("proxyPort") << QVariant(0);
    QTest::newRow("port: a list") << port << list << QByteArray("proxyPort") << QVariant(0);
    QTest::newRow("proxy type: endless") << QStringLiteral("proxy/type") << QVariant(huge) << QByteArray("proxyType")
                                         << QVariant(0);
    QTest::newRow("flag: a list") << QStringLiteral("saveFilesList") << list << QByteArray("saveFilesList")
                                  << QVariant(false);
    QTest::newRow("flag: bytes") << QStringLiteral("prependNewLine") << QVariant(QByteArray("\0\xff", 2))
                                 << QByteArray("prependNewLine") << QVariant(true);
    QTest::newRow("text: a list") << QStringLiteral("language") << list << QByteArray("language")
                                  << QVariant(QString());
    QTest::newRow("secret: readable") << user << QVariant(QStringLiteral("nora")) << QByteArray("proxyUsername")
                                      << QVariant(QString());
    QTest::newRow("secret: endless") << user << QVariant(huge) << QByteArray("proxyUsername") << QVariant(QString());
}

void tst_Settings::oddValuesAreHarmless()
{
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, expected);
    QSettings().setValue(key, stored);
    Settings settings;
    settings.load();
    QCOMPARE(settings.property(property.constData()).toString(), expected.toString());
    QVERIFY(settings.save());
}

void tst_Settings::secretsAreNotReadableInTheFile()
{
    Settings settings;
    settings.setProxyUsername(QStringLiteral("noravale"));
    settings.setProxyPassword(QStringLiteral("swordfish"));
    QVERIFY(settings.save());
    QFile file(QSettings().fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains("\n[proxy]\n") && content.contains("password=") && content.contains("username="));
    for (const char *secret : {"noravale", "swordfish"}) {
        QVERIFY(!content.contains(secret));
        QVERIFY(!content.contains(QByteArray(secret).toBase64().left(8)));
    }
}

// Nothing but the fixed key is needed; the figures are from outside.
void tst_Settings::aSecretOfAnotherRunIsRead()
{
    QSettings().setValue(QStringLiteral("proxy/password"), QStringLiteral("AwJvxEdKnzXGn5ZLqL4="));
    Settings settings;
    settings.setProxyUsername(QStringLiteral("kept, as its key is absent"));
    settings.load();
    QCOMPARE(settings.proxyPassword(), QStringLiteral("swordfish"));
    QCOMPARE(settings.proxyUsername(), QStringLiteral("kept, as its key is absent"));
}

void tst_Settings::theTableHasDefaultsOfItsTypes()
{
    const QVector<SettingsKeyRow> table = settingsKeyTable();
    for (const SettingsKeyRow &row : table) {
        QVERIFY2(!row.defaultValue.isValid() || row.defaultValue.userType() == row.type, qPrintable(row.name));
        QVERIFY2(!row.meaning.isEmpty(), qPrintable(row.name));
    }
    QCOMPARE(table.last().name, QStringLiteral("endpoints/Yandex"));
    QCOMPARE(storedValue(QSettings(), SettingsKey::OpenGlMethod), QVariant(2));
    QCOMPARE(storedValue(QSettings(), SettingsKey::UpdaterPeriod), QVariant(1440));
    QVERIFY(!storedValue(QSettings(), SettingsKey::UsageStatistics).isValid());
}

// A limit of the process stands in for a disk that becomes full after so many bytes.
void tst_Settings::aFailedSaveLosesNothing()
{
    QSettings().setValue(QStringLiteral("filesList"), QString(500, QLatin1Char('a')));
    Settings settings;
    settings.setLanguage(QStringLiteral("de"));
    QVERIFY(settings.save());
    QFile file(QSettings().fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    settings.setLanguage(QStringLiteral("fr"));
    signal(SIGXFSZ, SIG_IGN);
    rlimit usual = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    for (int room = 0; room < before.size(); room += 3) {
        const rlimit full{static_cast<rlim_t>(room), usual.rlim_max};
        QTest::ignoreMessage(QtWarningMsg, "The settings cannot be stored: their file cannot be written.");
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
        const bool saved = settings.save();
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
        QVERIFY2(!saved, qPrintable(QString::number(room)));
        QFile kept(file.fileName());
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), before);
    }
    QCOMPARE(QDir(QFileInfo(file).path()).entryList(QDir::Files), QStringList{QFileInfo(file).fileName()});
    QVERIFY(settings.save());
    QCOMPARE(QSettings().value(QStringLiteral("language")).toString(), QStringLiteral("fr"));
    QCOMPARE(QSettings().value(QStringLiteral("filesList")).toString().size(), 500);
}

// Settings of people who keep them elsewhere stay there, with their permissions.
void tst_Settings::aLinkedFileStaysLinked()
{
    const QString path = QSettings().fileName();
    const QString elsewhere = m_folder.filePath(QStringLiteral("elsewhere.conf"));
    QVERIFY(QFile::remove(path) || !QFile::exists(path));
    QFile file(elsewhere);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(file.link(path));
    QVERIFY(Settings().save());
    QVERIFY(QFileInfo(path).isSymLink());
    QVERIFY(QFileInfo(elsewhere).size() > 0);
    QCOMPARE(QFile::permissions(elsewhere) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QVERIFY(QFile::remove(path));
}

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
