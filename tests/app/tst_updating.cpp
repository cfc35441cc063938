// SPDX-License-Identifier: MIT
#include "app/Stage.h"
#include "support/LoopbackServer.h"
#include "support/TestTable.h"
#include "ui/LyricsEdit.h"
#include "ui/MainWindow.h"
#include "updates/DownloadDialog.h"
#include "updates/UpdateDialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <memory>

namespace {

const QByteArray setupContent = "the setup file";
// What script/sign-update made for version 9.0 of that content.
const QByteArray makerKey = QByteArray::fromBase64("gZZxuTvqOGnottaGdd/t/6eYy2xhX5EjI5eRRTNBmUY=");
const QByteArray signature = "xb6iHdJ6E9MiKzj96pfEihqY1pBEH1wcw0ZB0tPAjkrqO9kAcxuZ1e/0NhviU9xNnCauID+qz+5u/5PS9CnjBg==";

constexpr std::chrono::seconds patience(20);

void press(QDialog *dialog)
{
    dialog->findChild<QAbstractButton *>("installButton"_s)->click();
}

bool isReady(const DownloadDialog *dialog)
{
    return dialog && dialog->findChild<QAbstractButton *>("installButton"_s)->isVisible();
}

} // namespace

// The program with its window, and the maker's site, from the menu to the end.
class tst_Updating : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("QMLSCENE_DEVICE", "softwarecontext");
        m_app = std::make_unique<Stage>();
    }

    void cleanupTestCase() { m_app.reset(); }

    // The links are hidden in the same way.
    void withoutAMakerNobodyIsAsked()
    {
        Stage &app = *m_app;
        Updater updater;
        const MainWindow window({app->mainModel(), app->proxyModel(), app->folderScanner(), app->settings(),
                                 app->appPalette(), &*app, nullptr, nullptr, &updater});
        QVERIFY(!window.findChild<QAction *>("actionCheckForUpdates"_s)->isVisible());
        updater.startUpdateTimer();
        QVERIFY(!updater.findChild<QTimer *>()->isActive());
    }

    // While lyrics are being edited, so that there is a question.
    void theUserInstallsANewerVersion()
    {
        Stage &app = *m_app;
        LoopbackServer site;
        QSettings().setValue("endpoints/Maker"_s, site.base());
        reloadEndpoints();
        site.route("/files/versewell-9.0.run"_s, LoopbackResponse::page(setupContent));
        site.route("/versewell/Versewell.xml"_s,
                   LoopbackResponse::page("<VersionInfo><current>9.0</current><url>" + site.base().toLatin1() +
                                          "/files/versewell-9.0.run</url><signature>" + signature +
                                          "</signature></VersionInfo>"));
        UpdateEnvironment environment;
        environment.folder = app.folder.path("Update"_s);
        environment.keys = {makerKey};
        QList<QByteArray> opened;
        environment.open = [&app, &opened](const QString &path, const std::function<void(bool)> &report) {
            opened.append(app.folder.read(path));
            report(true);
        };
        Updater updater(environment);
        MainWindow window({app->mainModel(), app->proxyModel(), app->folderScanner(), app->settings(),
                           app->appPalette(), &*app, nullptr, nullptr, &updater});
        updater.setParentWindow(&window);
        updater.setExit([&window] { window.quit_app_accepted(); });
        window.show();
        app->mainModel()->add({QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/lyrics.ogg"))});
        ModelItem *song = app->mainModel()->itemAt(0);
        QTRY_VERIFY(song->tagsLoaded());
        window.lyricsEdit()->begin(song);
        window.lyricsEdit()->setText("a draft"_s);
        window.findChild<QAction *>("actionCheckForUpdates"_s)->trigger();
        QTRY_VERIFY(window.findChild<UpdateDialog *>());
        press(window.findChild<UpdateDialog *>());
        QTRY_VERIFY(isReady(window.findChild<DownloadDialog *>()));
        press(window.findChild<DownloadDialog *>());
        // Before anybody is asked, the file is checked.
        QVERIFY(!window.findChild<QMessageBox *>());
        QTRY_VERIFY(window.findChild<QMessageBox *>());
        QTimer::singleShot(0, window.findChild<QMessageBox *>()->button(QMessageBox::Discard), &QAbstractButton::click);
        QTimer::singleShot(patience, &window, [] { QCoreApplication::exit(1); });
        QCOMPARE(Application::exec(), 0);
        QCOMPARE(opened, QList<QByteArray>{setupContent});
        QVERIFY(!window.isVisible());
    }

private:
    // One for all tests: windows of a second one in the same process go wrong in Qt.
    std::unique_ptr<Stage> m_app;
};

QTEST_APPLESS_MAIN(tst_Updating)
#include "tst_updating.moc"
