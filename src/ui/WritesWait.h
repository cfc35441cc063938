// SPDX-License-Identifier: MIT
#pragma once

#include "tags/WriterThread.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <functional>

class MainModel;
class QMessageBox;
class QWidget;

// Waits until none of some songs is being written any more, or the writer has made no progress for 30 s, while the
// window lives on but takes no input. A wait that can be noticed is shown in a box, where the user may call it off.
// Main thread only.
class WritesWait : public QObject
{
    Q_OBJECT

public:
    using Songs = std::function<QVector<quint16>()>; // their ids, asked for at each look

    // The model is not owned and must outlive the wait, which belongs to the window and deletes itself at its end.
    WritesWait(const MainModel *model, Songs songs, QWidget *window);
    ~WritesWait() override;

    // Whether there is anything to wait for.
    [[nodiscard]] static bool isNeeded(const MainModel &model, const QVector<quint16> &ids);

    // Keeps what the user does from the program until the box is shown, which does so by itself from then on.
    bool eventFilter(QObject *watched, QEvent *event) override;

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
    Songs m_songs;
    tags::WriterThread::Progress m_progress;
    QDeadlineTimer m_deadline;
    QTimer m_next;
    QPointer<QMessageBox> m_box;
};
