// SPDX-License-Identifier: MIT
#include "updates/Updater.h"

#include "network/Endpoints.h"
#include "support/LoopbackServer.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"
#include "updates/DesktopOpener.h"
#include "updates/DownloadDialog.h"
#include "updates/UpdateDialog.h"
#include "updates/UpdateInfoDialog.h"

#include <QMessageBox>
#include <QSettings>
#include <QtTest>

#include <chrono>
#include <optional>

namespace {

LoopbackResponse newest(const QByteArray &version)
{
    return LoopbackResponse::page("<VersionInfo><current>" + version + "</current><url>http://127.0.0.1:9/setup-" +
                                  version + ".run</url><signature>" + QByteArray(64, 'x').toBase64() +
                                  "</signature></VersionInfo>");
}

// A window, an updater and the maker's site, at a time that the test sets.
struct Rig
{
    explicit Rig(const LoopbackResponse &information = newest("2.0"), const QVariantMap &stored = {})
    {
        folder.holdSettings();
        QSettings store;
        store.setValue("endpoints/Maker"_s, site.base());
        for (auto entry = stored.begin(); entry != stored.end(); ++entry)
            store.setValue(entry.key(), entry.value());
        reloadEndpoints();
        site.route("/versewell/Versewell.xml"_s, information);
        UpdateEnvironment environment;
        environment.folder = folder.path("Update"_s);
        environment.keys = {QByteArray(32, 'x')};
        environment.now = [this] {
            return now;
        };
        updater.emplace(environment);
        window.show();
        updater->setParentWindow(&window);
    }

    [[nodiscard]] int checks() const { return site.requestCount("/versewell/Versewell.xml"_s); }
    [[nodiscard]] UpdateChecker::States state() { return updater->checker()->state(); }
    // All that can be seen beside the window, by class and, of a box, by text.
    [[nodiscard]] QStringList shown() const
    {
        QStringList names;
        for (const QDialog *dialog : window.findChildren<QDialog *>()) {
            const auto *box = qobject_cast<const QMessageBox *>(dialog);
            if (dialog->isVisible())
                names.append(box ? box->text() : QString::fromLatin1(dialog->metaObject()->className()));
        }
        return names;
    }
    void answer(int result) { window.findChild<UpdateDialog *>()->done(result); }

    LoopbackServer site;
    TestFolder folder;
    QDateTime now{QDate(2026, 11, 23), QTime(12, 0)};
    QWidget window;
    std::optional<Updater> updater;
};

const QStringList offered{"UpdateDialog"_s};

} // namespace

class tst_Updater : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName("Versewell"_s);
        QCoreApplication::setOrganizationName("Quillmarsh"_s);
        QCoreApplication::setApplicationVersion("1.5.6"_s);
    }

    void aCheckIsDueByThePeriod_data()
    {
        QTest::addColumn<QVariant>("period");
        QTest::addColumn<qint64>("secondsLater");
        QTest::addColumn<int>("checks");
        addRow("a day by default", QVariant(), 86400LL, 2);
        addRow("not a second earlier", QVariant(), 86399LL, 1);
        addRow("a minute", QVariant(1), 60LL, 2);
        addRow("never", QVariant(0), 999999LL, 0);
        addRow("a period below zero", QVariant(-5), 999999LL, 0);
        addRow("a period beyond every clock", QVariant("9223372036854775807"_s), 999999LL, 1);
    }

    void aCheckIsDueByThePeriod()
    {
        QFETCH(QVariant, period);
        QFETCH(qint64, secondsLater);
        Rig rig(newest("1.5.6"));
        QSettings().setValue("updater/period"_s, period); // as the preferences do, at any time
        if (!period.isValid())
            QSettings().remove("updater/period"_s);
        QSignalSpy checked(&*rig.updater, &Updater::checked);
        QVERIFY(!rig.updater->lastCheckUpdate().isValid());
        rig.updater->checkIfDue();
        if (rig.updater->lastCheckUpdate().isValid())
            QTRY_COMPARE(rig.state(), UpdateChecker::UpToDate);
        rig.now = rig.now.addSecs(secondsLater);
        rig.updater->checkIfDue();
        QTEST(checked.count(), "checks");
    }

    void itIsLookedEveryMinuteWhetherACheckIsDue()
    {
        Rig rig;
        const QTimer *timer = rig.updater->findChild<QTimer *>();
        QVERIFY(!timer->isActive()); // the program starts first
        rig.updater->startUpdateTimer();
        QVERIFY(timer->isActive() && timer->intervalAsDuration() == std::chrono::minutes(1));
    }

    void aCheckShowsWhatItsOccasionAsksFor_data()
    {
        QTest::addColumn<LoopbackResponse>("information");
        QTest::addColumn<QString>("skipped");
        QTest::addColumn<QStringList>("bySchedule");
        QTest::addColumn<QStringList>("byUser");
        addRow("a newer version", newest("2.0"), "1.9"_s, offered, offered);
        addRow("a skipped version", newest("2.0"), "2.0"_s, QStringList(), offered);
        addRow("no newer version", newest("1.5.6"), ""_s, QStringList(), QStringList{"You have the latest version."_s});
        addRow("a site that fails", LoopbackResponse::error(500), ""_s, QStringList(),
               QStringList{"Failed to update"_s});
        addRow("nonsense", LoopbackResponse::page("<x>"), ""_s, QStringList(), QStringList{"Failed to update"_s});
    }

    void aCheckShowsWhatItsOccasionAsksFor()
    {
        QFETCH(LoopbackResponse, information);
        QFETCH(QString, skipped);
        Rig rig(information, {{"updater/skippedVersion"_s, skipped}});
        rig.updater->checkIfDue();
        QCOMPARE(rig.shown(), QStringList());
        QTRY_VERIFY(rig.state() != UpdateChecker::Checking);
        QTEST(rig.shown(), "bySchedule");
        rig.updater->checkByUser();
        QCOMPARE(rig.shown(), QStringList{"UpdateInfoDialog"_s});
        QTRY_VERIFY(rig.state() != UpdateChecker::Checking);
        QTEST(rig.shown(), "byUser");
    }

    void theUserTakesOverAScheduledCheck()
    {
        Rig rig(LoopbackResponse::error(500));
        rig.updater->checkIfDue();
        rig.updater->checkByUser();
        QTRY_COMPARE(rig.shown(), QStringList{"Failed to update"_s});
        QCOMPARE(rig.checks(), 1);
    }

    void theUserCanStopWaiting()
    {
        Rig rig(LoopbackResponse::hanging());
        rig.updater->checkByUser();
        rig.window.findChild<UpdateInfoDialog *>()->reject();
        QCOMPARE(rig.state(), UpdateChecker::Normal);
        QCOMPARE(rig.shown(), QStringList());
    }

    void aSkippedVersionIsNotOfferedAgain()
    {
        Rig rig;
        rig.updater->checkIfDue();
        QTRY_COMPARE(rig.shown(), offered);
        rig.now = rig.now.addDays(2);
        rig.updater->checkIfDue(); // not while it is offered
        QCOMPARE(rig.state(), UpdateChecker::UpdateAvailable);
        rig.answer(UpdateDialog::Skip);
        QCOMPARE(QSettings().value("updater/skippedVersion"_s).toString(), "2.0"_s);
        rig.updater->checkIfDue();
        QTRY_COMPARE(rig.state(), UpdateChecker::UpdateAvailable);
        QCOMPARE(rig.shown(), QStringList());
    }

    void aDownloadCanBeCancelledAndFailsWithWords()
    {
        Rig rig;
        rig.updater->checkByUser();
        QTRY_COMPARE(rig.shown(), offered);
        rig.answer(UpdateDialog::Install);
        const QStringList downloading{"DownloadDialog"_s};
        QCOMPARE(rig.shown(), downloading);
        rig.updater->checkByUser(); // leads back to the download
        QCOMPARE(rig.state(), UpdateChecker::Downloading);
        rig.window.findChild<DownloadDialog *>()->reject();
        QCOMPARE(rig.state(), UpdateChecker::UpdateAvailable);
        QCOMPARE(rig.shown(), QStringList());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        rig.updater->checkByUser();
        QTRY_COMPARE(rig.shown(), offered);
        rig.answer(UpdateDialog::Install);
        QTRY_COMPARE(rig.shown(), QStringList{"Failed to update"_s}); // nobody listens on port 9
    }

    void nothingIsShownOrAskedWithoutAWindow()
    {
        Rig rig;
        rig.updater->checkByUser();
        QTRY_COMPARE(rig.shown(), offered);
        rig.window.hide();
        QCOMPARE(rig.shown(), QStringList());
        rig.now = rig.now.addDays(2);
        rig.updater->checkIfDue();
        QCOMPARE(rig.state(), UpdateChecker::UpdateAvailable);
        rig.window.show();
        rig.updater->checkByUser();
        rig.window.hide();
        QCOMPARE(rig.state(), UpdateChecker::Normal);
        QCOMPARE(rig.shown(), QStringList());
    }

    // Which would let none of its buttons be pressed.
    void anOfferThatNobodyAskedForWaitsForADialog()
    {
        Rig rig;
        QDialog *dialog = new QDialog(&rig.window);
        dialog->open();
        rig.updater->checkIfDue();
        QCOMPARE(rig.state(), UpdateChecker::Normal);
        dialog->hide();
        rig.updater->checkIfDue();
        dialog->open();
        QTRY_COMPARE(rig.state(), UpdateChecker::UpdateAvailable);
        QCOMPARE(rig.shown(), QStringList{"QDialog"_s});
        dialog->hide();
        rig.updater->checkIfDue();
        QCOMPARE(rig.shown(), offered);
        QCOMPARE(rig.checks(), 1);
    }

    void theDesktopIsAskedWhetherItOpensAFile()
    {
        const QVector<QPair<QByteArray, bool>> rows{{"test \"$1\" = /a", true}, // it does
                                                    {"exit 3", false},          // nothing on it does
                                                    {"exec sleep 5", true},     // the program that does stays
                                                    {{}, false}};               // there is no desktop
        const QByteArray path = qgetenv("PATH");
        for (const auto &[command, isOpened] : rows) {
            const TestFolder folder;
            if (!command.isEmpty()) {
                const QString script = folder.write("xdg-open"_s, "#!/bin/sh\nPATH=/usr/bin:/bin\n" + command);
                QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
            }
            qputenv("PATH", QFile::encodeName(folder.path()));
            QVector<bool> reports;
            openOnDesktop("/a"_s, [&reports](bool opened) { reports.append(opened); });
            QTRY_VERIFY(!reports.isEmpty());
            qputenv("PATH", path);
            QVERIFY2(reports.first() == isOpened, command.constData());
        }
    }
};

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
