// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

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
    Settings settings;
    settings.load();
    QCOMPARE(settings.lyricsFontSize(), 12);
    QCOMPARE(settings.language(), QString());
    QCOMPARE(settings.saveFilesList(), false);
    QCOMPARE(settings.searchProvider(), QString());
    QCOMPARE(settings.generateLyricsFileAuto(), false);
    QCOMPARE(settings.prependNewLine(), false);
    QCOMPARE(settings.providersOrder(), QString());
}

void tst_Settings::whatIsSavedIsLoadedWithoutASignal()
{
    const QVariantMap values{{QStringLiteral("lyricsFontSize"), 31},
                             {QStringLiteral("language"), QStringLiteral("pt_BR")},
                             {QStringLiteral("saveFilesList"), true},
                             {QStringLiteral("searchProvider"), QStringLiteral("Яндекс, \"=;")},
                             {QStringLiteral("generateLyricsFileAuto"), true},
                             {QStringLiteral("prependNewLine"), true},
                             {QStringLiteral("providersOrder"), QStringLiteral("Genius::0;;LyricsFreak")}};
    Settings written;
    for (auto value = values.begin(); value != values.end(); ++value)
        QVERIFY(written.setProperty(value.key().toLatin1().constData(), value.value()));
    QVERIFY2(QSettings().allKeys().isEmpty(), "a setter wrote to the store");
    written.save();

    Settings loaded;
    QSignalSpy changes(&loaded, &Settings::changed);
    QSignalSpy orders(&loaded, &Settings::providersOrderChanged);
    loaded.load();
    QCOMPARE(changes.count() + orders.count(), 0);
    for (auto value = values.begin(); value != values.end(); ++value) {
        QCOMPARE(loaded.property(value.key().toLatin1().constData()), value.value());
        QVERIFY2(QSettings().contains(value.key()), qPrintable(value.key()));
    }
}

void tst_Settings::settersEmitOnceAndOnlyOnChange_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("changedCount");
    const QVariant text = QStringLiteral("fr");
    QTest::newRow("font size") << QByteArray("lyricsFontSize") << QVariant(20) << QByteArray(SIGNAL(changed())) << 1;
    QTest::newRow("language") << QByteArray("language") << text << QByteArray(SIGNAL(languageChanged(QString))) << 1;
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

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
