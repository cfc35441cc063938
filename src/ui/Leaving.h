// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class AppTracker;
class ExitWidget;
class LyricsEditGuard;
class MainModel;
class QWidget;
class UnsavedLyricsGuard;

// The end of the program, as its window comes to it: what is asked before, and the report of it. Main thread only.
class Leaving : public QObject
{
    Q_OBJECT

public:
    // Works on the window that is to be left, and belongs to it. Nothing is owned, and all must outlive the object; the
    // tracker may be null.
    Leaving(QWidget *window, const MainModel *model, LyricsEditGuard *editGuard, UnsavedLyricsGuard *unsavedGuard,
            AppTracker *tracker);
    ~Leaving() override;

    // Nothing is asked any more.
    [[nodiscard]] bool isDecided() const { return m_isDecided; }

    // Runs an action that ends the program, once nothing is lost by that which the user wants to keep.
    void before(const std::function<void()> &leave);
    // Goes on with accept() when nobody objects.
    void quit();
    // Hides the window, reports the end of the session, and closes the window when the report is through, or after a
    // second.
    void accept();
    // Closes the window, which ends the event loop.
    void force();

private:
    void askAboutSearches(const std::function<void()> &leave);

    QWidget *m_window;
    const MainModel *m_model;
    LyricsEditGuard *m_editGuard;
    UnsavedLyricsGuard *m_unsavedGuard;
    AppTracker *m_tracker;
    QPointer<ExitWidget> m_question; // while it is open
    bool m_isDecided = false;
};
