// SPDX-License-Identifier: MIT
#include "settings/SettingsStandIn.h"

#include <QDir>
#include <QFile>
#include <QSettings>

static bool writeReadOnly(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
           file.setPermissions(QFile::ReadOwner);
}

SettingsStandIn::SettingsStandIn(const QString &folderName, const QString &fileName, const QByteArray &content)
{
    const bool isThere = m_folder.isValid() && QDir(m_folder.path()).mkdir(folderName) &&
                         writeReadOnly(m_folder.filePath(folderName + QLatin1Char('/') + fileName), content);
    // No file can lie under the other path.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       isThere ? m_folder.path() : QStringLiteral("/dev/null"));
}
