// SPDX-License-Identifier: MIT
#include "updates/UpdateChecker.h"

#include "network/Endpoints.h"
#include "support/FullDisk.h"
#include "support/LoopbackServer.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QProcess>
#include <QSettings>
#include <QtTest>

#include <memory>

#include <unistd.h>

namespace {

const QString informationPath = "/versewell/Versewell.xml"_s;
const QString setupName = "versewell_2.0.deb"_s;
const QByteArray setupContent = QByteArray("a setup file\0with a NUL in it ", 30).repeated(4);

template<typename Type, typename... Names>
void addColumns(Names... names)
{
    (QTest::addColumn<Type>(names), ...);
}

// What script/sign-update prints, without the line break.
QByteArray signUpdate(const QStringList &arguments)
{
    QProcess script;
    script.start(QStringLiteral(VERSEWELL_SIGN_UPDATE), arguments);
    return script.waitForFinished() && script.exitCode() == 0 ? script.readAllStandardOutput().trimmed() : QByteArray();
}

const QByteArray anySignature = QByteArray(64, 'x').toBase64();

LoopbackResponse newest(const QByteArray &version, const QByteArray &signature = anySignature,
                        const QByteArray &url = "SITE/files/versewell_2.0.deb")
{
    return LoopbackResponse::page("<UpdateInfo><VersionInfo><current>" + version + "</current><url>" + url +
                                  "</url><signature>" + signature + "</signature></VersionInfo></UpdateInfo>");
}

LoopbackResponse setup()
{
    return LoopbackResponse::page(setupContent).with("ETag", "\"1\"");
}

// With one thing about it set.
template<typename Value>
LoopbackResponse setup(Value LoopbackResponse::*member, const Value &value)
{
    LoopbackResponse response = setup();
    response.*member = value;
    return response;
}

const LoopbackResponse hanging = LoopbackResponse::hanging();
const LoopbackResponse dripping = setup(&LoopbackResponse::dripInterval, std::chrono::milliseconds(20));
const LoopbackResponse withoutLength = setup(&LoopbackResponse::untilClose, true);
// The maker's site, which offers version 2.0, and a checker that asks it. What happens is told in `trace`: the states,
// "offered" when a download can be chosen, "open" when a file is handed to the desktop, and "exit".
struct Maker
{
    Maker(const QByteArray &publicKey, const QByteArray &signature)
    {
        folder.holdSettings();
        QSettings().setValue("endpoints/Maker"_s, site.base());
        reloadEndpoints();
        environment.folder = folder.path("Update"_s);
        environment.keys = {QByteArray::fromBase64(publicKey)};
        environment.open = [this](const QString &path, const std::function<void(bool)> &report) {
            trace.append("open"_s);
            opened.append(folder.read(path));
            report(isOpenable);
        };
        inform(newest("2.0", signature));
        serve(setup());
    }

    void start()
    {
        checker = std::make_unique<UpdateChecker>(environment);
        QObject::connect(checker.get(), &UpdateChecker::stateChanged, [this] {
            static const QMetaEnum states = QMetaEnum::fromType<UpdateChecker::States>();
            const QString state = QString::fromLatin1(states.valueToKey(checker->state()));
            const bool isError = checker->state() == UpdateChecker::Error;
            trace.append(isError ? state + ": "_s + checker->error() : state);
        });
        QObject::connect(checker->downloadAction(), &QAction::changed, [this] {
            if (checker->downloadAction()->isVisible())
                trace.append("offered"_s);
        });
        QObject::connect(checker.get(), &UpdateChecker::exitRequest, [this] { trace.append("exit"_s); });
    }

    // In the body, SITE stands for the site's address.
    void inform(const LoopbackResponse &information)
    {
        LoopbackResponse answer = information;
        answer.body.replace("SITE", site.base().toLatin1());
        site.route(informationPath, answer);
    }

    // HEAD is told this length, or the right one.
    void serve(const LoopbackResponse &setup, const QByteArray &headLength = {}, const QString &name = setupName)
    {
        site.route("/files/"_s + name, [setup, headLength](const LoopbackRequest &request) {
            LoopbackResponse answer = setup;
            if (request.method != "HEAD")
                return answer;
            answer.hang = false;
            return headLength.isEmpty() ? answer : answer.with("Content-Length", headLength);
        });
    }

    // Redirects "/hop/<n>", and what has more behind it, n + 1 times, at last to `target`.
    void redirectTo(const QByteArray &target)
    {
        site.routeOthers([target](const LoopbackRequest &request) {
            const int hops = request.path.section(QLatin1Char('/'), 2, 2).toInt();
            return LoopbackResponse::redirect(302, hops > 0 ? "/hop/" + QByteArray::number(hops - 1) : target);
        });
    }

    [[nodiscard]] QStringList files() const { return folder.names("Update"_s); }
    [[nodiscard]] QString fileName(const QString &name) const { return "Update/"_s + name; }

    void await(const QString &expected)
    {
        QTRY_COMPARE(trace.join(QLatin1Char(' ')), expected);
        trace.clear();
    }

    // Steps "slot: expected trace", joined by " | "; "quiet" and "forced" are such checks.
    void run(const QString &steps)
    {
        if (!checker)
            start();
        for (const QString &step : steps.split(" | "_s)) {
            const QString slot = step.section(QLatin1Char(':'), 0, 0);
            checker->setQuiet(slot == QLatin1String("quiet"));
            if (slot == QLatin1String("forced") || checker->isQuiet())
                checker->check(!checker->isQuiet());
            else
                QVERIFY2(QMetaObject::invokeMethod(checker.get(), slot.toLatin1().constData()), qPrintable(slot));
            await(step.section(QLatin1Char(':'), 1, -1).trimmed());
            if (QTest::currentTestFailed())
                return;
        }
    }

    LoopbackServer site;
    TestFolder folder;
    UpdateEnvironment environment;
    std::unique_ptr<UpdateChecker> checker;
    QStringList trace;
    QList<QByteArray> opened;
    bool isOpenable = true;
};

const QString checked = "check: Checking UpdateAvailable offered"_s;
const QString downloaded = checked + " | download: Downloading InstallAvailable"_s;
const QString failed = checked + " | download: Downloading Error: Can't get update: "_s;

} // namespace

class tst_UpdateChecker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName("Versewell"_s);
        QCoreApplication::setApplicationVersion("1.9.9"_s);
        m_key = m_keys.path("key"_s);
        m_publicKey = signUpdate({"new-key"_s, m_key});
        m_signature = signUpdate({m_key, "2.0"_s, m_keys.write("setup"_s, setupContent)});
        QCOMPARE(QByteArray::fromBase64(m_signature).size(), 64);
        // No program could read these as they are meant.
        for (const QString &version : {"2"_s, "2..0"_s, "1.256"_s, "1.000000000000000000000000000000000"_s})
            QCOMPARE(signUpdate({m_key, version, m_keys.path("setup"_s)}), QByteArray());
    }

    void statesFollowTheSite_data()
    {
        addColumns<LoopbackResponse>("information", "setupFile");
        addTextColumns("steps");

        const LoopbackResponse two = newest("2.0", m_signature);
        const QString noAddress =
            "Can't get update: The address of the setup file is not one that can be used. | download:"_s;
        const QString noPage = "The server has no such page (HTTP 404)."_s;
        const QString outOfOrder = "Checking Error: Can't check for update: The server is out of order (HTTP 500)."_s;
        addRow("nothing is newer", newest("1.9.9"), setup(), "check: Checking UpToDate | check: Checking UpToDate"_s);
        addRow("step by step", two, setup(), downloaded + " | install: open exit"_s);
        addRow("forced, all at once", two, setup(),
               "forced: Checking UpdateAvailable offered Downloading InstallAvailable open exit"_s);
        addRow("nothing works out of order", two, setup(),
               "install: | download: | abortCheck: | abortDownload: | "_s + checked +
                   " | install: | abortCheck: | abortDownload:"_s);
        addRow("a complete file is not downloaded again", two, setup(),
               downloaded + " | check: Checking UpdateAvailable offered InstallAvailable"_s +
                   " | forced: Checking UpdateAvailable offered InstallAvailable open exit"_s);
        addRow("the check is given up", hanging, setup(), "check: Checking | abortCheck: Normal | check: Checking"_s);
        addRow("the download is given up", two, hanging,
               checked + " | download: Downloading | abortDownload: offered UpdateAvailable"_s);
        addRow("a forced download is given up", two, hanging,
               "forced: Checking UpdateAvailable offered Downloading | abortDownload: Normal"_s);
        addRow("the download begins before the size is known", newest("2.0", anySignature, "SITE/hanging_2.0"), setup(),
               "check: Checking UpdateAvailable | download: Downloading | abortDownload: offered UpdateAvailable"_s);
        addRow("the name of another version", newest("2.0", anySignature, "SITE/files/versewell_1.9.deb"), setup(),
               "check: Checking Error: "_s + noAddress);
        addRow("a name without a version", newest("2.0", anySignature, "SITE/hanging_latest.run"), setup(),
               "check: Checking UpdateAvailable"_s);
        addRow("the same version at greater length", newest("2.0.0", anySignature, "SITE/hanging_2.0"), setup(),
               "check: Checking UpdateAvailable"_s);
        addRow("an address that is none", newest("2.0", anySignature, "file:///tmp/a_2.0"), setup(),
               "check: Checking Error: "_s + noAddress);
        addRow("a check drops the download", two, hanging,
               checked + " | download: Downloading | "_s + checked + " | download: Downloading"_s);
        addRow("the site is out of order", LoopbackResponse::error(500), setup(),
               "quiet: Checking UpToDate | check: "_s + outOfOrder + " | check: "_s + outOfOrder);
        addRow("nonsense is an error in a quiet check too", LoopbackResponse::page("<html>"), setup(),
               "quiet: Checking Error: Failed to parse version information data."_s);
        addRow("a large page about an error", two, LoopbackResponse{404, {}, QByteArray(3000000, 'x')},
               failed + noPage);
        addRow("a download is tried again", two, LoopbackResponse::error(404),
               failed + noPage + " | download: Downloading Error: Can't get update: "_s + noPage);
    }

    void statesFollowTheSite()
    {
        QFETCH(LoopbackResponse, information);
        QFETCH(LoopbackResponse, setupFile);
        QFETCH(QString, steps);
        Maker maker(m_publicKey, m_signature);
        maker.inform(information);
        maker.serve(setupFile);
        maker.site.routeOthers([](const LoopbackRequest &) { return hanging; });
        maker.run(steps);
    }

    void aBadDownloadLeavesNothing_data()
    {
        addColumns<LoopbackResponse>("answer");
        addColumns<QByteArray>("headLength");
        addTextColumns("reason");
        const QString tooLarge = "The setup file is larger than it should be."_s;
        const QString notWhole = "The server did not send the whole setup file."_s;
        addRow("truncated", setup(&LoopbackResponse::cutAfter, qint64(50)), QByteArray(), "Connection closed"_s);
        addRow("shorter than HEAD said", withoutLength, QByteArray("121"), notWhole);
        addRow("longer than HEAD said", withoutLength, QByteArray("119"), tooLarge);
        addRow("other lengths for HEAD and GET", setup(), QByteArray("119"),
               "The setup file has another size than the server said."_s);
        addRow("announced larger than any may be", setup(), QByteArray("5000"), tooLarge);
        addRow("endless", withoutLength, QByteArray("0"), tooLarge);
        addRow("empty", LoopbackResponse::page({}), QByteArray(), notWhole);
        addRow("another kind of answer", LoopbackResponse::error(203), QByteArray(), notWhole);
        addRow("a part nobody asked for", LoopbackResponse{206, {}, "part"}, QByteArray("4"),
               "The server sent something else than the setup file."_s);
        addRow("silent", hanging, QByteArray(), "The server has been silent for 1 seconds."_s);
    }

    void aBadDownloadLeavesNothing()
    {
        QFETCH(LoopbackResponse, answer);
        QFETCH(QByteArray, headLength);
        QFETCH(QString, reason);
        Maker maker(m_publicKey, m_signature);
        maker.environment.mostSetupBytes = headLength == "0" ? 100 : 4000;
        maker.environment.limits.idle = std::chrono::seconds(1);
        maker.serve(answer, headLength);
        maker.run(failed + reason);
        QCOMPARE(maker.files(), QStringList());
    }

    void redirectsAreFollowedTwentyTimes()
    {
        Maker maker(m_publicKey, m_signature);
        maker.inform(newest("2.0", anySignature, "SITE/hop/19/a-2.0"));
        maker.redirectTo("/files/versewell_2.0.deb");
        maker.run(downloaded);
        QCOMPARE(maker.folder.read(maker.fileName("a-2.0"_s)), setupContent);
        maker.inform(newest("2.0", anySignature, "SITE/hop/20/b-2.0"));
        maker.run(failed + "The server redirects too often."_s);
        QCOMPARE(maker.files(), QStringList{"a-2.0"_s});
        maker.redirectTo(informationPath.toLatin1()); // and so on
        maker.inform(LoopbackResponse::redirect(307, "/hop/1/c"));
        maker.run("check: Checking Error: Can't check for update: The server redirects too often."_s);
        maker.inform(LoopbackResponse::redirect(302, "file:///etc/passwd"));
        maker.run("check: Checking Error: Can't check for update: "_s +
                  "The server redirects to something that is not a web page."_s);
    }

    void requestsSayWhoAsks()
    {
        Maker maker(m_publicKey, m_signature);
        maker.environment.userAgentText = "a text"_s;
        maker.environment.now = [] {
            return QDateTime(QDate(2026, 1, 2), QTime(3, 4));
        };
        maker.run(downloaded + " | forced: Checking UpdateAvailable offered InstallAvailable open exit"_s);
        QCOMPARE(maker.checker->lastCheck(), maker.environment.now());
        QStringList asked;
        for (const LoopbackRequest &request : maker.site.requests()) {
            asked.append(QString::fromLatin1(request.method + ' ' + request.header("Accept-Encoding")));
            QCOMPARE(request.header("Allow-Redirect"), QByteArray("true"));
            QCOMPARE(request.header("Accept-Language"), QByteArray("en"));
            const QByteArray kind = asked.size() > 3 ? "UpdateChecker [forced] (" : "UpdateChecker (";
            QCOMPARE(request.header("User-Agent"), kind + "Versewell v1.9.9 / Linux / a text )");
        }
        QCOMPARE(asked.mid(0, 3), (QStringList{"GET gzip, deflate"_s, "HEAD identity"_s, "GET identity"_s}));
    }

    void onlyWhatTheMakerSignedIsOpened_data()
    {
        addTextColumns("version");
        addColumns<QByteArray>("content", "signature", "key");
        signUpdate({"new-key"_s, m_keys.path("other"_s)});
        const QByteArray signedByOther = signUpdate({m_keys.path("other"_s), "2.0"_s, m_keys.path("setup"_s)});
        QByteArray tampered = setupContent;
        tampered[60] = 'b';
        const QByteArray none;
        addRow("tampered", "2.0"_s, tampered, m_signature, m_publicKey);
        addRow("signed as another version", "2.1"_s, setupContent, m_signature, m_publicKey);
        addRow("signed as the same version, written otherwise", "2.00"_s, setupContent, m_signature, m_publicKey);
        addRow("signed by somebody else", "2.0"_s, setupContent, signedByOther, m_publicKey);
        addRow("without a signature", "2.0"_s, setupContent, none, m_publicKey);
        addRow("half a signature", "2.0"_s, setupContent, m_signature.left(44), m_publicKey);
        addRow("nonsense behind the signature", "2.0"_s, setupContent, m_signature + '!', m_publicKey);
        addRow("without a key", "2.0"_s, setupContent, m_signature, none);
    }

    void onlyWhatTheMakerSignedIsOpened()
    {
        QFETCH(QString, version);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, signature);
        QFETCH(QByteArray, key);
        Maker maker(key, signature);
        if (key.isEmpty())
            maker.environment.keys.clear();
        const QString name = "versewell_%1.deb"_s.arg(version);
        maker.inform(newest(version.toLatin1(), signature, "SITE/files/" + name.toLatin1()));
        maker.serve(LoopbackResponse::page(content), {}, name);
        // Nothing is downloaded that could never be installed.
        const bool isRefused = key.isEmpty() || signature.size() != m_signature.size();
        maker.run(isRefused ? checked + " | download: Error: Can't install update"_s
                            : downloaded + " | install: Error: Can't install update | install:"_s);
        QCOMPARE(maker.files(), QStringList());
        // It is downloaded again, and then good.
        maker.environment.keys = {QByteArray::fromBase64(m_publicKey)};
        maker.checker.reset();
        maker.inform(newest("2.0", m_signature));
        maker.serve(setup());
        maker.run(downloaded + " | install: open exit"_s);
        QCOMPARE(maker.opened, QList<QByteArray>{setupContent});
    }

    void aFileIsOpenedAsItWasChecked()
    {
        Maker maker(m_publicKey, m_signature);
        maker.isOpenable = false;
        maker.run(downloaded + " | install: open Error: Can't install update | "_s + checked + " InstallAvailable"_s);
        // The same content, which somebody else has a name for.
        const QString path = maker.folder.path(maker.fileName(setupName));
        maker.checker->setBeforeInstall([&](const std::function<void()> &) { maker.trace.append("asked"_s); });
        maker.run("install: asked | install: asked"_s); // and the user never agreed
        QVERIFY(!maker.checker->isInstalling());
        maker.checker->setBeforeInstall([&](const std::function<void()> &then) { QTimer::singleShot(50, then); });
        const QString other = maker.folder.write("other"_s, setupContent);
        QVERIFY(QFile::remove(path));
        QCOMPARE(::link(qPrintable(other), qPrintable(path)), 0);
        maker.run("install: Error: Can't install update"_s);
    }

    // A file of another size is set aside, in place of nothing that is there.
    void aCompleteFileIsKeptUnlessItsSizeIsWrong()
    {
        Maker maker(m_publicKey, m_signature);
        maker.run(downloaded);
        maker.serve(LoopbackResponse::error(500));
        maker.run("check: Checking UpdateAvailable offered InstallAvailable"_s);
        const QString part = maker.folder.path(maker.fileName(setupName + ".part"_s));
        QVERIFY(QFile::link(maker.folder.path("nowhere"_s), part));
        maker.serve(setup(), "121");
        maker.run(checked);
        QVERIFY(!QFile::exists(maker.folder.path("nowhere"_s)));
        QVERIFY(QFile::remove(part));
        maker.run(checked);
        QCOMPARE(maker.files(), QStringList{setupName + ".part"_s});
    }

    void anAddressMustEndInAName()
    {
        const auto nameOf = [](const QString &path) {
            return setupFileName(QUrl("http://a.example/"_s + path));
        };
        const QString most = QString(124, QLatin1Char('a')) + ".deb"_s;
        QCOMPARE(nameOf(most), most);
        QCOMPARE(nameOf("a/_aZ-9.+?b=c#d/e"_s), "_aZ-9.+"_s);
        for (const QString &path :
             {"a"_s + most, "..%2F..%2Fx"_s, "-rf"_s, ".profile"_s, "a/.."_s, "a/"_s, "caf%C3%A9"_s})
            QVERIFY2(nameOf(path).isEmpty(), qPrintable(path));
    }

    // A download is given up in the middle, and begun once more when the site answers otherwise.
    void theRestIsAskedForWhenItFits_data()
    {
        addColumns<LoopbackResponse>("before", "later");
        addTextColumns("version", "requests");
        // REST stands for the place from which on the rest was asked for.
        const LoopbackResponse whole = setup();
        const LoopbackResponse part{206, {{"ETag", "\"1\""}, {"Content-Range", "bytes REST-119/120"}}, setupContent};
        LoopbackResponse wrongPart = part;
        wrongPart.headers[1].second = "bytes 0-119/120";
        LoopbackResponse weak = dripping;
        weak.headers.last().second = "W/\"1\"";
        addRow("the server goes on", dripping, part, "2.0"_s, "HEAD, rest"_s);
        addRow("the server sends all", dripping, whole, "2.0"_s, "HEAD, rest"_s);
        addRow("another part", dripping, wrongPart, "2.0"_s, "HEAD, rest, whole"_s);
        addRow("no such part", dripping, LoopbackResponse::error(416), "2.0"_s, "HEAD, rest, whole"_s);
        addRow("another version of the same name", dripping, part, "2.00"_s, "HEAD, whole"_s);
        addRow("content that has no sure mark", weak, part, "2.0"_s, "HEAD, whole"_s);
    }

    void theRestIsAskedForWhenItFits()
    {
        QFETCH(LoopbackResponse, before);
        QFETCH(LoopbackResponse, later);
        QFETCH(QString, version);
        Maker maker(m_publicKey, m_signature);
        maker.serve(before);
        maker.run(checked + " | download: Downloading"_s);
        QTRY_VERIFY(maker.checker->downloaded() > 9);
        maker.run("abortDownload: offered UpdateAvailable"_s);
        // What nobody could go on with is not kept.
        QCOMPARE(maker.files().size(), before.headers.last().second.startsWith('W') ? 0 : 2);
        maker.checker.reset(); // as when the program starts again
        maker.inform(newest(version.toLatin1()));
        maker.site.forgetRequests();
        QStringList requests;
        maker.site.route("/files/"_s + setupName, [&](const LoopbackRequest &request) {
            const QByteArray range = request.header("Range");
            requests.append(request.method == "HEAD" ? "HEAD"_s : range.isEmpty() ? "whole"_s : "rest"_s);
            if (range.isEmpty())
                return setup();
            const QByteArray from = range.mid(6).chopped(1); // "bytes=12-"
            LoopbackResponse answer = later;
            if (answer.status == 206)
                answer.body = answer.body.mid(from.toInt());
            for (auto &header : answer.headers)
                header.second.replace("REST", from);
            return answer;
        });
        maker.run(downloaded);
        QTEST(requests.join(", "_s), "requests");
        QCOMPARE(maker.folder.read(maker.fileName(setupName)), setupContent);
        QCOMPARE(maker.checker->downloaded(), 120);
        QCOMPARE(maker.files(), QStringList{setupName});
    }

    void linksAreNotFollowed()
    {
        Maker maker(m_publicKey, m_signature);
        const QString precious = maker.folder.write("precious"_s, setupContent);
        for (const QString &end : {""_s, ".part"_s, ".part.source"_s}) {
            const QString link = maker.folder.path(maker.fileName(setupName + end));
            QVERIFY(QDir().mkpath(maker.folder.path("Update"_s)));
            QVERIFY(QFile::link(precious, link));
        }
        maker.run(downloaded + " | install: open exit"_s);
        QVERIFY(!QFileInfo(maker.folder.path(maker.fileName(setupName))).isSymLink());
        QCOMPARE(maker.folder.read("precious"_s), setupContent);
        QCOMPARE(maker.files(), QStringList{setupName});
        const QFile::Permissions others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(maker.folder.path("Update"_s)) & others));
    }

    void aFolderThatIsALinkIsNotUsed()
    {
        Maker maker(m_publicKey, m_signature);
        maker.folder.write("photos/holiday 1.2.jpg"_s);
        QVERIFY(QFile::link(maker.folder.path("photos"_s), maker.folder.path("Update"_s)));
        maker.run("check: Checking Error: Can't open file: The folder "_s + maker.environment.folder +
                  " cannot be used. | download:"_s);
        QCOMPARE(maker.folder.names("photos"_s), QStringList{"holiday 1.2.jpg"_s});
    }

    void aFullDiskCostsNothing()
    {
        Maker maker(m_publicKey, m_signature);
        maker.serve(LoopbackResponse::page(QByteArray(200000, 'a')));
        maker.run(checked);
        const FullDisk disk(100000);
        maker.run("download: Downloading Error: Can't get update: "_s + qt_error_string(EFBIG));
        QCOMPARE(maker.files(), QStringList());
    }

    void whatIsOldIsRemoved()
    {
        Maker maker(m_publicKey, m_signature);
        maker.inform(newest("1.0"));
        const QStringList kept{"a-1.9.10.deb"_s, "a-2.0.deb.part"_s, "a2.deb"_s, "b"_s};
        for (const QString &name :
             kept + QStringList{"a-1.9.9.deb"_s, "a-1.9.deb.part"_s, ".a-1.8.deb"_s, "c-1.0/d/e"_s})
            maker.folder.write(maker.fileName(name));
        maker.folder.write("other/f"_s);
        QVERIFY(QFile::link(maker.folder.path("other"_s), maker.folder.path("Update/g-1.0"_s)));
        QVERIFY(QFile::link(maker.folder.path("other"_s), maker.folder.path("Update/c-1.0/d/h"_s)));
        maker.run("check: Checking UpToDate"_s);
        QCOMPARE(maker.files(), kept);
        QCOMPARE(maker.folder.names("other"_s), QStringList{"f"_s});
    }

    void noSiteIsAskedWhereThereIsNone()
    {
        Maker maker(m_publicKey, m_signature);
        QSettings().setValue("endpoints/Maker"_s, "https://maker.example"_s);
        reloadEndpoints();
        maker.run("quiet: Checking UpToDate | check: Checking Error: Can't check for update: "_s +
                  "This build of the program knows no site to ask."_s);
    }

private:
    TestFolder m_keys;
    QString m_key;
    QByteArray m_publicKey;
    QByteArray m_signature;
};

QTEST_MAIN(tst_UpdateChecker)
#include "tst_updatechecker.moc"
