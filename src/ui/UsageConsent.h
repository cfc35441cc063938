// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AppTracker;

// Whether usage events may be sent: the user's answer, which is stored as soon as it is given, and what the tracker is
// told of it. Nobody is asked where there is no collector, or where DO_NOT_TRACK in the environment says no.
class UsageConsent : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool pending READ isPending NOTIFY changed)

public:
    // The tracker is not owned and must outlive this. Nothing is asked or said before load().
    explicit UsageConsent(AppTracker *tracker, QObject *parent = nullptr);

    // Reads the answer that is stored, and the environment. Emits nothing. Once, after the application's names are set.
    void load();

    // Whether there is somebody to send events to.
    [[nodiscard]] bool isPossible() const { return m_isPossible; }
    // By the environment, whatever the answer is: unless DO_NOT_TRACK is absent, empty, "0" or "false".
    [[nodiscard]] bool isForbidden() const { return m_isForbidden; }
    // The user is still to be asked.
    [[nodiscard]] bool isPending() const { return m_isPossible && !m_isForbidden && m_answer == Answer::None; }
    [[nodiscard]] bool isGiven() const { return m_isPossible && !m_isForbidden && m_answer == Answer::Yes; }

public slots:
    // Stores the answer, and with a yes the identifier, which is made for the first one; a no removes it. Holds for
    // this run even when it cannot be stored. Nothing when the environment forbids it.
    void answer(bool yes);
    // Opens a window with an example of what is sent, over the active one.
    void showExample();

signals:
    void changed();

private:
    enum class Answer { None, Yes, No };

    AppTracker *m_tracker;
    bool m_isPossible = false;
    bool m_isForbidden = false;
    Answer m_answer = Answer::None;
};
