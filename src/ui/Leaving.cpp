// SPDX-License-Identifier: MIT
#include "ui/Leaving.h"

#include "model/MainModel.h"
#include "tracking/AppTracker.h"
#include "ui/ExitWidget.h"
#include "ui/LyricsEditGuard.h"
#include "ui/UnsavedLyricsGuard.h"

#include <QTimer>

#include <chrono>

// How long the end of the program waits for the report of it.
static constexpr std::chrono::seconds reportPatience(1);

Leaving::Leaving(QWidget *window, const MainModel *model, LyricsEditGuard *editGuard, UnsavedLyricsGuard *unsavedGuard,
                 AppTracker *tracker)
    : QObject(window)
    , m_window(window)
    , m_model(model)
    , m_editGuard(editGuard)
    , m_unsavedGuard(unsavedGuard)
    , m_tracker(tracker)
{
}

Leaving::~Leaving() = default;

void Leaving::quit()
{
    if (!m_isDecided)
        before([this] { accept(); });
}

void Leaving::before(const std::function<void()> &leave)
{
    m_editGuard->before([this, leave] { askAboutSearches([this, leave] { m_unsavedGuard->beforeQuitting(leave); }); });
}

void Leaving::askAboutSearches(const std::function<void()> &leave)
{
    if (m_model->activeCount() == 0) {
        leave();
        return;
    }
    if (!m_question) {
        m_question = new ExitWidget(m_model, m_window);
        // Queued: the last search may end it, in the middle of the step that starts the write of what was found.
        connect(m_question, &QDialog::accepted, this, leave, Qt::QueuedConnection);
        connect(m_question, &QDialog::finished, this, [this] { m_question.clear(); });
    }
    m_question->open();
    m_question->raise();
    m_question->activateWindow();
}

void Leaving::accept()
{
    if (m_isDecided)
        return;
    m_isDecided = true;
    m_unsavedGuard->giveUp();
    m_window->hide();
    if (!m_tracker) {
        QTimer::singleShot(0, this, &Leaving::force);
        return;
    }
    connect(m_tracker, &AppTracker::quitTracked, this, &Leaving::force);
    m_tracker->trackQuit();
    QTimer::singleShot(reportPatience, this, &Leaving::force);
}

void Leaving::force()
{
    m_isDecided = true;
    m_window->close();
}
