// SPDX-License-Identifier: MIT
#include "app/RecoveryDialog.h"

#include "network/SettingsStore.h"
#include "settings/SettingsChange.h"
#include "settings/SettingsFile.h"
#include "ui/QuestionBox.h"
#include "ui_RecoveryDialog.h"

#include <QDialogButtonBox>
#include <QMessageBox>

namespace {

const QVector<SettingsKey> &keptKeys()
{
    static const QVector<SettingsKey> keys{SettingsKey::OpenGlMethod};
    return keys;
}

} // namespace

RecoveryDialog::RecoveryDialog(QWidget *parent)
    : QDialog(parent)
    , m_form(std::make_unique<Ui::RecoveryDialog>())
{
    m_form->setupUi(this);
    // The choices are there but not offered.
    m_form->frameOpenGL->hide();
    m_form->line->hide();
    m_form->lblCleared->hide();
    m_form->buttonBox->setStandardButtons(QDialogButtonBox::Ok);
    removeIcons(m_form->buttonBox);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

RecoveryDialog::~RecoveryDialog() = default;

void RecoveryDialog::setProgramInfo(const QString &name, const QString &version, const QPixmap &icon)
{
    m_form->lblProgramName->setText(name);
    m_form->lblProgramVersion->setText(version);
    m_form->lblLogo->setPixmap(icon);
    setWindowIcon(icon);
}

void RecoveryDialog::on_btnClearSettings_clicked()
{
    auto *question = new QMessageBox(QMessageBox::Warning, tr("Clear settings"),
                                     tr("All settings will be removed and returned to default values. Are you sure?"),
                                     QMessageBox::Yes | QMessageBox::No, this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::No);
    removeIcons(question->findChild<QDialogButtonBox *>());
    connect(question, &QDialog::finished, this, [this](int answer) {
        if (answer == QMessageBox::Yes)
            clearSettings();
    });
    question->open();
}

void RecoveryDialog::clearSettings()
{
    SettingsChange change;
    change.keepOnly(keptKeys());
    if (change.commit()) {
        removeDamagedCopies(SettingsStore::path());
        m_restartNeeded = true;
        m_form->btnClearSettings->setEnabled(false);
        m_form->buttonBox->button(QDialogButtonBox::Ok)->setFocus();
        m_form->lblCleared->setText(tr("All settings were cleared. The program starts anew after OK."));
    } else {
        m_form->lblCleared->setText(tr("The settings cannot be cleared: their file cannot be written."));
    }
    m_form->lblCleared->show();
}
