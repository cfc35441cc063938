// SPDX-License-Identifier: MIT
#include "settings/SettingsFile.h"

#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

#include <sys/stat.h>

namespace {

const QByteArray good("[General]\nlanguage=de\nlyricsFontSize=20\n\n[proxy]\ntype=1\n");
const QByteArray bad(good + "oops\n");
const char *const cannotBeMended = "The settings file is damaged and cannot be mended.";

SettingsMending mend(const QString &path)
{
    return mendSettingsFile(path, SettingsFileAccess::Mend);
}

} // namespace

class tst_SettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void damageIsFoundAndTakenOut_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("readable");
        QTest::addColumn<bool>("damaged");
        const QByteArray general("[General]\n");
        const QByteArray size("lyricsFontSize=20\n");
        const auto row = [](const char *name, const QByteArray &content, const QByteArray &readable) {
            addRow(name, content, readable, true);
        };
        const auto wholeRow = [](const char *name, const QByteArray &content) {
            addRow(name, content, content, false);
        };
        const auto untidyRow = [](const char *name, const QByteArray &content, const QByteArray &readable) {
            addRow(name, content, readable, false);
        };
        row("nothing", "", "");
        wholeRow("a comment, blanks, a key before any group", "; a = \"note\n\n lyricsFontSize = 20 ; points\n");
        wholeRow("an escaped quote, a list, a longer at sign",
                 "[a%20b]\nx\\y=\"a\\\", b\", @@Variant(1), c@Variant(\n");
        wholeRow("line ends of another system", "[General]\r\nlyricsFontSize=20\r\n");

        untidyRow("a last line without its end", general + size + "language=d", general + size + "language=d\n");
        untidyRow("a comment of another kind", general + "# hello\n#language=fr\n" + size, general + size);
        untidyRow("a byte order mark", "\xef\xbb\xbf" + general + size, general + size);

        untidyRow("a cut word", "[proxy]\nusername=ab", "[proxy]\nusername=ab\n");
        row("a cut kind of proxy", general + size + "[proxy]\ntype=", general + size + "[proxy]\n");
        row("a cut address", general + size + "[proxy]\naddress=10.0.0.1", general + size + "[proxy]\n");
        row("cut in a quote", general + size + "filesList=\"file:///a", general + size);
        row("cut in an escape", general + size + "language=a\\", general + size);
        row("entries of a broken group", general + size + "[pro\ntype=1\n[updater]\nperiod=5\n",
            general + size + "[updater]\nperiod=5\n");
        row("text after a group", "[proxy]x\ntype=1\n" + general + size, general + size);
        row("a group without a name", "[]\ntype=1\n" + general + size, general + size);
        row("a NUL in a value", general + QByteArray("language=d\0e\n", 13) + size, general + size);
        row("a control character in a key", general + "lang\x01=de\n" + size, general + size);
        row("an open quote", general + "language=\"de\n" + size, general + size);
        row("neither key nor equals sign", general + "hello\n=5\n" + size, general + size);
        row("two bytes a letter", QByteArray("\xff\xfe[\0a\0]\0\n\0b\0=\0c\0\n\0", 18), "");
        row("types that are never stored, also in disguise",
            general +
                "a=@Variant(\\0\\0)\nb=1, \"@DateTime(\\0)\"\na=\\x40Variant(\\0)\nb=\\x10040Variant(\n"
                "c=1, \"\\100Variant(\"\nd=\\q@Variant(\ne=@Va\\x72iant(\nf=\\x@Variant(\ng=\"\"@Variant(\n" +
                size,
            general + size);
    }

    void damageIsFoundAndTakenOut()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, readable);
        const SettingsFileCheck check = checkSettingsFile(content);
        QTEST(check.damaged, "damaged");
        QCOMPARE(check.readable, readable);
        QCOMPARE(check.clean, content == readable);
        QVERIFY2(checkSettingsFile(readable).clean, "what is left is to be mended again");
        const TestFolder folder;
        const QSettings store(folder.write("a.conf"_s, readable), QSettings::NativeFormat);
        QCOMPARE(store.allKeys().size(), check.entries);
        QCOMPARE(store.status(), QSettings::NoError);
    }

    void whatTheStoreWritesIsNoDamage()
    {
        const TestFolder folder;
        const QString path = folder.path("store.conf"_s);
        QByteArray bytes;
        QString letters;
        for (int i = 0; i < 512; ++i) {
            bytes.append(static_cast<char>(i));
            letters.append(QChar(i));
        }
        QStringList list;
        for (int i = 0; i < letters.size(); ++i)
            list.append(letters.mid(i, 3));
        {
            QSettings store(path, QSettings::NativeFormat);
            store.setValue("geometry"_s, bytes);
            store.setValue("letters"_s, letters);
            store.setValue("list"_s, list);
            store.setValue("empty list"_s, QStringList());
            store.setValue("blank"_s, " @proxy.example"_s);
            store.setValue("signs"_s, "@Variant(x), @Invalid() \"@DateTime("_s);
            store.setValue(letters.mid(1) + "/[x]=;ключ"_s, "\\ "_s);
        }
        const QByteArray content = folder.read(path);
        QVERIFY(content.size() > 1000);
        QVERIFY2(checkSettingsFile(content).clean, content.constData());
    }

    void everyCutIsNoticed()
    {
        for (int length = 1; length < good.size(); ++length) {
            const SettingsFileCheck check = checkSettingsFile(good.left(length));
            QCOMPARE(check.clean, good.at(length - 1) == '\n');
            QVERIFY(check.readable.startsWith(good.left(good.lastIndexOf('\n', length - 1) + 1)));
        }
    }

    void aDamagedFileIsKeptAside()
    {
        const TestFolder folder;
        const QString path = folder.path("a.conf"_s);
        const QString first = path + QLatin1String(".bad");
        QVERIFY(!mend(path).damaged); // there is none
        for (const QByteArray &harmless : {good, good + "#\n"}) {
            QVERIFY(QFile::setPermissions(folder.write(path, harmless), QFile::ReadOwner | QFile::WriteOwner));
            QVERIFY(!mend(path).damaged);
            QCOMPARE(folder.read(path), good);
            QVERIFY(!QFile::exists(first));
        }
        for (int time = 0; time < 2; ++time) { // the same damage needs no second copy
            folder.write(path, bad);
            const SettingsMending mending = mend(path);
            QVERIFY(mending.damaged && !mending.standIn);
            QCOMPARE(mending.copy, first);
            QCOMPARE(folder.read(path), good);
        }
        folder.write(path, "other\n");
        QCOMPARE(mend(path).copy, first + QLatin1String(".2"));
        QCOMPARE(folder.read(path), QByteArray());
        QCOMPARE(folder.read(first), bad);
        QCOMPARE(folder.read(first + QLatin1String(".2")), QByteArray("other\n"));
        QCOMPARE(QFile::permissions(first) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    // Where no copy can be made, the damaged file is the only one there is; something else is read.
    void whatCannotBeMendedIsLeftAlone()
    {
        const TestFolder folder;
        const QString noRoom = folder.write(QString(253, QLatin1Char('a')), bad); // none for ".bad" in the name
        const QString others = folder.write("a.conf"_s, bad);
        for (const auto &[path, access] :
             {std::pair(noRoom, SettingsFileAccess::Mend), std::pair(others, SettingsFileAccess::Look)}) {
            QTest::ignoreMessage(QtWarningMsg, cannotBeMended);
            const SettingsMending mending = mendSettingsFile(path, access);
            QVERIFY(mending.damaged && mending.copy.isEmpty());
            QCOMPARE(mending.standIn, std::optional<QByteArray>(good));
            QCOMPARE(folder.read(path), bad);
        }
        QCOMPARE(folder.names().size(), 2);
    }

    void whatIsNoFileIsNotOpened()
    {
        const TestFolder folder;
        const QString pipe = folder.path("pipe"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);         // would never answer
        for (const QString &path : {folder.path(), pipe, "/proc/self/mem"_s}) { // whose first page cannot be read
            QTest::ignoreMessage(QtWarningMsg, "The settings file cannot be read.");
            const SettingsMending mending = mend(path);
            QVERIFY(mending.unreadable && !mending.damaged);
            QCOMPARE(mending.standIn, std::optional<QByteArray>(QByteArray()));
        }
    }

    void aFileOfImpossibleSizeIsMovedAside()
    {
        const TestFolder folder;
        const QString path = folder.write("a.conf"_s, good);
        constexpr qint64 tooMuch = 1024LL * 1024 * 1024; // a hole, which takes no space
        QVERIFY(QFile::resize(path, tooMuch));
        QTest::ignoreMessage(QtWarningMsg, "The settings file is too large to be one.");
        QCOMPARE(mend(path).copy, path + QLatin1String(".bad"));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(QFile(path + QLatin1String(".bad")).size(), tooMuch);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsFile)
#include "tst_settingsfile.moc"
