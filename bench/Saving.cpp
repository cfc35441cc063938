// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "tags/TagWriter.h"

#include <fileref.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <unsynchronizedlyricsframe.h>

#include <QFile>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace {

const QString lyrics = QStringLiteral("A line of words that nobody has sung yet\r\n").repeated(75); // 3 kB

void syncFile(const QString &path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0 || ::fsync(file) != 0)
        qFatal("cannot sync %s", qPrintable(path));
    ::close(file);
}

// Frames of real audio without any tag, so that lyrics have no room and all of it has to move.
QByteArray songOf(int megabytes)
{
    QFile sample(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"));
    if (!sample.open(QIODevice::ReadOnly))
        qFatal("cannot read the sample");
    const QByteArray frames = sample.readAll();
    return frames.repeated(megabytes * 1'000'000 / frames.size());
}

QStringList makeSongs(const QString &folder, int count, const QByteArray &content)
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        QFile song(QStringLiteral("%1/song %2.mp3").arg(folder).arg(i));
        if (!song.open(QIODevice::WriteOnly) || song.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(song.fileName()));
        song.close();
        syncFile(song.fileName());
        paths.append(song.fileName());
    }
    return paths;
}

void savePlainly(const QStringList &paths)
{
    for (const QString &path : paths) {
        const TagLib::FileRef reference(QFile::encodeName(path).constData());
        auto &file = dynamic_cast<TagLib::MPEG::File &>(*reference.file());
        auto *frame = new TagLib::ID3v2::UnsynchronizedLyricsFrame; // the tag owns it
        frame->setText(TagLib::String(lyrics.toStdString()));
        file.ID3v2Tag(true)->addFrame(frame);
        if (!file.save(TagLib::MPEG::File::ID3v2, TagLib::File::StripNone, TagLib::ID3v2::v3))
            qFatal("cannot save %s", qPrintable(path));
        syncFile(path);
    }
}

// As the list does it.
void saveSafely(const QStringList &paths, const QString &dataFolder)
{
    const QScopedPointer<TagWriter, QScopedPointerDeleteLater> writer(new TagWriter(dataFolder));
    QObject::connect(writer.data(), &TagWriter::failed, writer.data(),
                     [](quint16, const QString &reason) { qFatal("not saved: %s", qPrintable(reason)); });
    for (const QString &path : paths)
        writer->queueWrite(QUrl::fromLocalFile(path), 0, {}, {}, lyrics);
    if (!TagWriter::waitForQueued(std::chrono::seconds(60)))
        qFatal("not saved");
}

struct Times
{
    double safe = 0;
    double plain = 0;
};

// In turns, each on fresh files, so that what else the machine does hits both.
Times timesOf(int songs, int megabytes)
{
    const int atOnce = std::max(1, songs / 20);
    const QByteArray content = songOf(megabytes);
    Times times;
    for (int done = 0; done < songs; done += atOnce) {
        const QTemporaryDir folder;
        QStringList paths = makeSongs(folder.path(), atOnce, content);
        times.plain += secondsOf([&paths] { savePlainly(paths); });
        paths = makeSongs(folder.path(), atOnce, content);
        times.safe += secondsOf([&] { saveSafely(paths, folder.filePath(QStringLiteral("data"))); });
    }
    return times;
}

} // namespace

void benchSaving()
{
    const int songs = benchSize(500);
    const QString name = QStringLiteral("save lyrics into MP3s of %1 MB / TagLib in place and a sync");
    const Times times = timesOf(songs, 5);
    BenchTable::printRow(name.arg(5), songs, times.safe, times.plain, 0, 0, {1.3});
    const Times larger = timesOf(songs / 10, 20);
    BenchTable::printRow(name.arg(20), songs / 10, larger.safe, larger.plain, times.safe / 10, 4,
                         {1.3, BenchTable::inStep});
}
