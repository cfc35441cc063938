// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QSettings>

// The program's settings file, and no other. QSettings reads three more files by default, of the organisation and of
// the machine: what stands there unseen would count as the user's own answers, and one that never answers, or is
// damaged, would end the program before its window is there.
//
// It stands on the lowest floor since the base addresses can be overridden in that file. What the other keys are is the
// settings' business.
class SettingsStore : public QSettings
{
public:
    // Of the application's names, which must be set.
    SettingsStore();

    // Where the file lies; reads nothing.
    [[nodiscard]] static QString path(const QString &organisation = QCoreApplication::organizationName(),
                                      const QString &application = QCoreApplication::applicationName());
};
