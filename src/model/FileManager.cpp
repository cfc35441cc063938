// SPDX-License-Identifier: MIT
#include "model/FileManager.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>

#include <memory>

namespace {

// Whether the program could be started and ended with status 0, or outlives this one.
bool succeeds(const QString &program, const QString &argument)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    QEventLoop loop;
    QObject::connect(process.get(), &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            loop.quit();
    });
    process->start(program, {argument});
    if (process->state() != QProcess::NotRunning)
        loop.exec();
    if (process->state() != QProcess::NotRunning) {
        // Versewell is ending. Deleting the object would kill the file manager, in the middle of whatever it is doing.
        static_cast<void>(process.release());
        return true;
    }
    return process->error() == QProcess::UnknownError && process->exitStatus() == QProcess::NormalExit &&
           process->exitCode() == 0;
}

} // namespace

void showInFileManager(const QString &file)
{
    if (succeeds(QStringLiteral("nautilus"), file))
        return;
    succeeds(QStringLiteral("xdg-open"), QFileInfo(file).absolutePath());
}
