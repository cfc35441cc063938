// SPDX-License-Identifier: MIT
#include "settings/SettingsCopy.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// The file itself where the settings lie behind a symbolic link.
QString realPath(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

bool holds(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && wholeContent(&file) == content;
}

} // namespace

std::optional<QByteArray> wholeContent(QFile *file)
{
    QByteArray content = file->readAll();
    if (file->error() != QFile::NoError || content.size() != file->size())
        return {};
    return content;
}

bool giveSameOwner(QFile *file, const QString &path)
{
    struct stat wanted = {};
    struct stat own = {};
    if (stat(QFile::encodeName(path).constData(), &wanted) != 0)
        return errno == ENOENT;
    if (fstat(file->handle(), &own) != 0)
        return false;
    mode_t mode = wanted.st_mode & ACCESSPERMS;
    const bool isSame = own.st_uid == wanted.st_uid && own.st_gid == wanted.st_gid;
    if (!isSame && fchown(file->handle(), wanted.st_uid, wanted.st_gid) != 0) {
        if (own.st_uid != wanted.st_uid)
            return false;
        mode &= ~static_cast<mode_t>(S_IRWXG); // a group that the user is not in, and cannot give
    }
    return fchmod(file->handle(), mode) == 0;
}

// A name that was never used: QSettings remembers what it could not write under a name, and would add it later. And one
// that nobody gives to a copy of his own.
SettingsCopy::SettingsCopy(const QString &path)
    : m_path(realPath(path))
    , m_file(m_path + QLatin1String(".XXXXXX.part"))
{
}

bool SettingsCopy::write(const QByteArray &content)
{
    if (fileName().isEmpty() || !QFile::exists(fileName())) {
        if (!m_file.open())
            return false;
        m_file.close();
    }
    QFile file(fileName()); // QSettings may have put another one under this name
    const bool isWritten = file.open(QIODevice::WriteOnly) && giveSameOwner(&file, m_path) &&
                           file.write(content) == content.size() && file.flush();
    file.close();
    return isWritten && holds(fileName(), content);
}

bool SettingsCopy::takePlace()
{
    QFile file(fileName());
    const bool isRenamed =
        file.open(QIODevice::ReadOnly) && fsync(file.handle()) == 0 &&
        std::rename(QFile::encodeName(fileName()).constData(), QFile::encodeName(m_path).constData()) == 0;
    m_file.setAutoRemove(!isRenamed);
    return isRenamed;
}

void SettingsCopy::removeLeft(const QString &path)
{
    const QFileInfo file(realPath(path));
    // QSettings locks what it writes.
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(file.fileName()) + QLatin1String("\\.[A-Za-z]{6}\\.part(\\.lock)?")));
    QDir folder = file.dir();
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (pattern.match(name).hasMatch())
            folder.remove(name);
    }
}
