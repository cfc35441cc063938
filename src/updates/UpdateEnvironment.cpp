// SPDX-License-Identifier: MIT
#include "updates/UpdateEnvironment.h"

#include "updates/UpdateFolder.h"
#include "updates/UpdateSignature.h"

#include <QDesktopServices>
#include <QUrl>

UpdateEnvironment::UpdateEnvironment()
    : folder(UpdateFolder::standardPath())
    , keys(makerKeys())
    , open([](const QString &path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); })
    , now(&QDateTime::currentDateTime)
{
}
