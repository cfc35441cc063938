// SPDX-License-Identifier: MIT
#include "tags/SongFiles.h"

#include "support/TestTable.h"

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
    ::chmod(QFile::encodeName(path()).constData(), 0777);
}

QString SongFiles::copy(const QString &sample, const QString &name) const
{
    return write(name.isEmpty() ? sample : name, read(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample));
}

tags::UpdateResult SongFiles::update(const QString &path, const tags::SongTexts &texts) const
{
    return tags::updateTags(path, texts, dataFolder());
}

QJsonObject SongFiles::tagsOf(const QString &path)
{
    const QByteArray json = outputOf("/usr/bin/python3"_s, {QStringLiteral(VERSEWELL_TAG_READER), path});
    QJsonObject tags = QJsonDocument::fromJson(json).array().first().toObject();
    tags.remove("file"_s);
    return tags;
}

QByteArray SongFiles::audioDigest(const QString &path) const
{
    constexpr int apeHeaderAndFrames = 52 + 24 + 8 + 256 * 16; // as make-samples.py writes them
    if (path.endsWith(QLatin1String(".ape")))
        return read(path).left(apeHeaderAndFrames);
    const QStringList packets = "-map 0:a -c copy -f md5 -"_s.split(QLatin1Char(' '));
    return outputOf("ffmpeg"_s, QStringList{"-v"_s, "error"_s, "-nostdin"_s, "-i"_s, path} + packets);
}
