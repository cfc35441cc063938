// SPDX-License-Identifier: MIT
#include "ui/WritesWait.h"

#include "model/MainModel.h"
#include "ui/QuestionBox.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <chrono>
#include <utility>

// As long as the end of the program waits for a write that makes no progress.
static constexpr std::chrono::seconds patience(30);
static constexpr std::chrono::milliseconds lookInterval(50);
// Most writes are done before a box could be read.
static constexpr std::chrono::milliseconds unnoticed(400);

WritesWait::WritesWait(const MainModel *model, Songs songs, QWidget *window)
    : QObject(window)
    , m_model(model)
    , m_window(window)
    , m_songs(std::move(songs))
    , m_progress(tags::WriterThread::instance().progress())
    , m_deadline(patience)
{
    connect(&m_next, &QTimer::timeout, this, &WritesWait::look);
    m_next.start(lookInterval);
    QTimer::singleShot(unnoticed, this, &WritesWait::show);
    QCoreApplication::instance()->installEventFilter(this);
}

WritesWait::~WritesWait() = default;

bool WritesWait::isNeeded(const MainModel &model, const QVector<quint16> &ids)
{
    return std::any_of(ids.begin(), ids.end(), [&model](quint16 id) { return model.isWriting(id); });
}

// What has begun may end: releases and drops come through.
bool WritesWait::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::ContextMenu:
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void WritesWait::look()
{
    const tags::WriterThread::Progress progress = tags::WriterThread::instance().progress();
    if (progress.isSince(m_progress)) {
        m_progress = progress;
        m_deadline = QDeadlineTimer(patience);
    }
    if (isNeeded(*m_model, m_songs()) && !m_deadline.hasExpired())
        return;
    m_next.stop();
    QCoreApplication::instance()->removeEventFilter(this);
    if (m_box) {
        disconnect(m_box, nullptr, this, nullptr); // it is not the user who ends it
        m_box->reject();
    }
    deleteLater();
    emit done();
}

void WritesWait::show()
{
    if (!m_next.isActive())
        return;
    QCoreApplication::instance()->removeEventFilter(this);
    m_box = makeQuestionBox(tr("Changes are still being written into the songs."),
                            tr("It goes on by itself when this is done."), QMessageBox::Cancel, m_window);
    connect(m_box, &QMessageBox::finished, this, [this] {
        m_next.stop();
        deleteLater();
    });
    m_box->open();
}

void WritesWait::raise()
{
    if (!m_box)
        return;
    m_box->raise();
    m_box->activateWindow();
}
