// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Program.h"
#include "SongFolder.h"
#include "Table.h"

#include "tags/CoverImage.h"
#include "ui/MainWindow.h"

#include <QCoreApplication>
#include <QFile>

#include <attachedpictureframe.h>
#include <fileref.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <mp4file.h>
#include <mpegfile.h>
#include <vorbisfile.h>

namespace {

// The first picture, as whoever knows the format of the file would look for it; empty when there is none.
TagLib::ByteVector firstPicture(TagLib::File *file)
{
    const auto pictureOf = [](const TagLib::List<TagLib::FLAC::Picture *> &pictures) {
        return pictures.isEmpty() ? TagLib::ByteVector() : pictures.front()->data();
    };
    if (auto *mpeg = dynamic_cast<TagLib::MPEG::File *>(file)) {
        const TagLib::ID3v2::FrameList frames = mpeg->ID3v2Tag()->frameList("APIC");
        return frames.isEmpty() ? TagLib::ByteVector()
                                : static_cast<TagLib::ID3v2::AttachedPictureFrame *>(frames.front())->picture();
    }
    if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(file))
        return pictureOf(flac->pictureList());
    if (auto *ogg = dynamic_cast<TagLib::Ogg::Vorbis::File *>(file))
        return pictureOf(ogg->tag()->pictureList());
    if (auto *mp4 = dynamic_cast<TagLib::MP4::File *>(file)) {
        const TagLib::MP4::CoverArtList covers = mp4->tag()->item("covr").toCoverArtList();
        return covers.isEmpty() ? TagLib::ByteVector() : covers.front().data();
    }
    return {};
}

// How many of the files have a cover.
int readBare(const QList<QUrl> &urls)
{
    int covers = 0;
    for (const QUrl &url : urls) {
        const TagLib::FileRef file(QFile::encodeName(url.toLocalFile()).constData());
        if (file.isNull() || file.tag()->title().isEmpty() || file.tag()->artist().isEmpty())
            qFatal("a sample has lost its tags");
        const TagLib::ByteVector picture = firstPicture(file.file());
        if (!decodeThumbnail(QByteArray(picture.data(), static_cast<int>(picture.size()))).isNull())
            ++covers;
    }
    return covers;
}

// How many of the files have a cover.
int readThroughModel(const QList<QUrl> &urls)
{
    MainModel model;
    model.setReaderProgram(QCoreApplication::applicationFilePath());
    model.setAutoStart(false);
    model.add(urls, MainModel::IsRegularFile); // as files that were found in folders
    turnUntil([&] { return model.rowCount() >= urls.size() && model.itemAt(urls.size() - 1)->tagsLoaded(); });
    int covers = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        covers += model.itemAt(row)->hasCover() ? 1 : 0;
    return covers;
}

// Once: so many files even out what else the machine does.
Pair readBoth(const QList<QUrl> &urls)
{
    int throughModel = 0;
    int bare = 0;
    const Pair times = medianRound(
        1, [&] { return processorSecondsOf([&] { throughModel = readThroughModel(urls); }); },
        [&] { return processorSecondsOf([&] { bare = readBare(urls); }); });
    if (throughModel != bare || bare == 0)
        qFatal("%d covers instead of %d", throughModel, bare);
    return times;
}

Turn longestTurn(const QList<QUrl> &urls)
{
    Program program;
    program.showWindow();
    const TurnWatch watch;
    program.load(urls);
    return watch.longest();
}

} // namespace

void benchReading()
{
    SongFolder folder;
    const QStringList samples{QStringLiteral("plain-v23.mp3"), QStringLiteral("plain.flac"),
                              QStringLiteral("plain.m4a"), QStringLiteral("plain.ogg")};
    for (int round = 0; round < 4; ++round) {
        for (const QString &sample : samples)
            folder.addOriginal(sample);
    }
    const QByteArray cover = coverPicture(500);
    for (const QString &sample : samples)
        folder.addOriginal(sample, cover);
    const QList<QUrl> many = folder.links(benchSize(20000));
    const QList<QUrl> few = many.mid(0, many.size() / 4);
    const QString name = QStringLiteral("read tags through the model / bare TagLib loop with the same covers");
    const Pair fewTimes = readBoth(few);
    BenchTable::printRow(name, few.size(), fewTimes.work, fewTimes.reference, 0, 0, {3});
    const Pair manyTimes = readBoth(many);
    BenchTable::printRow(name, many.size(), manyTimes.work, manyTimes.reference, fewTimes.work, 4,
                         {3, BenchTable::inStep});
    BenchTable::printTurn(QStringLiteral("longest turn of the window while they are read"), many.size(),
                          longestTurn(many), 50);
}
