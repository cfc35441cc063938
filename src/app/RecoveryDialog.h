// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class RecoveryDialog;
}

// Lets a user whose settings keep the program from working start over: clears what is stored, all but how the window is
// drawn. The restart that this calls for is up to the owner.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RecoveryDialog(QWidget *parent = nullptr);
    ~RecoveryDialog() override;

    void setProgramInfo(const QString &name, const QString &version, const QPixmap &icon);

    // Whether the settings were cleared, however the dialog was closed then.
    [[nodiscard]] bool isRestartNeeded() const { return m_restartNeeded; }

private slots:
    // Asks first. Bound to the form by its name.
    void on_btnClearSettings_clicked();

private:
    void clearSettings();

    const std::unique_ptr<Ui::RecoveryDialog> m_form;
    bool m_restartNeeded = false;
};
