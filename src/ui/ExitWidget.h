// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class MainModel;
class QLabel;

// Asks whether to quit while songs are still being searched for. When the last of these searches ends before an answer
// is given, it accepts by itself. It deletes itself when it is closed.
class ExitWidget : public QDialog
{
    Q_OBJECT

public:
    // The model is not owned and must outlive the question.
    explicit ExitWidget(const MainModel *model, QWidget *parent);

public slots:
    // The number of songs that are being searched for, or wait for it, has changed.
    void countChanged();

private:
    const MainModel *m_model;
    QLabel *m_progressLabel;
};
