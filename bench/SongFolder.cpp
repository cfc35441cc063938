// SPDX-License-Identifier: MIT
#include "SongFolder.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <attachedpictureframe.h>
#include <flacfile.h>
#include <id3v2tag.h>
#include <mp4file.h>
#include <mpegfile.h>
#include <vorbisfile.h>

#include <memory>
#include <random>

#include <unistd.h>

namespace {

void check(bool isDone, const QString &file)
{
    if (!isDone)
        qFatal("cannot make the song %s", qPrintable(file));
}

TagLib::ByteVector bytesOf(const QByteArray &data)
{
    return {data.constData(), static_cast<unsigned>(data.size())};
}

std::unique_ptr<TagLib::FLAC::Picture> pictureOf(const QByteArray &cover)
{
    auto picture = std::make_unique<TagLib::FLAC::Picture>();
    picture->setMimeType("image/jpeg");
    picture->setType(TagLib::FLAC::Picture::FrontCover);
    picture->setData(bytesOf(cover));
    return picture;
}

// In each of the four, the file owns what is added to it.
bool addToMpeg(const char *path, const QByteArray &cover)
{
    TagLib::MPEG::File file(path);
    auto frame = std::make_unique<TagLib::ID3v2::AttachedPictureFrame>();
    frame->setMimeType("image/jpeg");
    frame->setPicture(bytesOf(cover));
    file.ID3v2Tag(true)->addFrame(frame.release());
    return file.save();
}

bool addToFlac(const char *path, const QByteArray &cover)
{
    TagLib::FLAC::File file(path);
    file.addPicture(pictureOf(cover).release());
    return file.save();
}

bool addToMp4(const char *path, const QByteArray &cover)
{
    TagLib::MP4::File file(path);
    TagLib::MP4::CoverArtList covers;
    covers.append({TagLib::MP4::CoverArt::JPEG, bytesOf(cover)});
    file.tag()->setItem("covr", covers);
    return file.save();
}

bool addToOgg(const char *path, const QByteArray &cover)
{
    TagLib::Ogg::Vorbis::File file(path);
    file.tag()->addPicture(pictureOf(cover).release());
    return file.save();
}

bool addCover(const QString &path, const QByteArray &cover)
{
    const QByteArray name = QFile::encodeName(path);
    if (path.endsWith(QLatin1String(".mp3")))
        return addToMpeg(name.constData(), cover);
    if (path.endsWith(QLatin1String(".flac")))
        return addToFlac(name.constData(), cover);
    if (path.endsWith(QLatin1String(".m4a")))
        return addToMp4(name.constData(), cover);
    return addToOgg(name.constData(), cover);
}

} // namespace

QByteArray coverPicture(int side)
{
    constexpr int noise = 24; // of 256 steps
    std::minstd_rand random(1);
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int grain = static_cast<int>(random() % noise);
            image.setPixel(x, y, qRgb(x * 200 / side + grain, y * 200 / side + grain, (x / 50 + y / 70) % 200 + grain));
        }
    }
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    check(image.save(&buffer, "JPEG", 85), QStringLiteral("cover"));
    return jpeg;
}

void SongFolder::addOriginal(const QString &sample, const QByteArray &cover)
{
    const QString name = QStringLiteral("original %1 %2").arg(m_originals.size()).arg(sample);
    check(QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample, path(name)), sample);
    check(cover.isEmpty() || addCover(path(name), cover), sample);
    m_originals.append(name);
}

QList<QUrl> SongFolder::links(int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString &original = m_originals.at(i % m_originals.size());
        const QString link = path(QStringLiteral("%1 %2").arg(m_links++).arg(original));
        check(::link(QFile::encodeName(path(original)).constData(), QFile::encodeName(link).constData()) == 0, link);
        urls.append(QUrl::fromLocalFile(link));
    }
    return urls;
}
