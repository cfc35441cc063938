// SPDX-License-Identifier: MIT
#include "app/Recovery.h"

#include "app/RecoveryDialog.h"
#include "app/TerminationSignals.h"
#include "ui/Pictures.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QProcess>

AfterRecovery offerRecovery(Qt::KeyboardModifiers held, const TerminationSignals &signalsToEnd)
{
    if (!held.testFlag(Qt::ShiftModifier))
        return AfterRecovery::GoOn;
    initPictures();
    bool mustEnd = false;
    RecoveryDialog dialog;
    QObject::connect(&signalsToEnd, &TerminationSignals::received, &dialog, [&dialog, &mustEnd] {
        mustEnd = true;
        dialog.reject();
    });
    dialog.setProgramInfo(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                          QPixmap(QStringLiteral(":/img/main-icon.png")));
    dialog.exec();
    if (mustEnd)
        return AfterRecovery::End;
    return dialog.isRestartNeeded() ? AfterRecovery::StartAnew : AfterRecovery::GoOn;
}

bool startDetached(const QStringList &arguments)
{
    return !arguments.isEmpty() && QProcess::startDetached(arguments.first(), arguments);
}
