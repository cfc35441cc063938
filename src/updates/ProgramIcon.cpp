// SPDX-License-Identifier: MIT
#include "updates/ProgramIcon.h"

#include <QIcon>
#include <QLabel>

static constexpr QSize iconSize(48, 48);

QPixmap programIcon(const QWidget *window)
{
    return QIcon(QStringLiteral(":/img/main-icon.png")).pixmap(window->window()->windowHandle(), iconSize);
}

QLabel *makeIconLabel(QWidget *dialog)
{
    auto *icon = new QLabel(dialog);
    icon->setObjectName(QStringLiteral("iconLabel"));
    icon->setPixmap(programIcon(dialog->parentWidget() ? dialog->parentWidget() : dialog));
    return icon;
}
