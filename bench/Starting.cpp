// SPDX-License-Identifier: MIT
#include "Starting.h"

#include "Benches.h"
#include "Program.h"
#include "SongFolder.h"
#include "Table.h"

#include "app/Application.h"
#include "app/GraphicsBackend.h"
#include "ui/MainWindow.h"

#include <QProcess>
#include <QQuickWidget>
#include <QSettings>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char bareRole[] = "--start-bare";
const char programRole[] = "--start-program";

double now()
{
    using Seconds = std::chrono::duration<double>;
    return std::chrono::duration_cast<Seconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The clock is the same in all processes.
[[noreturn]] void tellAndLeave()
{
    std::printf("%.6f\n", now());
    std::fflush(stdout);
    std::_Exit(0); // nothing that is told of needs an end
}

// A window with a scene of one rectangle, and nothing else.
[[noreturn]] void startBare(int &argc, char **argv)
{
    const QApplication app(argc, argv);
    QMainWindow window;
    auto *scene = new QQuickWidget(QUrl::fromLocalFile(QString::fromLocal8Bit(argv[2])), &window);
    scene->setResizeMode(QQuickWidget::SizeRootObjectToView);
    window.setCentralWidget(scene);
    window.resize(1040, 680); // as large as the program's
    paintOnce(&window);
    tellAndLeave();
}

// As main() does it, without the questions that nobody is there to answer.
[[noreturn]] void startProgram(int &argc, char **argv)
{
    Application app(argc, argv, QStringLiteral("/proc/self/exe"));
    chooseGraphicsBackend();
    app.restoreFilesList();
    app.setUpLanguages();
    app.noteStart();
    MainWindow window({app.mainModel(), app.proxyModel(), app.folderScanner(), app.settings(), app.appPalette(), &app,
                       app.tracker(), app.usageConsent(), app.updater()});
    if (!window.sceneErrors().isEmpty())
        qFatal("%s", qPrintable(window.sceneErrors()));
    paintOnce(&window);
    tellAndLeave();
}

// By the clock on the wall, in seconds: from the word to start until the first frame is painted, in a home of its own
// with these settings.
double firstFrame(const QStringList &role, const QString &home)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(folder), home);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const double start = now();
    process.start(QCoreApplication::applicationFilePath(), role);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("a program that was to start has failed");
    return process.readAllStandardOutput().toDouble() - start;
}

void storeList(const QString &home, const QList<QUrl> &songs)
{
    QSettings settings(home + QStringLiteral("/Quillmarsh/Versewell.conf"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("openQuillmarshSite"), false);
    settings.setValue(QStringLiteral("saveFilesList"), true);
    settings.setValue(QStringLiteral("autoStart"), false);
    settings.setValue(QStringLiteral("filesList"), QUrl::toStringList(songs));
}

QString writeBareScene(const QTemporaryDir &folder)
{
    QFile document(folder.filePath(QStringLiteral("bare.qml")));
    if (!document.open(QIODevice::WriteOnly) || document.write("import QtQuick 2.15\nRectangle {}\n") < 0)
        qFatal("cannot write %s", qPrintable(document.fileName()));
    return document.fileName();
}

} // namespace

bool isStartCall(int argc, const char *const *argv)
{
    return argc > 1 && (std::strcmp(argv[1], bareRole) == 0 || std::strcmp(argv[1], programRole) == 0);
}

void runStart(int &argc, char **argv)
{
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
    if (std::strcmp(argv[1], bareRole) == 0)
        startBare(argc, argv);
    startProgram(argc, argv);
}

void benchStarting()
{
    SongFolder songs;
    songs.addOriginal(QStringLiteral("plain-v23.mp3"));
    const QList<QUrl> many = songs.links(benchSize(20000));
    const QTemporaryDir bareHome;
    const QTemporaryDir emptyHome;
    const QTemporaryDir fewHome;
    const QTemporaryDir manyHome;
    storeList(emptyHome.path(), {});
    storeList(fewHome.path(), many.mid(0, many.size() / 4));
    storeList(manyHome.path(), many);
    const QStringList bare{QLatin1String(bareRole), writeBareScene(bareHome)};
    const QStringList program{QLatin1String(programRole)};
    std::vector<double> ofBare;
    std::vector<double> ofEmpty;
    std::vector<double> ofFew;
    std::vector<double> ofMany;
    for (int round = 0; round < 21; ++round) {
        ofBare.push_back(firstFrame(bare, bareHome.path()));
        ofEmpty.push_back(firstFrame(program, emptyHome.path()));
        ofFew.push_back(firstFrame(program, fewHome.path()));
        ofMany.push_back(firstFrame(program, manyHome.path()));
    }
    BenchTable::printRow(QStringLiteral("start to the first frame, empty list / a bare window with a scene"), 0,
                         median(ofEmpty), median(ofBare), 0, 0, {1.5});
    BenchTable::printRow(QStringLiteral("start to the first frame, restored list / empty list"), many.size(),
                         median(ofMany), median(ofEmpty), median(ofFew), 4, {2, BenchTable::inStep});
}
