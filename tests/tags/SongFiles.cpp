// SPDX-License-Identifier: MIT
#include "tags/SongFiles.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <sys/stat.h>

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

} // namespace

SongFiles::SongFiles()
{
    // For the tests that run as an ordinary user.
    ::chmod(QFile::encodeName(m_directory.path()).constData(), 0777);
}

QString SongFiles::copy(const QString &sample, const QString &name) const
{
    return write(name.isEmpty() ? sample : name, bytes(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample));
}

QString SongFiles::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QJsonObject SongFiles::tagsOf(const QString &path)
{
    const QByteArray json = outputOf(QStringLiteral("/usr/bin/python3"), {QStringLiteral(VERSEWELL_TAG_READER), path});
    QJsonObject tags = QJsonDocument::fromJson(json).array().first().toObject();
    tags.remove(QStringLiteral("file"));
    return tags;
}

QByteArray SongFiles::audioDigest(const QString &path)
{
    if (path.endsWith(QLatin1String(".ape"))) {
        constexpr int headerAndFrames = 52 + 24 + 8 + 256 * 16; // as make-samples.py writes them
        return bytes(path).left(headerAndFrames);
    }
    return outputOf(QStringLiteral("ffmpeg"),
                    {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-nostdin"), QStringLiteral("-i"),
                     path, QStringLiteral("-map"), QStringLiteral("0:a"), QStringLiteral("-c"), QStringLiteral("copy"),
                     QStringLiteral("-f"), QStringLiteral("md5"), QStringLiteral("-")});
}

QByteArray SongFiles::bytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}
