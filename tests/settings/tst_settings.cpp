// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "settings/SettingsCopy.h"
#include "settings/SettingsFile.h"
#include "settings/SettingsKeys.h"
#include "support/AsOrdinaryUser.h"
#include "support/FullDisk.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QFile>
#include <QFileInfo>
#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <optional>

#include <unistd.h>

namespace {

struct Preference
{
    const char *name;
    QVariant byDefault;
    QVariant other;
    bool isFollowedByChanged;
};

const QVector<Preference> preferences{
    {"lyricsFontSize", 12, 31, true},
    {"language", QString(), "pt_BR"_s, true},
    {"proxyType", 0, 2, true},
    {"proxyAddress", QString(), "proxy.example"_s, true},
    {"proxyPort", 0, 65535, true},
    {"proxyAuthentication", false, true, true},
    {"proxyUsername", QString(), "noravale"_s, true},
    {"proxyPassword", QString(), "swordfish, \"ö=;"_s, true},
    {"saveFilesList", false, true, false},
    {"searchProvider", QString(), "Яндекс, \"=;"_s, false},
    {"generateLyricsFileAuto", false, true, false},
    {"prependNewLine", false, true, false},
    {"providersOrder", QString(), "Genius::0;;X"_s, false},
};

} // namespace

class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_path = m_folder.holdSettings(); }
    void init() { QSettings().clear(); }

    void settersEmitOnceAndOnlyOnChange()
    {
        Settings settings;
        QCOMPARE(settings.metaObject()->propertyCount() - settings.metaObject()->propertyOffset(), preferences.size());
        for (const Preference &row : preferences) {
            const int property = settings.metaObject()->indexOfProperty(row.name);
            QSignalSpy own(&settings, settings.metaObject()->property(property).notifySignal());
            QSignalSpy changed(&settings, &Settings::changed);
            for (int time = 0; time < 2; ++time) {
                QVERIFY(settings.setProperty(row.name, row.other));
                QCOMPARE(settings.property(row.name), row.other);
                QCOMPARE(own.count(), 1);
                QCOMPARE(changed.count(), row.isFollowedByChanged ? 1 : 0);
            }
        }
        for (const int size : {5, 6, 40, 41})
            settings.setLyricsFontSize(size);
        QCOMPARE(settings.lyricsFontSize(), 40);
        QVERIFY2(QSettings().allKeys().isEmpty(), "a setter wrote to the store");
    }

    void whatIsSavedIsLoadedWithoutASignal()
    {
        Settings written;
        written.load(); // from a store without any key
        for (const Preference &row : preferences) {
            QCOMPARE(written.property(row.name), row.byDefault);
            QVERIFY(written.setProperty(row.name, row.other));
        }
        QVERIFY(written.save());
        const QByteArray content = m_folder.read(m_path);
        for (const QByteArray secret : {"noravale", "swordfish"})
            QVERIFY(!content.contains(secret) && !content.contains(secret.toBase64().left(8)));

        Settings loaded;
        QSignalSpy changes(&loaded, &Settings::changed);
        QSignalSpy orders(&loaded, &Settings::providersOrderChanged);
        loaded.load();
        QCOMPARE(changes.count() + orders.count(), 0);
        for (const Preference &row : preferences)
            QCOMPARE(loaded.property(row.name), row.other);
        QCOMPARE(loaded.proxy().password(), loaded.proxyPassword());
    }

    void oddValuesAreHarmless_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("expected");
        addTextColumns("key", "property");
        const auto row = [](const char *name, const char *key, const char *property, const QVariant &stored,
                            const QVariant &expected) {
            addRow(name, stored, expected, key, property);
        };
        const QString huge(1000000, QLatin1Char('9'));
        row("just too small", "lyricsFontSize", "lyricsFontSize", 5, 12);
        row("smallest", "lyricsFontSize", "lyricsFontSize", 6, 6);
        row("largest", "lyricsFontSize", "lyricsFontSize", 40, 40);
        row("just too large", "lyricsFontSize", "lyricsFontSize", 41, 12);
        row("20 more than there are numbers", "lyricsFontSize", "lyricsFontSize", (1LL << 32) + 20, 12);
        row("no number", "proxy/type", "proxyType", huge, 0);
        row("past the last port", "proxy/port", "proxyPort", 65536 + 80, 0);
        row("a list where a number should be", "proxy/port", "proxyPort", QStringList{"1"_s, "2"_s}, 0);
        row("a secret in plain", "proxy/username", "proxyUsername", "nora"_s, QString());
        row("an endless secret", "proxy/username", "proxyUsername", huge, QString());
        row("a flag by another word", "saveFilesList", "saveFilesList", "True"_s, true);
        row("a flag by its number", "saveFilesList", "saveFilesList", 1, true);
        for (const char *word : {"no", "off", "banana", "2", "false"})
            row(word, "saveFilesList", "saveFilesList", QString::fromLatin1(word), false);
    }

    void oddValuesAreHarmless()
    {
        QFETCH(QVariant, stored);
        QFETCH(QVariant, expected);
        QFETCH(QString, key);
        QFETCH(QString, property);
        QSettings().setValue(key, stored);
        Settings settings;
        settings.load();
        QCOMPARE(settings.property(property.toLatin1().constData()).toString(), expected.toString());
    }

    void theWidthOfTheListIsBounded()
    {
        const QVariantList unusable{QVariant(), 3, 2000000, (1LL << 32) + 300, "wide"_s};
        for (const QVariant &width : unusable) {
            QSettings().setValue("listWidth"_s, width);
            QVERIFY2(!storedListWidth(QSettings()), qPrintable(width.toString()));
        }
        QSettings().setValue("listWidth"_s, "300"_s);
        QCOMPARE(storedListWidth(QSettings()).value_or(0), 300);
    }

    // Nothing but the fixed key is needed; the figures are from outside.
    void aSecretOfAnotherRunIsRead()
    {
        QSettings().setValue("proxy/password"_s, "AwJvxEdKnzXGn5ZLqL4="_s);
        Settings settings;
        settings.setProxyUsername("kept, as its key is absent"_s);
        settings.load();
        QCOMPARE(settings.proxyPassword(), "swordfish"_s);
        QCOMPARE(settings.proxyUsername(), "kept, as its key is absent"_s);
    }

    // A limit of the process stands in for a disk that becomes full after so many bytes.
    void aFailedSaveLosesNothing()
    {
        QSettings().setValue("filesList"_s, QString(500, QLatin1Char('a')));
        Settings settings;
        QVERIFY(settings.save());
        const QByteArray before = m_folder.read(m_path);
        settings.setLanguage("fr"_s);
        for (int room = 0; room < before.size(); room += 3) {
            QTest::ignoreMessage(QtWarningMsg, "The settings cannot be stored: their file cannot be written.");
            std::optional<FullDisk> disk(room);
            const bool saved = settings.save();
            disk.reset();
            QVERIFY2(!saved, qPrintable(QString::number(room)));
            QCOMPARE(m_folder.read(m_path), before);
        }
        QCOMPARE(m_folder.names(QFileInfo(m_path).path()), QStringList{QFileInfo(m_path).fileName()});
        QVERIFY(settings.save());
        QCOMPARE(QSettings().value("language"_s).toString(), "fr"_s);
        QCOMPARE(QSettings().value("filesList"_s).toString().size(), 500);
    }

    void whatOthersWroteMeanwhileStopsNoSave()
    {
        Settings settings;
        QVERIFY(settings.save());
        const QByteArray before = m_folder.read(m_path);
        m_folder.write(m_path, before + "\n[other]\nname=x\nsize=@Size(1 2)\n");
        settings.setLyricsFontSize(21);
        QVERIFY(settings.save());
        QCOMPARE(QSettings().value("lyricsFontSize"_s).toInt(), 21);
        QCOMPARE(QSettings().value("other/name"_s).toString(), "x"_s);
        QVERIFY(m_folder.read(m_path + QLatin1String(".bad")).contains("@Size"));
        QVERIFY(QFile::remove(m_path + QLatin1String(".bad")));
    }

    void whatIsStoredAlreadyIsNotWritten()
    {
        SettingsChange change;
        change.set(SettingsKey::FirstStart, "1.5.6"_s);
        change.set(SettingsKey::ListWidth, 300);
        change.set(SettingsKey::FilesList, QStringList{"file:///a"_s, "file:///b"_s});
        Settings settings;
        settings.setProxyPassword("swordfish"_s);
        settings.setPrependNewLine(true);
        settings.addTo(&change);
        QVERIFY(change.commit());
        // A comment, which no write would keep, tells whether there was one.
        const QByteArray padded = m_folder.read(m_path) + "; a note\n";
        m_folder.write(m_path, padded);
        settings.addTo(&change); // the secrets anew
        QVERIFY(change.commit());
        QCOMPARE(m_folder.read(m_path), padded);
        change.set(SettingsKey::PrependNewLine, false);
        QVERIFY(change.commit());
        QVERIFY(m_folder.read(m_path).contains("prependNewLine=false"));
    }

    void theKeptListOutlivesSmallChanges_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray list("filesList=file:///a, \"file:///b;c,[General]\", file:///d%20e\n");
        const QByteArray general("[General]\n");
        const QByteArray proxy("\n[proxy]\naddress=[General]\n");
        addRow("between others", general + "language=de\n" + list + "FirstStart=1.5.6\n" + proxy);
        addRow("alone in its group", general + list + proxy);
        addRow("without any group", list + proxy);
        addRow("behind another group", proxy + '\n' + general + list);
        addRow("twice", general + "filesList=file:///old\n" + list);
        addRow("in two groups", general + list + "\n[other]\n" + list);
        addRow("of another group", general + "language=de\n\n[other]\n" + list);
    }

    void theKeptListOutlivesSmallChanges()
    {
        QFETCH(QByteArray, content);
        m_folder.write(m_path, content);
        QVariantMap expected = stored();
        QVERIFY(!expected.isEmpty());
        for (const QVariant &width : {QVariant("300"_s), QVariant()}) { // stored, and removed
            SettingsChange change;
            change.set(SettingsKey::ListWidth, width);
            QVERIFY(change.commit());
            if (width.isValid())
                expected.insert("listWidth"_s, width);
            else
                expected.remove("listWidth"_s);
            QCOMPARE(stored(), expected);
            QVERIFY(!checkSettingsFile(m_folder.read(m_path)).damaged);
        }
    }

    void aStoredFileThatLostItsEndIsDamaged()
    {
        QVERIFY(Settings().save());
        const QByteArray content = m_folder.read(m_path);
        QVERIFY(!checkSettingsFile(content).damaged);
        for (int length = content.indexOf('\n') + 1; length > 0 && length < content.size();
             length = content.indexOf('\n', length) + 1)
            QVERIFY2(checkSettingsFile(content.left(length)).damaged, content.left(length).constData());
    }

    void noOtherFileCounts()
    {
        m_folder.write("Quillmarsh.conf"_s, "usageStatistics=true\n");
        QVERIFY(QSettings().value("usageStatistics"_s).toBool());
        QVERIFY(!storedValue(SettingsStore(), SettingsKey::UsageStatistics).isValid());
        QVERIFY(QFile::remove(m_folder.path("Quillmarsh.conf"_s)));
    }

    void onlyOwnLeftoversAreRemoved()
    {
        for (const char *end : {".AbCdEf.part", ".AbCdEf.part.lock", ".backup", ".bad"})
            m_folder.write(m_path + QLatin1String(end));
        SettingsCopy::removeLeft(m_path);
        QStringList names = m_folder.names(QFileInfo(m_path).path());
        names.removeOne("Versewell.conf"_s);
        QCOMPARE(names, (QStringList{"Versewell.conf.backup"_s, "Versewell.conf.bad"_s}));
        for (const QString &name : names)
            QVERIFY(QFile::remove(QFileInfo(m_path).path() + QLatin1Char('/') + name));
    }

    // Settings of people who keep them elsewhere stay there, with their permissions and their owner.
    void aLinkedFileStaysLinked()
    {
        QVERIFY(QFile::remove(m_path) || !QFile::exists(m_path));
        QFile file(m_folder.write("elsewhere.conf"_s));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && file.link(m_path));
        const bool isRoot = getuid() == 0; // who may write for others
        QVERIFY(!isRoot || chown(QFile::encodeName(file.fileName()).constData(), AsOrdinaryUser::nobody, 0) == 0);
        const uint owner = QFileInfo(file).ownerId();
        QVERIFY(Settings().save());
        QVERIFY(QFileInfo(m_path).isSymLink() && QFileInfo(file).size() > 0);
        QCOMPARE(QFileInfo(file.fileName()).ownerId(), owner);
        QCOMPARE(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        QVERIFY(QFile::remove(m_path));
    }

private:
    static QVariantMap stored()
    {
        const SettingsStore store;
        QVariantMap values;
        const QStringList keys = store.allKeys();
        for (const QString &key : keys)
            values.insert(key, store.value(key));
        return values;
    }

    TestFolder m_folder;
    QString m_path;
};

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
