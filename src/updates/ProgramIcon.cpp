// SPDX-License-Identifier: MIT
#include "updates/ProgramIcon.h"

#include <QIcon>
#include <QLabel>

static constexpr QSize iconSize(48, 48);

QLabel *makeProgramIcon(QWidget *dialog)
{
    auto *icon = new QLabel(dialog);
    icon->setObjectName(QStringLiteral("iconLabel"));
    icon->setPixmap(QIcon(QStringLiteral(":/img/main-icon.png")).pixmap(dialog->window()->windowHandle(), iconSize));
    return icon;
}
