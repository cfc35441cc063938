// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "tags/TagReaderService.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    if (tags::isReaderCall(argc, argv))
        return tags::runReader(argc, argv);
    qputenv("QMLSCENE_DEVICE", "softwarecontext"); // as the program does
    const QApplication app(argc, argv);
    const QTemporaryDir configuration;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configuration.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    BenchTable::printHead();
    benchReading();
    benchSaving();
    benchAdding();
    benchSelecting();
    benchScanning();
    benchPages();
    benchSearching();
    benchWindow();
    return 0;
}
