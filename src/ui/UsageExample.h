// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class AppTracker;
class QPlainTextEdit;

// Shows what is sent when a song is searched for, with an invented song. Sends nothing.
class UsageExample : public QDialog
{
    Q_OBJECT

public:
    // The tracker is not owned and must outlive this.
    explicit UsageExample(AppTracker *tracker, QWidget *parent = nullptr);

private:
    void updateText();

    AppTracker *m_tracker;
    QPlainTextEdit *m_content;
};
