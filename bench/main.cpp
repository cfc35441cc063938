// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
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
    return 0;
}
