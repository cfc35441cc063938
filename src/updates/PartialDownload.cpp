// SPDX-License-Identifier: MIT
#include "updates/PartialDownload.h"

#include "updates/OwnFile.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr qint64 mostSourceBytes = 65536; // an address can be long

const QString versionKeyName = QStringLiteral("version");
const QString urlKeyName = QStringLiteral("url");
const QString bytesKeyName = QStringLiteral("bytes");
const QString validatorKeyName = QStringLiteral("validator");

void writeSource(const QString &path, const DownloadSource &source)
{
    const QJsonObject object{{versionKeyName, source.version},
                             {urlKeyName, source.url},
                             {bytesKeyName, double(source.bytes)},
                             {validatorKeyName, QString::fromLatin1(source.validator)}};
    QFile file;
    const int descriptor = createOwnFile(path);
    if (descriptor >= 0 && file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle))
        file.write(QJsonDocument(object).toJson());
}

// With empty texts when it cannot be read.
DownloadSource readSource(const QString &path)
{
    QFile file;
    const int descriptor = openOwnFile(path, O_RDONLY);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.read(mostSourceBytes)).object();
    return {object.value(versionKeyName).toString(), object.value(urlKeyName).toString(),
            qint64(object.value(bytesKeyName).toDouble()), object.value(validatorKeyName).toString().toLatin1()};
}

// Also for a link that leads nowhere.
bool hasEntry(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0;
}

} // namespace

void PartialDownload::setTarget(const QString &setupPath)
{
    close();
    m_setupPath = setupPath;
}

std::optional<PartialDownload::Rest> PartialDownload::rest(const QString &version, const QString &url) const
{
    const DownloadSource source = readSource(sourcePath());
    const qint64 bytes = ownFileSize(partPath());
    const bool same = source.version == version && source.url == url && !source.validator.isEmpty();
    if (!same || bytes <= 0 || bytes >= source.bytes)
        return {};
    return Rest{source, bytes};
}

bool PartialDownload::start(const DownloadSource &source)
{
    close();
    QFile::remove(sourcePath()); // first, so that it never describes other bytes than those that are there
    if (!open(createOwnFile(partPath()), QIODevice::WriteOnly))
        return false;
    if (source.bytes > 0 && !source.validator.isEmpty())
        writeSource(sourcePath(), source);
    return true;
}

bool PartialDownload::resume(qint64 bytes)
{
    close();
    return open(openOwnFile(partPath(), O_WRONLY | O_APPEND), QIODevice::WriteOnly | QIODevice::Append) &&
           m_file.size() == bytes;
}

bool PartialDownload::open(int descriptor, QIODevice::OpenMode mode)
{
    if (descriptor < 0)
        m_error = qt_error_string(errno);
    else if (!m_file.open(descriptor, mode | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        m_error = m_file.errorString();
    return m_file.isOpen();
}

bool PartialDownload::write(const QByteArray &data)
{
    qint64 written = 0;
    while (written < data.size()) {
        // On a disk that is filling up less is written than was asked for; only the next time there is a reason.
        const qint64 bytes = m_file.write(data.constData() + written, data.size() - written);
        if (bytes <= 0) {
            m_error = m_file.errorString();
            return false;
        }
        written += bytes;
    }
    return true;
}

bool PartialDownload::finish()
{
    close();
    QFile::remove(sourcePath());
    // Unlike Qt's, this replaces an older file in one step.
    if (::rename(QFile::encodeName(partPath()).constData(), QFile::encodeName(m_setupPath).constData()) == 0)
        return true;
    m_error = qt_error_string(errno);
    return false;
}

void PartialDownload::adoptSetupFile() const
{
    const QByteArray part = QFile::encodeName(partPath());
    if (ownFileSize(m_setupPath) < 0 || hasEntry(part))
        return;
    QFile::remove(sourcePath());
    // Qt's own way would copy into the target of a link that has the name. Where this fails, the setup file stays until
    // the next one replaces it.
    ::renameat2(AT_FDCWD, QFile::encodeName(m_setupPath).constData(), AT_FDCWD, part.constData(), RENAME_NOREPLACE);
}

void PartialDownload::leave()
{
    if (!m_file.isOpen())
        return;
    close();
    if (ownFileSize(sourcePath()) < 0)
        remove();
}

void PartialDownload::remove()
{
    close();
    if (m_setupPath.isEmpty())
        return;
    QFile::remove(sourcePath());
    QFile::remove(partPath());
}
