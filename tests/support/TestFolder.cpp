// SPDX-License-Identifier: MIT
#include "support/TestFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

QString TestFolder::path(const QString &name) const
{
    return name.isEmpty() ? m_folder.path() : QDir(m_folder.path()).filePath(name);
}

QString TestFolder::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QByteArray TestFolder::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

QStringList TestFolder::names(const QString &folder) const
{
    return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QString TestFolder::holdSettings() const
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path());
    QCoreApplication::setOrganizationName(QStringLiteral("Quillmarsh"));
    QCoreApplication::setApplicationName(QStringLiteral("Versewell"));
    return path(QStringLiteral("Quillmarsh/Versewell.conf"));
}
