// SPDX-License-Identifier: MIT
#include "updates/UpdateFolder.h"

#include "updates/OwnFile.h"
#include "updates/VersionOrder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

void removeEntry(const QFileInfo &entry)
{
    if (entry.isDir() && !entry.isSymLink())
        QDir(entry.filePath()).removeRecursively();
    else
        QFile::remove(entry.filePath());
}

} // namespace

QString UpdateFolder::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QStringLiteral("/Update");
}

UpdateFolder::UpdateFolder(const QString &path)
    : m_path(path)
{
}

QString UpdateFolder::path(const QString &name) const
{
    return m_path + QLatin1Char('/') + name;
}

QString UpdateFolder::prepare() const
{
    const bool usable = QDir().mkpath(m_path) && isOwnFolder(m_path) && QFile::setPermissions(m_path, ownerOnly);
    if (usable)
        return {};
    return QCoreApplication::translate("UpdateFolder", "The folder %1 cannot be used.")
        .arg(QDir::toNativeSeparators(m_path));
}

void UpdateFolder::removeUpTo(const QString &version) const
{
    if (!isOwnFolder(m_path))
        return;
    const QFileInfoList entries =
        QDir(m_path).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString found = versionInName(entry.fileName());
        if (!found.isEmpty() && !isNewerVersion(found, version))
            removeEntry(entry);
    }
}

QString setupFileName(const QUrl &url)
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9_+][A-Za-z0-9._+-]{0,127}")));
    const QString name = url.path(QUrl::FullyEncoded).section(QLatin1Char('/'), -1);
    return pattern.match(name).hasMatch() ? name : QString();
}
