// SPDX-License-Identifier: MIT
#include "ui/ExitWidget.h"

#include "model/MainModel.h"
#include "ui/QuestionBox.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

static constexpr QSize iconSize(48, 48);

ExitWidget::ExitWidget(const MainModel *model, QWidget *parent)
    : QDialog(parent)
    , m_model(model)
    , m_progressLabel(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto *icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/img/main-icon.png")).pixmap(parent->windowHandle(), iconSize));
    auto *question = new QLabel(tr("Do you want to quit anyway?"), this);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Yes | QDialogButtonBox::No, this);
    buttons->button(QDialogButtonBox::No)->setDefault(true);
    removeIcons(buttons);
    auto *layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(24, 24, 24, 16);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    layout->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(m_progressLabel, 0, 1);
    layout->addWidget(question, 1, 1);
    layout->setRowMinimumHeight(2, 8);
    layout->addWidget(buttons, 3, 0, 1, 2);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(model, &MainModel::activeCountChanged, this, &ExitWidget::countChanged);
    countChanged();
}

void ExitWidget::countChanged()
{
    const int count = m_model->activeCount();
    m_progressLabel->setText(tr("Search for %n songs is currently in progress.", nullptr, count));
    setAccessibleName(m_progressLabel->text()); // it has no title
    if (count == 0 && isVisible())
        accept();
}
