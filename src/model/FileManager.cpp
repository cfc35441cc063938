// SPDX-License-Identifier: MIT
#include "model/FileManager.h"

#include <QFileInfo>
#include <QProcess>

#include <functional>

namespace {

// Starts the program. `onFailure` is called when it could not be started or has ended otherwise than with status 0.
void run(const QString &program, const QString &argument, const std::function<void()> &onFailure)
{
    // Without an owner: whoever deleted it when Versewell ends would kill the file manager, in the middle of whatever
    // it is doing.
    auto *process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    const auto end = [process, onFailure](bool isSuccess) {
        process->deleteLater();
        if (!isSuccess)
            onFailure();
    };
    QObject::connect(process, &QProcess::errorOccurred, process, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // after the other errors finished() comes
            end(false);
    });
    QObject::connect(
        process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), process,
        [end](int code, QProcess::ExitStatus status) { end(status == QProcess::NormalExit && code == 0); });
    process->start(program, {argument});
}

} // namespace

void showInFileManager(const QString &file)
{
    run(QStringLiteral("nautilus"), file,
        [folder = QFileInfo(file).absolutePath()] { run(QStringLiteral("xdg-open"), folder, [] {}); });
}
