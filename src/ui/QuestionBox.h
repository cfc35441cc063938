// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

class ModelItem;
class QDialogButtonBox;

// A box that asks the user, to be opened by open(), after which it deletes itself. It belongs to the window. Its texts
// are plain.
[[nodiscard]] QMessageBox *makeQuestionBox(const QString &text, const QString &question,
                                           QMessageBox::StandardButtons buttons, QWidget *window);

// What a song is called in a question: its title or else its file's name, cut where it is long.
[[nodiscard]] QString shownName(const ModelItem &song, const QWidget *window);

// Leaves the buttons with their words alone, which look the same on desktops with and without a theme of icons.
void removeIcons(const QDialogButtonBox *buttons);
