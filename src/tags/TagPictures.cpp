// SPDX-License-Identifier: MIT
#include "tags/TagPictures.h"

#include "tags/FileTags.h"
#include "tags/TagKind.h"
#include "tags/TagText.h"

#include <taglib/asfpicture.h>
#include <taglib/asftag.h>
#include <taglib/attachedpictureframe.h>
#include <taglib/flacfile.h>
#include <taglib/flacpicture.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4coverart.h>
#include <taglib/mp4tag.h>
#include <taglib/xiphcomment.h>

#include <QRegularExpression>

#include <memory>

namespace tags {

namespace {

constexpr const char *id3v2Frame = "APIC";
constexpr const char *mp4Item = "covr";
constexpr const char *asfAttribute = "WM/Picture";
constexpr const char *xiphDescription = "Front Cover";

using Pictures = QVector<TagPicture>;

// ---- reading

QString formatOf(const TagLib::String &mimeType)
{
    static const QRegularExpression pattern(QStringLiteral("image/(.*)"));
    return pattern.match(fromTagText(mimeType)).captured(1);
}

QByteArray bytesOf(const TagLib::ByteVector &data)
{
    return {data.data(), static_cast<int>(data.size())};
}

// The picture frames of ID3v2, the pictures of ASF and those of FLAC have the same accessors.
template<typename Picture>
TagPicture pictureFrom(const Picture &picture)
{
    return {formatOf(picture.mimeType()), bytesOf([&] {
                if constexpr (std::is_same_v<Picture, TagLib::FLAC::Picture>)
                    return picture.data();
                else
                    return picture.picture();
            }()),
            fromTagText(picture.description()), static_cast<int>(picture.type())};
}

Pictures read(const TagLib::ID3v2::Tag &tag)
{
    Pictures pictures;
    const auto &frames = tag.frameListMap();
    const auto found = frames.find(id3v2Frame);
    if (found == frames.end())
        return pictures;
    for (const TagLib::ID3v2::Frame *frame : found->second) {
        if (const auto *picture = dynamic_cast<const TagLib::ID3v2::AttachedPictureFrame *>(frame))
            pictures.append(pictureFrom(*picture));
    }
    return pictures;
}

Pictures read(const TagLib::ASF::Tag &tag)
{
    Pictures pictures;
    for (const TagLib::ASF::Attribute &attribute : tag.attribute(asfAttribute)) {
        const TagLib::ASF::Picture picture = attribute.toPicture();
        if (picture.isValid())
            pictures.append(pictureFrom(picture));
    }
    return pictures;
}

QString formatOf(TagLib::MP4::CoverArt::Format format)
{
    switch (format) {
    case TagLib::MP4::CoverArt::JPEG:
        return QStringLiteral("jpeg");
    case TagLib::MP4::CoverArt::PNG:
        return QStringLiteral("png");
    case TagLib::MP4::CoverArt::BMP:
        return QStringLiteral("bmp");
    case TagLib::MP4::CoverArt::GIF:
        return QStringLiteral("gif");
    case TagLib::MP4::CoverArt::Unknown:
        break;
    }
    return {};
}

Pictures read(const TagLib::MP4::Tag &tag)
{
    Pictures pictures;
    if (!tag.contains(mp4Item))
        return pictures;
    for (const TagLib::MP4::CoverArt &cover : tag.item(mp4Item).toCoverArtList())
        pictures.append({formatOf(cover.format()), bytesOf(cover.data()), {}, 0});
    return pictures;
}

Pictures read(const TagLib::List<TagLib::FLAC::Picture *> &list)
{
    Pictures pictures;
    for (const TagLib::FLAC::Picture *picture : list)
        pictures.append(pictureFrom(*picture));
    return pictures;
}

Pictures read(TagLib::Tag &tag)
{
    switch (kindOf(&tag)) {
    case TagKind::Asf:
        return read(static_cast<TagLib::ASF::Tag &>(tag));
    case TagKind::Id3v2:
        return read(static_cast<TagLib::ID3v2::Tag &>(tag));
    case TagKind::Mp4:
        return read(static_cast<TagLib::MP4::Tag &>(tag));
    case TagKind::Xiph:
        return read(static_cast<TagLib::Ogg::XiphComment &>(tag).pictureList());
    default:
        return {};
    }
}

// ---- writing

TagLib::String mimeTypeOf(const TagPicture &picture)
{
    const QString format = picture.format.isEmpty() ? QStringLiteral("jpeg") : picture.format;
    return toTagText(QStringLiteral("image/%1").arg(format));
}

TagLib::ByteVector vectorOf(const QByteArray &data)
{
    return {data.constData(), static_cast<unsigned>(data.size())};
}

void write(TagLib::ID3v2::Tag &tag, const Pictures &pictures)
{
    tag.removeFrames(id3v2Frame);
    for (const TagPicture &picture : pictures) {
        auto frame = std::make_unique<TagLib::ID3v2::AttachedPictureFrame>();
        frame->setMimeType(mimeTypeOf(picture));
        frame->setType(static_cast<TagLib::ID3v2::AttachedPictureFrame::Type>(picture.type));
        frame->setTextEncoding(TagLib::String::UTF8);
        frame->setDescription(toTagText(picture.description));
        frame->setPicture(vectorOf(picture.data));
        tag.addFrame(frame.release()); // the tag owns it from here on
    }
}

void write(TagLib::ASF::Tag &tag, const Pictures &pictures)
{
    TagLib::ASF::AttributeList attributes;
    for (const TagPicture &picture : pictures) {
        TagLib::ASF::Picture made;
        made.setMimeType(mimeTypeOf(picture));
        made.setType(static_cast<TagLib::ASF::Picture::Type>(picture.type));
        made.setDescription(toTagText(picture.description));
        made.setPicture(vectorOf(picture.data));
        attributes.append(made);
    }
    tag.setAttribute(asfAttribute, attributes);
}

TagLib::MP4::CoverArt::Format mp4FormatOf(const QString &format)
{
    if (format == QLatin1String("png"))
        return TagLib::MP4::CoverArt::PNG;
    if (format == QLatin1String("bmp"))
        return TagLib::MP4::CoverArt::BMP;
    return format == QLatin1String("gif") ? TagLib::MP4::CoverArt::GIF : TagLib::MP4::CoverArt::JPEG;
}

void write(TagLib::MP4::Tag &tag, const Pictures &pictures)
{
    TagLib::MP4::CoverArtList covers;
    for (const TagPicture &picture : pictures)
        covers.append(TagLib::MP4::CoverArt(mp4FormatOf(picture.format), vectorOf(picture.data)));
    tag.setItem(mp4Item, covers);
}

std::unique_ptr<TagLib::FLAC::Picture> flacPicture(const TagPicture &picture)
{
    auto made = std::make_unique<TagLib::FLAC::Picture>();
    made->setMimeType(mimeTypeOf(picture));
    made->setType(static_cast<TagLib::FLAC::Picture::Type>(picture.type));
    made->setDescription(xiphDescription);
    made->setData(vectorOf(picture.data));
    return made;
}

void write(TagLib::Ogg::XiphComment &tag, const Pictures &pictures)
{
    tag.removeAllPictures();
    for (const TagPicture &picture : pictures)
        tag.addPicture(flacPicture(picture).release()); // the comment owns it from here on
}

void write(TagLib::FLAC::File &file, const Pictures &pictures)
{
    file.removePictures();
    for (const TagPicture &picture : pictures)
        file.addPicture(flacPicture(picture).release()); // the file owns it from here on
}

void write(TagLib::Tag &tag, const Pictures &pictures)
{
    switch (kindOf(&tag)) {
    case TagKind::Asf:
        return write(static_cast<TagLib::ASF::Tag &>(tag), pictures);
    case TagKind::Id3v2:
        return write(static_cast<TagLib::ID3v2::Tag &>(tag), pictures);
    case TagKind::Mp4:
        return write(static_cast<TagLib::MP4::Tag &>(tag), pictures);
    case TagKind::Xiph:
        return write(static_cast<TagLib::Ogg::XiphComment &>(tag), pictures);
    default:
        return;
    }
}

} // namespace

Pictures readPictures(TagLib::File &file)
{
    if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(&file)) {
        const Pictures blocks = read(flac->pictureList());
        if (!blocks.isEmpty())
            return blocks;
    }
    Pictures pictures;
    for (TagLib::Tag *member : tagsOf(file).members) {
        if (!member)
            break;
        pictures += read(*member);
    }
    return pictures;
}

void writePictures(TagLib::File &file, const Pictures &pictures)
{
    if (auto *flac = dynamic_cast<TagLib::FLAC::File *>(&file))
        return write(*flac, pictures);
    for (TagLib::Tag *member : tagsOf(file).members) {
        if (member)
            write(*member, pictures);
    }
}

} // namespace tags
