// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Starting.h"
#include "Table.h"

#include "app/ProcessTuning.h"
#include "tags/TagReaderService.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>

#include <array>

namespace {

struct Bench
{
    QString name;
    void (*run)();
};

// Memory first, when nothing was freed yet that could be used again.
const std::array<Bench, 10> benches{{{QStringLiteral("memory"), benchMemory},
                                     {QStringLiteral("reading"), benchReading},
                                     {QStringLiteral("adding"), benchAdding},
                                     {QStringLiteral("selecting"), benchSelecting},
                                     {QStringLiteral("starting"), benchStarting},
                                     {QStringLiteral("scanning"), benchScanning},
                                     {QStringLiteral("scrolling"), benchScrolling},
                                     {QStringLiteral("searching"), benchSearching},
                                     {QStringLiteral("saving"), benchSaving},
                                     {QStringLiteral("pages"), benchPages}}};

QStringList names()
{
    QStringList all;
    for (const Bench &bench : benches)
        all.append(bench.name);
    return all;
}

} // namespace

int main(int argc, char **argv)
{
    if (tags::isReaderCall(argc, argv))
        return tags::runReader(argc, argv);
    if (isStartCall(argc, argv))
        runStart(argc, argv);
    tuneProcess(); // this and the next as the program does
    qputenv("QMLSCENE_DEVICE", "softwarecontext");
    const QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("versewell.*=false")); // a line for each page
    QCommandLineParser parser;
    const QCommandLineOption only(QStringLiteral("only"),
                                  QStringLiteral("Only these rows: ") + names().join(QStringLiteral(", ")),
                                  QStringLiteral("word"));
    const QCommandLineOption quick(QStringLiteral("quick"), QStringLiteral("A tenth of the work in most rows."));
    parser.addHelpOption();
    parser.addOptions({only, quick});
    parser.process(app);
    if (parser.isSet(quick))
        makeBenchesQuick();
    const QTemporaryDir configuration;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configuration.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    BenchTable::printHead();
    for (const Bench &bench : benches) {
        if (!parser.isSet(only) || parser.values(only).contains(bench.name))
            bench.run();
    }
    BenchTable::printTail();
    return 0;
}
