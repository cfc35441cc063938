// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class TerminationSignals;

// What follows the recovery step at the start of the program.
enum class AfterRecovery {
    GoOn,
    StartAnew, // the settings were cleared, and this process must end
    End,       // a signal to end the program came while the dialog was open
};

// Shows the recovery dialog, and waits for its end, when Shift is among the keys that are held. To be called before
// anything that is stored takes effect on the user's files or window.
[[nodiscard]] AfterRecovery offerRecovery(Qt::KeyboardModifiers held, const TerminationSignals &signalsToEnd);

// Starts a process that outlives this one: its program is the first of the arguments, and it gets them all, so that it
// finds its own path once more among what it was given. This is deliberate. False when it could not be started.
[[nodiscard]] bool startDetached(const QStringList &arguments);
