// SPDX-License-Identifier: MIT
#include "SceneStage.h"

#include <QApplication>
#include <QtQuickTest>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<int> warnings = 0;
QtMessageHandler previousHandler = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // Menus grab mouse and keyboard, and the platform of the tests has neither.
    const bool isOfPlatform = message.startsWith(QLatin1String("This plugin does not support grabbing"));
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !isOfPlatform)
        ++warnings;
    previousHandler(type, context, message);
}

} // namespace

// A document that warns has failed, whatever its tests say.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    previousHandler = qInstallMessageHandler(countWarnings);
    SceneStage stage;
    const int failures = quick_test_main_with_setup(argc, argv, "scene", nullptr, &stage);
    if (failures == 0 && warnings > 0)
        qCritical("There were warnings.");
    return failures == 0 && warnings > 0 ? EXIT_FAILURE : failures;
}
