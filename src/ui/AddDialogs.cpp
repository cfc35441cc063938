// SPDX-License-Identifier: MIT
#include "ui/AddDialogs.h"

#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "ui/QuestionBox.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileDialog>

static QFileDialog *makeDialog(const QString &title, SettingsKey folder, QFileDialog::FileMode mode, QWidget *parent)
{
    auto *dialog = new QFileDialog(parent, title, storedValue(SettingsStore(), folder).toString());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(mode);
    if (const auto *buttons = dialog->findChild<QDialogButtonBox *>()) // the desktop's own dialog has none
        removeIcons(buttons);
    return dialog;
}

static void remember(SettingsKey key, const QString &folder)
{
    SettingsChange change;
    change.set(key, folder);
    change.commit();
}

QFileDialog *makeAddFilesDialog(const QString &masks, QWidget *parent)
{
    QFileDialog *dialog = makeDialog(QCoreApplication::translate("AddDialogs", "Select file(s) to add"),
                                     SettingsKey::LastFileDir, QFileDialog::ExistingFiles, parent);
    dialog->setNameFilter(QCoreApplication::translate("AddDialogs", "Audio files") + QLatin1String(" (") + masks +
                          QLatin1Char(')'));
    return dialog;
}

QFileDialog *makeAddFolderDialog(QWidget *parent)
{
    QFileDialog *dialog = makeDialog(QCoreApplication::translate("AddDialogs", "Select folder to add"),
                                     SettingsKey::LastFolderDir, QFileDialog::Directory, parent);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return dialog;
}

void rememberFilesFolder(const QString &folder)
{
    remember(SettingsKey::LastFileDir, folder);
}

void rememberAddedFolder(const QString &folder)
{
    remember(SettingsKey::LastFolderDir, folder);
}
