// SPDX-License-Identifier: MIT
#pragma once

#include "tags/WriterThread.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>

class MainModel;
class QMessageBox;
class QWidget;

// Waits until none of some songs is being written any more, or the writer has made no progress for 30 s, while the
// window lives on. A wait that can be noticed is shown in a box, where the user may call it off. Main thread only.
class WritesWait : public QObject
{
    Q_OBJECT

public:
    // The model is not owned and must outlive the wait, which belongs to the window and deletes itself at its end.
    WritesWait(const MainModel *model, const QVector<quint16> &ids, QWidget *window);
    ~WritesWait() override;

    // Whether there is anything to wait for.
    [[nodiscard]] static bool isNeeded(const MainModel &model, const QVector<quint16> &ids);

    // Brings the box before the user, when it is shown.
    void raise();

signals:
    // The wait is over. Not when the user called it off.
    void done();

private:
    void look();
    void show();

    const MainModel *m_model;
    QWidget *m_window;
    QVector<quint16> m_ids; // that are still being written
    tags::WriterThread::Progress m_progress;
    QDeadlineTimer m_deadline;
    QTimer m_next;
    QPointer<QMessageBox> m_box;
};
