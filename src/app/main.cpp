// SPDX-License-Identifier: MIT
#include "app/Application.h"
#include "app/GraphicsBackend.h"
#include "app/TerminationSignals.h"
#include "tags/TagWriter.h"
#include "ui/MainWindow.h"

#include <QMessageBox>

#include <chrono>

namespace {

enum ExitStatus { OtherInstanceRuns = 1, SceneNotLoaded = 3 };

// A write that makes no progress for so long is given up at the end of the program.
constexpr std::chrono::seconds writePatience(30);

int showSceneErrors(const QString &errors)
{
    QMessageBox::critical(nullptr, QStringLiteral("Versewell"),
                          QApplication::translate("main", "The window could not be built. Something that Versewell "
                                                          "needs is missing:\n\n%1")
                              .arg(errors));
    return SceneNotLoaded;
}

int runWindow(Application &app, const TerminationSignals &signalsToEnd)
{
    MainWindow window(app.mainModel(), app.settings());
    if (!window.sceneErrors().isEmpty())
        return showSceneErrors(window.sceneErrors());
    QObject::connect(&signalsToEnd, &TerminationSignals::received, &window, [&window] {
        window.hide();
        QCoreApplication::quit();
    });
    window.show();
    return Application::exec();
}

// Waits for the writes that are queued, and lets the model hear of them.
void finishWrites()
{
    TagWriter::waitForQueued(writePatience);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

} // namespace

int main(int argc, char **argv)
{
    Application app(argc, argv);
    if (app.isOtherInstanceRunning())
        return OtherInstanceRuns;
    const TerminationSignals signalsToEnd; // from here on they end the program in order
    chooseGraphicsBackend();
    app.setUpLanguages();
    app.noteStart();
    const int status = runWindow(app, signalsToEnd);
    finishWrites();
    return status;
}
