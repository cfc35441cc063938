// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "tags/TagUpdate.h"

#include <fileref.h>
#include <id3v2tag.h>
#include <mpegfile.h>
#include <unsynchronizedlyricsframe.h>

#include <QFile>
#include <QTemporaryDir>
#include <QVector>

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
void makeSong(const QString &path, int megabytes)
{
    QFile sample(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"));
    QFile song(path);
    if (!sample.open(QIODevice::ReadOnly) || !song.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    const QByteArray frames = sample.readAll();
    while (song.size() < megabytes * qint64(1'000'000))
        song.write(frames);
    song.close();
    syncFile(path);
}

void savePlainly(const QString &path)
{
    const TagLib::FileRef reference(QFile::encodeName(path).constData());
    auto &file = dynamic_cast<TagLib::MPEG::File &>(*reference.file());
    auto *frame = new TagLib::ID3v2::UnsynchronizedLyricsFrame; // the tag owns it
    frame->setText(TagLib::String(lyrics.toStdString()));
    file.ID3v2Tag(true)->addFrame(frame);
    if (!file.save(TagLib::MPEG::File::ID3v2, TagLib::File::StripNone, TagLib::ID3v2::v3))
        qFatal("cannot save %s", qPrintable(path));
    syncFile(path);
}

double median(QVector<double> times)
{
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

struct Times
{
    double safe = 0;
    double plain = 0;
};

// In turns, each on a fresh file, so that what else the machine does hits both.
Times timesOf(int megabytes)
{
    constexpr int rounds = 9;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("song.mp3"));
    QVector<double> safe;
    QVector<double> plain;
    for (int round = 0; round < rounds; ++round) {
        makeSong(path, megabytes);
        plain.append(secondsOf([&path] { savePlainly(path); }));
        makeSong(path, megabytes);
        safe.append(secondsOf([&] {
            if (tags::updateTags(path, {{}, {}, lyrics}, folder.filePath(QStringLiteral("data"))) !=
                tags::UpdateResult::Saved)
                qFatal("not saved");
        }));
    }
    return {median(safe), median(plain)};
}

} // namespace

void benchSaving()
{
    for (const int megabytes : {5, 55}) {
        const Times times = timesOf(megabytes);
        BenchTable::printRow(QStringLiteral("save an MP3 of so many MB / TagLib in place and a sync"), megabytes,
                             times.safe, times.plain);
    }
}
