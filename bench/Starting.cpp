// SPDX-License-Identifier: MIT
#include "Starting.h"

#include "Benches.h"
#include "Measuring.h"
#include "Program.h"
#include "SongFolder.h"
#include "Table.h"

#include "app/Application.h"
#include "app/GraphicsBackend.h"
#include "app/ProcessTuning.h"
#include "ui/MainWindow.h"

#include <QProcess>
#include <QQuickItem>
#include <QQuickWidget>
#include <QSettings>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char bareRole[] = "--start-bare";
const char programRole[] = "--start-program";

void tell(double moment)
{
    std::printf("%.6f\n", moment);
}

[[noreturn]] void leave()
{
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
    tell(paintOnce(&window));
    leave();
}

// Of the list; -1 when that was not made yet.
int rowCount(const MainWindow &window)
{
    const QQuickItem *list = findSongList(&window);
    return list ? list->property("count").toInt() : -1;
}

// As main() does it, without the questions that nobody is there to answer. Nothing is searched for.
[[noreturn]] void startProgram(int &argc, char **argv)
{
    tuneProcess();
    Application app(argc, argv, QStringLiteral("/proc/self/exe"));
    chooseGraphicsBackend();
    app.mainModel()->setAutoStart(false);
    app.restoreFilesList();
    const bool isListKept = app.mainModel()->isRestoring();
    app.setUpLanguages();
    app.noteStart();
    MainWindow window({app.mainModel(), app.proxyModel(), app.folderScanner(), app.settings(), app.appPalette(), &app,
                       app.tracker(), app.usageConsent(), app.updater()},
                      app.takeSceneEngine());
    if (!window.sceneErrors().isEmpty())
        qFatal("%s", qPrintable(window.sceneErrors()));
    QObject::connect(&window, &MainWindow::firstFrameShown, app.mainModel(), &MainModel::restore);
    tell(paintOnce(&window));
    if (isListKept)
        tell(paintOnce(&window, [&window] { return rowCount(window) > 0; }));
    else
        tell(renderOnce(&window, [&window] { return rowCount(window) == 0; }));
    app.mainModel()->stopReading(); // or its process would read on beside the next start
    leave();
}

// From the word to start, by the clock on the wall, in seconds.
struct Waits
{
    std::vector<double> frame; // until the first frame is painted
    std::vector<double> list;  // until its first rows are, or, where no list is kept, it was made; not of a bare window
};

// The screen of a start: none, as the other benches have it, or one of an X server that shows it to nobody.
class Screen
{
public:
    explicit Screen(const QString &platform)
        : m_environment(QProcessEnvironment::systemEnvironment())
    {
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    }
    ~Screen()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    // Ends the bench when there is no such server.
    void startServer()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1600x1000x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        if (!m_server.waitForReadyRead())
            qFatal("Xvfb does not start");
        m_environment.insert(QStringLiteral("DISPLAY"),
                             QLatin1Char(':') + QString::fromLatin1(m_server.readLine().trimmed()));
    }
    [[nodiscard]] const QProcessEnvironment &environment() const { return m_environment; }

private:
    QProcess m_server;
    QProcessEnvironment m_environment;
};

// One start more, in a home of its own with its settings.
void start(const Screen &screen, const QStringList &role, const QString &home, Waits *waits)
{
    QFile::remove(home + QStringLiteral("/Quillmarsh/Versewell.lock")); // as after a start that was left in order
    QProcess process;
    QProcessEnvironment environment = screen.environment();
    for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(folder), home);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const double begin = now();
    process.start(QCoreApplication::applicationFilePath(), role);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("a program that was to start has failed");
    const QList<QByteArray> times = process.readAllStandardOutput().split('\n');
    waits->frame.push_back(times.value(0).toDouble() - begin);
    waits->list.push_back(times.value(1).toDouble() - begin);
}

void storeList(const QString &home, const QList<QUrl> &songs)
{
    QSettings settings(home + QStringLiteral("/Quillmarsh/Versewell.conf"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("openQuillmarshSite"), false);
    settings.setValue(QStringLiteral("saveFilesList"), true);
    settings.setValue(QStringLiteral("filesList"), QUrl::toStringList(songs));
}

QString writeBareScene(const QTemporaryDir &folder)
{
    QFile document(folder.filePath(QStringLiteral("bare.qml")));
    if (!document.open(QIODevice::WriteOnly) || document.write("import QtQuick 2.15\nRectangle {}\n") < 0)
        qFatal("cannot write %s", qPrintable(document.fileName()));
    return document.fileName();
}

// The rows of starts on one screen.
class Starts
{
public:
    Starts()
    {
        m_songs.addOriginal(QStringLiteral("plain-v23.mp3"));
        m_many = m_songs.links(benchSize(20000));
        storeList(m_emptyHome.path(), {});
        storeList(m_fewHome.path(), m_many.mid(0, m_many.size() / 4));
        storeList(m_manyHome.path(), m_many);
    }

    void print(const Screen &screen, const QString &place) const
    {
        const QStringList bare{QLatin1String(bareRole), writeBareScene(m_bareHome)};
        const QStringList program{QLatin1String(programRole)};
        Waits ofBare;
        Waits ofEmpty;
        Waits ofFew;
        Waits ofMany;
        for (int round = 0; round < 21; ++round) {
            start(screen, bare, m_bareHome.path(), &ofBare);
            start(screen, program, m_emptyHome.path(), &ofEmpty);
            start(screen, program, m_fewHome.path(), &ofFew);
            start(screen, program, m_manyHome.path(), &ofMany);
        }
        BenchTable::printRow(place + QStringLiteral("start to the first frame, empty list / a bare window"), 0,
                             median(ofEmpty.frame), median(ofBare.frame), 0, 0, {1.5});
        BenchTable::printRow(place + QStringLiteral("the same, kept list, no rows yet / empty list"), m_many.size(),
                             median(ofMany.frame), median(ofEmpty.frame), median(ofFew.frame), 4,
                             {2, BenchTable::inStep});
        BenchTable::printRow(place + QStringLiteral("first rows of a kept list / until the empty list is made"),
                             m_many.size(), median(ofMany.list), median(ofEmpty.list), median(ofFew.list), 4,
                             {2, BenchTable::inStep});
    }

private:
    SongFolder m_songs;
    QList<QUrl> m_many;
    QTemporaryDir m_bareHome;
    QTemporaryDir m_emptyHome;
    QTemporaryDir m_fewHome;
    QTemporaryDir m_manyHome;
};

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
    const Starts starts;
    const Screen none(QStringLiteral("offscreen"));
    starts.print(none, QStringLiteral("no screen, "));
    Screen x(QStringLiteral("xcb"));
    x.startServer();
    starts.print(x, QStringLiteral("X, "));
}
