// SPDX-License-Identifier: MIT
#include "updates/DownloadDialog.h"

#include "updates/ProgramIcon.h"
#include "updates/UpdateChecker.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

static constexpr int barWidth = 320;

static QString megabytes(int bytes)
{
    return QLocale().toString(bytes / 1024.0 / 1024.0, 'f', 1);
}

DownloadDialog::DownloadDialog(UpdateChecker *checker, QWidget *parent)
    : QDialog(parent)
    , m_checker(checker)
    , m_status(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_progress(new QLabel(this))
    , m_buttons(new QDialogButtonBox(this))
    , m_install(m_buttons->addButton(tr("Exit and install"), QDialogButtonBox::AcceptRole))
{
    setWindowTitle(tr("Updating %1").arg(QCoreApplication::applicationName()));
    m_status->setObjectName(QStringLiteral("statusLabel"));
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_progress->setObjectName(QStringLiteral("progressLabel"));
    m_bar->setAccessibleName(tr("Progress of the download"));
    m_bar->setTextVisible(false);
    m_bar->setMinimumWidth(barWidth);
    createButtons();
    auto *layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(24, 24, 24, 16);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    layout->addWidget(makeIconLabel(this), 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(m_status, 0, 1);
    layout->addWidget(m_bar, 1, 1);
    layout->addWidget(m_progress, 2, 1);
    layout->setRowMinimumHeight(3, 8);
    layout->addWidget(m_buttons, 4, 0, 1, 2);
    connect(m_checker, &UpdateChecker::progressChanged, this, &DownloadDialog::showProgress);
    connect(m_checker, &UpdateChecker::stateChanged, this, &DownloadDialog::updateState);
    connect(m_checker, &UpdateChecker::installingChanged, this, &DownloadDialog::updateState);
    connect(this, &QDialog::rejected, m_checker, &UpdateChecker::abortDownload);
    connect(this, &QDialog::rejected, m_checker, &UpdateChecker::abortInstall);
    showProgress(0, 0);
    updateState();
}

void DownloadDialog::createButtons()
{
    m_install->setObjectName(QStringLiteral("installButton"));
    m_install->setDefault(true);
    // The focus stays here when the other button comes.
    QPushButton *cancel = m_buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setAutoDefault(false);
    cancel->setFocus();
    connect(m_buttons, &QDialogButtonBox::accepted, m_checker, &UpdateChecker::install);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void DownloadDialog::updateState()
{
    const bool isReady = m_checker->state() == UpdateChecker::InstallAvailable;
    m_install->setVisible(isReady);
    m_buttons->setEnabled(!m_checker->isInstalling());
    setBlocking(m_checker->isOpening());
    if (m_checker->isInstalling())
        m_status->setText(tr("Installing..."));
    else if (isReady)
        showReady();
    else
        m_status->setText(tr("Downloading update..."));
}

void DownloadDialog::showReady()
{
    m_status->setText(tr("Ready to install..."));
    m_progress->clear();
    m_bar->setMaximum(1);
    m_bar->setValue(1);
    QApplication::alert(this);
}

void DownloadDialog::showProgress(int progress, int total)
{
    m_bar->setMaximum(total); // 0: unknown, which shows a busy bar
    m_bar->setValue(progress);
    if (total > 0)
        m_progress->setText(tr("%1 MB of %2 MB").arg(megabytes(progress), megabytes(total)));
    else if (progress > 0)
        m_progress->setText(tr("%1 MB").arg(megabytes(progress)));
    else
        m_progress->setText(QStringLiteral(" ")); // keeps the line's height
}

// A window that is shown does not become modal before it is shown anew.
void DownloadDialog::setBlocking(bool blocking)
{
    if (blocking == isModal())
        return;
    const bool isShown = isVisible();
    hide();
    setModal(blocking);
    setVisible(isShown);
}

void DownloadDialog::reject()
{
    if (!m_checker->isInstalling())
        QDialog::reject();
}
