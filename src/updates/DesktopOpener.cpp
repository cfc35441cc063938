// SPDX-License-Identifier: MIT
#include "updates/DesktopOpener.h"

#include <QProcess>
#include <QTimer>

#include <chrono>
#include <memory>
#include <utility>

static constexpr std::chrono::seconds patience(3);

void openOnDesktop(const QString &path, const std::function<void(bool)> &report)
{
    // Nobody owns it: what it started must live on when this program ends before it.
    auto *opener = new QProcess;
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->setStandardOutputFile(QProcess::nullDevice());
    opener->setStandardErrorFile(QProcess::nullDevice());
    const auto reportOnce = [report, isReported = std::make_shared<bool>(false)](bool opened) {
        if (!std::exchange(*isReported, true))
            report(opened);
    };
    QObject::connect(opener, &QProcess::errorOccurred, opener, [opener, reportOnce](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        opener->deleteLater();
        reportOnce(false);
    });
    QObject::connect(opener, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), opener,
                     [opener, reportOnce](int code, QProcess::ExitStatus status) {
                         opener->deleteLater();
                         reportOnce(status == QProcess::NormalExit && code == 0);
                     });
    QTimer::singleShot(patience, opener, [reportOnce] { reportOnce(true); });
    // From the event loop, so that no report comes before this has returned.
    QTimer::singleShot(0, opener, [opener, path] { opener->start(QStringLiteral("xdg-open"), {path}); });
}
