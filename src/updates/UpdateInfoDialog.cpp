// SPDX-License-Identifier: MIT
#include "updates/UpdateInfoDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

// The words stand in the middle of it.
static constexpr int leastWidth = 280;

UpdateInfoDialog::UpdateInfoDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Update", "noun, title of dialog about 'checking for updates'"));
    auto *label = new QLabel(tr("Checking for update..."), this);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(leastWidth);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    buttons->setCenterButtons(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(24, 24, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(label);
    layout->addWidget(buttons);
}
