// SPDX-License-Identifier: MIT
#include "ui/QuestionBox.h"

#include "model/ModelItem.h"

#include <QDialogButtonBox>
#include <QIcon>
#include <QPushButton>

static constexpr QSize pictureSize(48, 48);
// Of a song's name; in pixels.
static constexpr int widestName = 320;

QMessageBox *makeQuestionBox(const QString &text, const QString &question, QMessageBox::StandardButtons buttons,
                             QWidget *window)
{
    auto *box = new QMessageBox(QMessageBox::NoIcon, QString(), text, buttons, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(question);
    box->setAccessibleName(text); // it has no title
    box->setIconPixmap(QIcon(QStringLiteral(":/img/main-icon.png")).pixmap(window->windowHandle(), pictureSize));
    removeIcons(box->findChild<QDialogButtonBox *>());
    return box;
}

QString shownName(const ModelItem &song, const QWidget *window)
{
    const QString name = song.titleTag().isEmpty() ? song.filename() : song.titleTag();
    return window->fontMetrics().elidedText(name.simplified(), Qt::ElideMiddle, widestName);
}

void removeIcons(const QDialogButtonBox *buttons)
{
    for (QAbstractButton *button : buttons->buttons())
        button->setIcon({});
}
