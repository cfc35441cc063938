// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;
class UpdateChecker;

// Shows how far the download of the setup file has come, and then leads to its installation. Rejecting it aborts the
// download. It blocks the other windows only while the setup file is being opened.
class DownloadDialog : public QDialog
{
    Q_OBJECT

public:
    // The checker is not owned and must outlive this.
    explicit DownloadDialog(UpdateChecker *checker, QWidget *parent = nullptr);

public slots:
    // Not while the setup file is being checked or opened, which ends by itself.
    void reject() override;

private:
    void createButtons();
    void updateState();
    void showReady();
    void setBlocking(bool blocking);
    void showProgress(int progress, int total);

    UpdateChecker *m_checker;
    QLabel *m_status;
    QProgressBar *m_bar;
    QLabel *m_progress;
    QDialogButtonBox *m_buttons;
    QPushButton *m_install;
};
