// SPDX-License-Identifier: MIT
#include "app/Application.h"
#include "app/CommandLine.h"
#include "app/GraphicsBackend.h"
#include "app/ProcessTuning.h"
#include "app/Recovery.h"
#include "app/TerminationSignals.h"
#include "model/UnsavedTexts.h"
#include "tags/TagReaderService.h"
#include "tags/TagWriter.h"
#include "ui/MainWindow.h"
#include "ui/QuestionBox.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>
#include <QThreadPool>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

enum ExitStatus { Done = 0, OtherInstanceRuns = 1, StartedAnew = 2, SceneNotLoaded = 3, BadUsage = 64 };

// A write that makes no progress for so long is given up at the end of the program.
constexpr std::chrono::seconds writePatience(30);
// A scan that still runs after this is left behind: it changes nothing, and its disk may never answer.
constexpr std::chrono::milliseconds scanPatience(500);

// Nothing may go on behind a box that says that the program does not work.
int showSceneError(Application &app, const QString &reason)
{
    app.mainModel()->setSearch(nullptr);
    qCritical("The window could not be built. %s", qUtf8Printable(reason));
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Versewell"),
                    QApplication::translate("main", "The window could not be built."), QMessageBox::Close);
    box.setInformativeText(reason);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return SceneNotLoaded;
}

QMessageBox *makeWarning(const QString &text, QWidget *parent)
{
    auto *box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Versewell"), text, QMessageBox::Close, parent);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    removeIcons(box->findChild<QDialogButtonBox *>());
    return box;
}

// The words are those of the status line, where damage is told of that is found later.
QString damageText(const QString &copy)
{
    if (copy.isEmpty())
        return QApplication::translate(
            "StatusLine", "The settings file is damaged. What could be read is used, but no copy could be made.");
    return QApplication::translate(
               "StatusLine", "The settings file was damaged. What could be read is kept; the damaged file is now %1",
               "%1 is the path of a file")
        .arg(QDir::toNativeSeparators(copy));
}

// Brings the songs into the list, which is searched for then, and lets usage events go. After damage not before the
// user has seen that: the proxy may be among what was lost, and all would go out without it.
void beginWithSongs(Application &app, MainWindow *window, const QList<QUrl> &songs)
{
    const auto begin = [&app, songs] {
        app.mainModel()->restore();
        app.mainModel()->addUrlsFromDrop(songs);
        app.tracker()->release();
    };
    if (!app.settingsMending().damaged) {
        begin();
        return;
    }
    QMessageBox *box = makeWarning(damageText(app.settingsMending().copy), window);
    QObject::connect(box, &QDialog::finished, window, begin);
    box->open();
}

void tellOfSettings(const Application &app, MainWindow *window)
{
    const bool isTold = app.settingsMending().damaged; // in a box
    if (!isTold && (app.settingsMending().unreadable || !app.areSettingsStored()))
        window->showSettingsUnreadable();
    QObject::connect(&app, &Application::settingsNotStored, window, &MainWindow::showSettingsUnreadable);
    QObject::connect(&app, &Application::settingsDamaged, window, &MainWindow::showSettingsDamaged);
}

// `songs` are those of the command line.
int runWindow(Application &app, const QList<QUrl> &songs, const TerminationSignals &signalsToEnd)
{
    MainWindow window({app.mainModel(), app.proxyModel(), app.folderScanner(), app.settings(), app.appPalette(), &app,
                       app.tracker(), app.usageConsent(), app.updater()},
                      app.takeSceneEngine());
    if (!window.sceneErrors().isEmpty())
        return showSceneError(app, window.sceneErrors());
    QObject::connect(&signalsToEnd, &TerminationSignals::received, &window, &QWidget::hide);
    QObject::connect(&window, &MainWindow::sceneFailed, &app, [&app, &window](const QString &reason) {
        app.reportOpenGLError();
        app.tracker()->release();
        window.hide();
        QCoreApplication::exit(showSceneError(app, reason));
    });
    QObject::connect(&window, &MainWindow::scenePartFailed, &app, [&app, &window](const QString &reason) {
        window.hide();
        QCoreApplication::exit(showSceneError(app, reason));
    });
    QObject::connect(&window, &MainWindow::firstFrameShown, &app, [&app, &window, songs] {
        beginWithSongs(app, &window, songs);
        app.updater()->setParentWindow(&window);
        // The way of the window's own "Quit", so that the end of the session is reported. It ends in the application's
        // quit() as well, when the window has gone.
        app.updater()->setExit([window = QPointer<MainWindow>(&window)] {
            if (window)
                window->quit_app_accepted();
        });
    });
    window.show();
    tellOfSettings(app, &window);
    const auto tellOfSaves = [&app, &window] {
        window.showSavesMended(app.mendedSaves());
    };
    QObject::connect(&app, &Application::savesMended, &window, tellOfSaves);
    if (app.areSavesMended())
        tellOfSaves();
    return Application::exec();
}

int startAnew(Application &app)
{
    app.makeWayForRestart();
    if (!startDetached(Application::arguments()))
        qCritical("The program could not be started anew.");
    return StartedAnew;
}

// Held keys at the start, and Shift where the environment asks for it: not every desktop tells which keys are held. The
// program that starts anew must not find it again.
Qt::KeyboardModifiers heldKeys()
{
    const bool recovery = qgetenv("VERSEWELL_RECOVERY") == "1";
    qunsetenv("VERSEWELL_RECOVERY");
    return QGuiApplication::queryKeyboardModifiers() | (recovery ? Qt::ShiftModifier : Qt::NoModifier);
}

// Where the application object is all but gone, Qt would wait for name look-ups under way, which may take as long as a
// dead network likes. The sanitizers look for leaks after that.
void leaveWithoutLookups(QObject *app, const int *status)
{
#ifndef __SANITIZE_ADDRESS__
    QObject::connect(app, &QObject::destroyed, [status] {
        std::fflush(nullptr);
        std::_Exit(*status);
    });
#else
    Q_UNUSED(app)
    Q_UNUSED(status)
#endif
}

// Waits for the writes that are queued, and lets the model hear of them.
void finishWrites()
{
    TagWriter::waitForQueued(writePatience);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

QString keptText(int songs)
{
    return songs == 1 ? QApplication::translate("main", "The changes to one song were kept as a text file in %1",
                                                "%1 is the path of a folder")
                      : QApplication::translate("main", "The changes to %n songs were kept as text files in %1",
                                                "%1 is the path of a folder", songs);
}

QString lostText(int songs)
{
    return songs == 1 ? QApplication::translate(
                            "main", "The changes to one song could be kept nowhere: copy them from the details now.")
                      : QApplication::translate(
                            "main", "The changes to %n songs could be kept nowhere: copy them from the details now.",
                            nullptr, songs);
}

void showTextsKept(const KeptTexts &kept, const QString &folder)
{
    QStringList sentences;
    if (kept.songs > 0)
        sentences.append(keptText(kept.songs).arg(QDir::toNativeSeparators(folder)));
    if (!kept.lost.isEmpty())
        sentences.append(lostText(kept.lost.size()));
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Versewell"),
                    QApplication::translate("main", "Not all changes could be written into the songs."),
                    QMessageBox::Close);
    box.setInformativeText(sentences.join(QLatin1String("\n\n")));
    box.setDetailedText(kept.lost.join(QLatin1String("\n\n")));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// What writes have failed to store when nobody could be asked any more, and what nobody was asked about. A session that
// ends waits for no box.
void keepTexts(Application &app, bool isTerminated)
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1String("/unsaved");
    const KeptTexts kept = keepUnsavedTexts(*app.mainModel(), folder);
    if (!kept.lost.isEmpty())
        qCritical("The changes to %d songs could be kept nowhere.", kept.lost.size());
    if (!isTerminated && (kept.songs > 0 || !kept.lost.isEmpty()))
        showTextsKept(kept, folder);
}

} // namespace

int main(int argc, char **argv)
{
    // Before anything of the window is made: in this role the program only reads tags.
    if (tags::isReaderCall(argc, argv))
        return tags::runReader(argc, argv);
    if (const QByteArray answer = answerFor(argc, argv); !answer.isEmpty()) {
        std::fputs(answer.constData(), stdout);
        return Done;
    }
    tuneProcess();
    std::signal(SIGXFSZ, SIG_IGN); // a limit on file sizes is an error to report, not the end of the program
    int status = Done;             // outlives the application object
    // This very program, also after its file was replaced by another version.
    Application app(argc, argv, QStringLiteral("/proc/self/exe"));
    forgetTuning();
    const CommandLine line = readCommandLine(Application::arguments(), QDir::currentPath());
    if (!line.unknownOption.isEmpty()) {
        std::fprintf(stderr, "versewell: the option %s is not known; --help lists all.\n",
                     qUtf8Printable(line.unknownOption));
        return BadUsage;
    }
    if (app.isOtherInstanceRunning()) {
        std::fputs("Versewell is running already.\n", stderr);
        return OtherInstanceRuns;
    }
    leaveWithoutLookups(&app, &status);
    const TerminationSignals signalsToEnd; // from here on they end the program in order
    QObject::connect(&signalsToEnd, &TerminationSignals::received, &app, &QCoreApplication::quit);
    bool isTerminated = false;
    QObject::connect(&signalsToEnd, &TerminationSignals::received, &app, [&isTerminated] { isTerminated = true; });
    chooseGraphicsBackend();
    const AfterRecovery next = offerRecovery(heldKeys(), signalsToEnd);
    if (next == AfterRecovery::StartAnew)
        return status = startAnew(app);
    if (next == AfterRecovery::End)
        return Done;
    app.restoreFilesList();
    app.setUpLanguages();
    app.noteStart();
    const bool wereSettingsStored = app.areSettingsStored();
    status = runWindow(app, line.songs, signalsToEnd);
    app.folderScanner()->cancel();
    finishWrites();
    keepTexts(app, isTerminated);
    if (wereSettingsStored && !app.areSettingsStored() && !isTerminated)
        makeWarning(QApplication::translate("StatusLine",
                                            "The settings cannot be read or stored; changes last for this run only."),
                    nullptr)
            ->exec();
    app.mainModel()->stopReading();
    // The application object would wait for a scan without end. All is saved, and the lock ends with the process.
    if (!QThreadPool::globalInstance()->waitForDone(static_cast<int>(scanPatience.count())))
        std::_Exit(status);
    return status;
}
