// SPDX-License-Identifier: MIT
#include "tags/TagFields.h"

#include "tags/ApeTagFields.h"
#include "tags/AsfTagFields.h"
#include "tags/Id3v2TagFields.h"
#include "tags/Mp4TagFields.h"
#include "tags/TagKeys.h"
#include "tags/TagKind.h"
#include "tags/TagText.h"
#include "tags/XiphTagFields.h"

#include <taglib/apetag.h>
#include <taglib/asftag.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4tag.h>
#include <taglib/xiphcomment.h>

#include <QStringList>

#include <algorithm>

namespace tags {

namespace {

bool isBasic(const QString &key)
{
    return std::any_of(basicKeys.begin(), basicKeys.end(), [&key](QLatin1String basic) { return key == basic; });
}

QString basicValue(const TagLib::Tag &tag, const QString &key)
{
    if (key == keys::title)
        return fromTagText(tag.title());
    if (key == keys::artist)
        return fromTagText(tag.artist());
    if (key == keys::album)
        return fromTagText(tag.album());
    if (key == keys::genre)
        return fromTagText(tag.genre());
    if (key == keys::comment)
        return fromTagText(tag.comment());
    return tag.year() > 0 ? QString::number(tag.year()) : QString();
}

void setBasicValue(TagLib::Tag &tag, const QString &key, const QString &value)
{
    if (key == keys::title)
        tag.setTitle(toTagText(value));
    else if (key == keys::artist)
        tag.setArtist(toTagText(value));
    else if (key == keys::album)
        tag.setAlbum(toTagText(value));
    else if (key == keys::genre)
        tag.setGenre(toTagText(value));
    else if (key == keys::comment)
        tag.setComment(toTagText(value));
    else
        tag.setYear(static_cast<unsigned>(qMax(0, value.toInt())));
}

QString extendedValue(const TagLib::Tag &tag, const QString &key)
{
    switch (kindOf(&tag)) {
    case TagKind::Asf:
        return asf::value(static_cast<const TagLib::ASF::Tag &>(tag), key);
    case TagKind::Id3v2:
        return id3v2::value(static_cast<const TagLib::ID3v2::Tag &>(tag), key);
    case TagKind::Mp4:
        return mp4::value(static_cast<const TagLib::MP4::Tag &>(tag), key);
    case TagKind::Xiph:
        return xiph::value(static_cast<const TagLib::Ogg::XiphComment &>(tag), key);
    default:
        return {};
    }
}

void setExtendedValue(TagLib::Tag &tag, const QString &key, const QString &value)
{
    switch (kindOf(&tag)) {
    case TagKind::Asf:
        return asf::setValue(static_cast<TagLib::ASF::Tag &>(tag), key, value);
    case TagKind::Id3v2:
        return id3v2::setValue(static_cast<TagLib::ID3v2::Tag &>(tag), key, value);
    case TagKind::Mp4:
        return mp4::setValue(static_cast<TagLib::MP4::Tag &>(tag), key, value);
    case TagKind::Xiph:
        return xiph::setValue(static_cast<TagLib::Ogg::XiphComment &>(tag), key, value);
    default:
        return;
    }
}

// ID3v1 is Latin-1, and TagLib stores a text of other characters as nothing at all: the name that is there is better.
bool setId3v1Name(TagLib::Tag &tag, const QString &key, const QString &name)
{
    constexpr int fieldLength = 30; // bytes; https://id3.org/ID3v1
    const QString single = key == keys::artist ? name.section(artistSeparator, 0, 0, QString::SectionSkipEmpty) : name;
    const TagLib::String stored = toTagText(single.left(fieldLength)).stripWhiteSpace(); // as the library reads it
    if (single.isEmpty() || !toTagText(single).isLatin1() || value(tag, key) == fromTagText(stored))
        return false;
    setBasicValue(tag, key, single);
    return true;
}

// A name is told from the stored one by the text as it is read, so that two artists whose names are read as one text
// stay two. Between the artists there may be nothing; nothing but that is no name.
bool setId3v2Name(TagLib::ID3v2::Tag &tag, const QString &key, const QString &name)
{
    if (key != keys::artist) {
        setBasicValue(tag, key, name);
        return true;
    }
    const QString artists = name.split(artistSeparator, Qt::SkipEmptyParts).join(artistSeparator);
    if (artists.isEmpty() || artists == id3v2::value(tag, key))
        return false;
    id3v2::setValue(tag, key, artists);
    return true;
}

} // namespace

QString value(const TagLib::Tag &tag, const QString &key)
{
    return cleanedText(isBasic(key) ? basicValue(tag, key) : extendedValue(tag, key),
                       key == keys::lyrics ? maximumLyricsLength : maximumFieldLength);
}

void setValue(TagLib::Tag &tag, const QString &key, const QString &value)
{
    if (isBasic(key))
        setBasicValue(tag, key, value);
    else
        setExtendedValue(tag, key, value);
}

bool setName(TagLib::Tag &tag, const QString &key, const QString &name)
{
    const TagKind kind = kindOf(&tag);
    if (kind == TagKind::Id3v1)
        return setId3v1Name(tag, key, name);
    if (value(tag, key) == name)
        return false;
    if (kind == TagKind::Id3v2)
        return setId3v2Name(static_cast<TagLib::ID3v2::Tag &>(tag), key, name);
    setBasicValue(tag, key, name);
    return true;
}

bool setLyrics(TagLib::Tag &tag, const QString &lyrics)
{
    switch (kindOf(&tag)) {
    case TagKind::Ape:
        return ape::setLyrics(static_cast<TagLib::APE::Tag &>(tag), lyrics);
    case TagKind::Asf:
        return asf::setLyrics(static_cast<TagLib::ASF::Tag &>(tag), lyrics);
    case TagKind::Id3v2:
        return id3v2::setLyrics(static_cast<TagLib::ID3v2::Tag &>(tag), lyrics);
    case TagKind::Mp4:
        return mp4::setLyrics(static_cast<TagLib::MP4::Tag &>(tag), lyrics);
    case TagKind::Xiph:
        return xiph::setLyrics(static_cast<TagLib::Ogg::XiphComment &>(tag), lyrics);
    default:
        return false;
    }
}

bool canHoldLyrics(const TagLib::Tag &tag)
{
    const TagKind kind = kindOf(&tag);
    return kind != TagKind::Id3v1 && kind != TagKind::Other;
}

} // namespace tags
