// SPDX-License-Identifier: MIT
#include "ui/UsageExample.h"

#include "tracking/AppTracker.h"
#include "ui/QuestionBox.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

static constexpr QSize usualSize(560, 420);

UsageExample::UsageExample(AppTracker *tracker, QWidget *parent)
    : QDialog(parent)
    , m_tracker(tracker)
    , m_content(new QPlainTextEdit(this))
{
    setWindowTitle(tr("Example of a usage event"));
    auto *words = new QLabel(tr("This is sent whenever a search for a song begins; the song is made up here. The start "
                                "and the end of the program, an update, clicks on the maker's pages and a window that "
                                "cannot be drawn are reported in the same way, without names of songs."),
                             this);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setBuddy(m_content);
    m_content->setObjectName(QStringLiteral("usageExampleText"));
    m_content->setAccessibleName(windowTitle());
    m_content->setReadOnly(true);
    m_content->setTabChangesFocus(true);
    m_content->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_content->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    removeIcons(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addWidget(words);
    layout->addWidget(m_content);
    layout->addWidget(buttons);
    resize(usualSize);
    connect(m_tracker, &AppTracker::systemKnown, this, &UsageExample::updateText);
    updateText();
    m_tracker->findSystem();
    buttons->button(QDialogButtonBox::Close)->setFocus();
}

void UsageExample::updateText()
{
    m_content->setPlainText(m_tracker->searchExample(QStringLiteral("Nora Vale"), QStringLiteral("Harbour Lights"),
                                                     tr("(random, made when you say yes)")));
}
