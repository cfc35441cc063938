// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

// Stands in for a settings file that must not be read: as soon as one of these is made, the default store lies in a
// private folder, with this content, and nothing can be stored there.
//
// To be made before anything is read, and to live as long as the program. Where no folder can be made the store is
// empty. QSettings has no way back, so there is none here.
class SettingsStandIn
{
public:
    // `folderName` and `fileName` are those of the settings file itself.
    SettingsStandIn(const QString &folderName, const QString &fileName, const QByteArray &content);

private:
    QTemporaryDir m_folder;
};
