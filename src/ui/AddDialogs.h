// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// The dialogs in which the user chooses what to add. They begin in the folder that the store has from the last time,
// are to be shown with open(), and delete themselves when they are closed.

// `masks` are the wanted files: "*.mp3 *.flac".
[[nodiscard]] QFileDialog *makeAddFilesDialog(const QString &masks, QWidget *parent);
[[nodiscard]] QFileDialog *makeAddFolderDialog(QWidget *parent);

// Has the next dialog begin there.
void rememberFilesFolder(const QString &folder);
void rememberAddedFolder(const QString &folder);
