// SPDX-License-Identifier: MIT
#include "tags/SongFiles.h"

#include "support/TestTable.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>

#include <sys/stat.h>

namespace {

// Answers one path after another, for as long as the test runs.
class ForeignReader : public QProcess
{
public:
    ForeignReader()
        : QProcess(QCoreApplication::instance())
    {
        start("/usr/bin/python3"_s, {QStringLiteral(VERSEWELL_TAG_READER)});
    }
    ~ForeignReader() override
    {
        closeWriteChannel();
        waitForFinished();
    }
    QByteArray answer(const QString &path)
    {
        write(path.toUtf8() + '\n');
        while (!canReadLine()) {
            if (!waitForReadyRead())
                qFatal("tags cannot be read: %s", readAllStandardError().constData());
        }
        return readLine();
    }
};

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
    static auto *const reader = new ForeignReader;
    QJsonObject tags = QJsonDocument::fromJson(reader->answer(path)).object();
    tags.remove("file"_s);
    return tags;
}

QByteArray SongFiles::audioDigest(const QString &path) const
{
    constexpr int apeHeaderAndFrames = 52 + 24 + 8 + 256 * 16; // as make-samples.py writes them
    if (path.endsWith(QLatin1String(".ape")))
        return read(path).left(apeHeaderAndFrames);
    const QStringList packets = "-map 0:a -c copy -f md5 -"_s.split(QLatin1Char(' '));
    QProcess ffmpeg;
    ffmpeg.start("ffmpeg"_s, QStringList{"-v"_s, "error"_s, "-nostdin"_s, "-i"_s, path} + packets);
    if (!ffmpeg.waitForFinished() || ffmpeg.exitCode() != 0)
        qFatal("ffmpeg failed: %s", ffmpeg.readAllStandardError().constData());
    return ffmpeg.readAllStandardOutput();
}
