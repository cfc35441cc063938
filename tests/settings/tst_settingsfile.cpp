// SPDX-License-Identifier: MIT
#include "settings/SettingsFile.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray good("[General]\nlanguage=de\nlyricsFontSize=20\n\n[proxy]\ntype=1\n");

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

} // namespace

class tst_SettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void damageIsFoundAndTakenOut_data();
    void damageIsFoundAndTakenOut();
    void whatTheStoreWritesIsNoDamage();
    void everyCutIsSurvived();
    void aDamagedFileIsKeptAside();
    void whatCannotBeMendedIsLeftAlone();
    void aFileOfImpossibleSizeIsMovedAside();
};

// "silent": the store itself reads this without a word, and keeps what it made of it.
void tst_SettingsFile::damageIsFoundAndTakenOut_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("damaged");
    QTest::addColumn<bool>("silent");
    QTest::addColumn<QByteArray>("readable");
    const QByteArray general("[General]\n");
    const QByteArray size("lyricsFontSize=20\n");
    const auto row = [](const char *name, const QByteArray &content, bool silent, const QByteArray &readable) {
        QTest::newRow(name) << content << true << silent << readable;
    };
    const auto wholeRow = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << false << true << content;
    };
    wholeRow("nothing", "");
    wholeRow("a good file", good);
    wholeRow("a comment, blanks, a key before any group", "; a = \"note\n\n lyricsFontSize = 20 ; points\n");
    wholeRow("an escaped quote, a list, a longer at sign", "[a%20b]\nx\\y=\"a\\\", b\", @@Variant(1), c@Variant(\n");
    QTest::newRow("line ends of another system") << QByteArray("[General]\r\nlyricsFontSize=20\r\n") << false << true
                                                 << QByteArray("[General]\r\nlyricsFontSize=20\r\n");

    row("cut in a value", general + size + "language=d", true, general + size + "language=d\n");
    row("cut in a key", general + size + "langu", false, general + size);
    row("cut in a group", general + size + "[pro", false, general + size);
    row("cut in a quote", general + size + "filesList=\"file:///a", true, general + size);
    row("cut in an escape", general + size + "language=a\\", true, general + size);
    row("entries of a broken group", general + size + "[pro\ntype=1\n[updater]\nperiod=5\n", false,
        general + size + "[updater]\nperiod=5\n");
    row("text after a group", "[proxy]x\ntype=1\n" + general + size, true, general + size);
    row("a group without a name", "[]\ntype=1\n" + general + size, true, general + size);
    row("nothing but NULs", QByteArray(4096, '\0'), false, "");
    row("a NUL in a value", general + QByteArray("language=d\0e\n", 13) + size, true, general + size);
    row("NULs at the end", general + size + QByteArray(512, '\0'), false, general + size);
    row("a control character in a key", general + "lang\x01=de\n" + size, true, general + size);
    row("an open quote", general + "language=\"de\n" + size, true, general + size);
    row("no equals sign", general + "hello\n" + size, false, general + size);
    row("no key", general + "=5\n" + size, true, general + size);
    row("a comment of another kind", general + "# hello\n" + size, false, general + size);
    row("a byte order mark", "\xef\xbb\xbf" + general + size, false, general + size);
    row("two bytes a letter", QByteArray("\xff\xfe[\0a\0]\0\n\0b\0=\0c\0\n\0", 18), false, "");
    row("a web page", "<!DOCTYPE html>\n<a href=\"x\">y</a>\n<p>\n", false, "");
    row("a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR=\xff\xfe", 19), false, "");
    row("such types in disguise",
        general +
            "a=\\x40Variant(\\0)\nb=\\x10040Variant(\nc=1, \"\\100Variant(\"\nd=\\q@Variant(\ne=@Va\\x72iant(\n"
            "f=\\x@Variant(\ng=\"\"@Variant(\n" +
            size,
        true, general + size);
    row("types that are never stored", general + "a=@Variant(\\0\\0)\nb=1, \"@DateTime(\\0)\"\n" + size, true,
        general + size);
}

void tst_SettingsFile::damageIsFoundAndTakenOut()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, damaged);
    QFETCH(bool, silent);
    QFETCH(QByteArray, readable);
    const SettingsFileCheck check = checkSettingsFile(content);
    QCOMPARE(check.damaged, damaged);
    QCOMPARE(check.readable, readable);
    QVERIFY2(!checkSettingsFile(readable).damaged, "what is left is damaged again");

    const QTemporaryDir folder;
    const auto isSilent = [&folder](const QByteArray &text) {
        const QString path = folder.filePath(QString::number(text.size()) + QLatin1String(".conf"));
        write(path, text);
        const QSettings store(path, QSettings::NativeFormat);
        return store.allKeys().size() >= 0 && store.status() == QSettings::NoError;
    };
    QCOMPARE(isSilent(content), silent);
    QVERIFY(isSilent(readable));
}

void tst_SettingsFile::whatTheStoreWritesIsNoDamage()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.conf"));
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
        store.setValue(QStringLiteral("geometry"), bytes);
        store.setValue(QStringLiteral("letters"), letters);
        store.setValue(QStringLiteral("list"), list);
        store.setValue(QStringLiteral("empty list"), QStringList());
        store.setValue(QStringLiteral("signs"), QStringLiteral("@Variant(x), @Invalid() \"@DateTime("));
        store.setValue(letters.mid(1) + QStringLiteral("/[x]=;ключ"), QStringLiteral("\\ "));
    }
    const QByteArray content = contentOf(path);
    QVERIFY(content.size() > 1000);
    const SettingsFileCheck check = checkSettingsFile(content);
    QVERIFY2(!check.damaged && check.readable == content, content.constData());
}

void tst_SettingsFile::everyCutIsSurvived()
{
    for (int length = 1; length < good.size(); ++length) {
        const SettingsFileCheck check = checkSettingsFile(good.left(length));
        QCOMPARE(check.damaged, good.at(length - 1) != '\n');
        const int lastWhole = good.lastIndexOf('\n', length - 1) + 1;
        QVERIFY(check.readable.startsWith(good.left(lastWhole)));
    }
}

void tst_SettingsFile::aDamagedFileIsKeptAside()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.conf"));
    const QString first = path + QLatin1String(".bad");
    const QString second = path + QLatin1String(".bad.2");
    QVERIFY(!mendSettingsFile(path).damaged); // there is none
    write(path, good);
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(!mendSettingsFile(path).damaged);
    QCOMPARE(contentOf(path), good);

    const QByteArray bad = good + "oops\n";
    for (int time = 0; time < 2; ++time) { // the same damage needs no second copy
        write(path, bad);
        const SettingsMending mending = mendSettingsFile(path);
        QVERIFY(mending.damaged);
        QCOMPARE(mending.copy, first);
        QCOMPARE(contentOf(path), good);
    }
    write(path, "other\n");
    QCOMPARE(mendSettingsFile(path).copy, second);
    QCOMPARE(contentOf(path), QByteArray());
    QCOMPARE(contentOf(first), bad);
    QCOMPARE(contentOf(second), QByteArray("other\n"));
    QCOMPARE(QFile::permissions(first) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QVERIFY(!mendSettingsFile(path).damaged);
}

// Where no copy can be made, the damaged file is the only one there is.
void tst_SettingsFile::whatCannotBeMendedIsLeftAlone()
{
    const QTemporaryDir folder;
    QVERIFY(!mendSettingsFile(folder.path()).damaged);
    const QString path = folder.filePath(QString(253, QLatin1Char('a'))); // no room for ".bad" in the name
    const QByteArray bad = good + "oops\n";
    write(path, bad);
    QTest::ignoreMessage(QtWarningMsg, "The settings file is damaged, and no copy of it can be made.");
    const SettingsMending mending = mendSettingsFile(path);
    QVERIFY(mending.damaged && mending.copy.isEmpty());
    QCOMPARE(contentOf(path), bad);
}

void tst_SettingsFile::aFileOfImpossibleSizeIsMovedAside()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.conf"));
    write(path, good);
    constexpr qint64 tooMuch = 1024LL * 1024 * 1024; // a hole, which takes no space
    QVERIFY(QFile::resize(path, tooMuch));
    QTest::ignoreMessage(QtWarningMsg, "The settings file is too large to be one; it is moved aside.");
    QCOMPARE(mendSettingsFile(path).copy, path + QLatin1String(".bad"));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(QFile(path + QLatin1String(".bad")).size(), tooMuch);
}

QTEST_GUILESS_MAIN(tst_SettingsFile)
#include "tst_settingsfile.moc"
