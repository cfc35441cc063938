// SPDX-License-Identifier: MIT
#include "model/FileManager.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>

namespace {

// Whether the program could be started and ended with status 0.
bool succeeds(const QString &program, const QString &argument)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, [&process, &loop] {
        if (process.state() == QProcess::NotRunning)
            loop.quit();
    });
    process.start(program, {argument});
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    return process.error() == QProcess::UnknownError && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace

void showInFileManager(const QString &file)
{
    if (succeeds(QStringLiteral("nautilus"), file))
        return;
    succeeds(QStringLiteral("xdg-open"), QFileInfo(file).absolutePath());
}
