// SPDX-License-Identifier: MIT
#include "tags/AsfTagFields.h"

#include "tags/TagKeys.h"
#include "tags/TagRating.h"
#include "tags/TagText.h"

#include <taglib/asfattribute.h>
#include <taglib/asftag.h>

namespace tags::asf {

namespace {

using TagLib::ASF::Attribute;

constexpr const char *lyricsName = "WM/Lyrics";
constexpr const char *userRatingName = "WM/SharedUserRating";
constexpr const char *trackName = "WM/TrackNumber";
constexpr const char *olderTrackName = "WM/Track";
constexpr unsigned largestUserRating = 100;
constexpr unsigned largestOlderTrack = 2000;

// The rating has two places of its own.
constexpr std::array<KeyName, 6> names{{{keys::track, trackName},
                                        {keys::disc, "WM/PartOfSet"},
                                        {keys::bpm, "WM/BeatsPerMinute"},
                                        {keys::composer, "WM/Composer"},
                                        {keys::albumArtist, "WM/AlbumArtist"},
                                        {keys::lyrics, lyricsName}}};

unsigned numberOf(const Attribute &attribute)
{
    switch (attribute.type()) {
    case Attribute::UnicodeType:
        return fromTagText(attribute.toString()).toUInt();
    case Attribute::WordType:
        return attribute.toUShort();
    case Attribute::QWordType:
        return static_cast<unsigned>(attribute.toULongLong());
    case Attribute::BoolType:
    case Attribute::DWordType:
        return attribute.toUInt();
    case Attribute::BytesType:
    case Attribute::GuidType:
        break;
    }
    return 0;
}

QString textOf(const Attribute &attribute)
{
    if (attribute.type() == Attribute::UnicodeType)
        return fromTagText(attribute.toString());
    const unsigned number = numberOf(attribute);
    return number > 0 ? QString::number(number) : QString();
}

QString firstText(const TagLib::ASF::Tag &tag, const char *name)
{
    const TagLib::ASF::AttributeList attributes = tag.attribute(name);
    return attributes.isEmpty() ? QString() : textOf(attributes.front());
}

QString track(const TagLib::ASF::Tag &tag)
{
    const QString text = firstText(tag, trackName);
    if (!text.isEmpty() || !tag.contains(olderTrackName))
        return text;
    const unsigned number = numberOf(tag.attribute(olderTrackName).front());
    return number >= 1 && number <= largestOlderTrack ? QString::number(number) : QString();
}

QString rating(const TagLib::ASF::Tag &tag)
{
    const QString text = fromTagText(tag.rating());
    if (!text.isEmpty() || !tag.contains(userRatingName))
        return text;
    const unsigned percent = numberOf(tag.attribute(userRatingName).front());
    return percent > largestUserRating ? QString() : QString::number(starsFromPercent(static_cast<int>(percent)));
}

// Into both places, since either may be the one that another player looks at.
void setRating(TagLib::ASF::Tag &tag, const QString &value)
{
    if (value.isEmpty()) {
        tag.setRating({});
        tag.removeItem(userRatingName);
        return;
    }
    const int stars = starsFromText(value);
    if (stars < 0)
        return;
    tag.setRating(toTagText(QString::number(stars)));
    tag.setAttribute(userRatingName, Attribute(static_cast<unsigned>(percentFromStars(stars))));
}

} // namespace

QString value(const TagLib::ASF::Tag &tag, const QString &key)
{
    if (key == keys::disc)
        return {};
    if (key == keys::track)
        return track(tag);
    if (key == keys::rating)
        return rating(tag);
    const char *name = nameOf(names, key);
    return name ? firstText(tag, name) : QString();
}

void setValue(TagLib::ASF::Tag &tag, const QString &key, const QString &value)
{
    if (key == keys::rating)
        return setRating(tag, value);
    const char *name = nameOf(names, key);
    if (!name)
        return;
    tag.removeItem(name);
    if (!value.isEmpty())
        tag.setAttribute(name, Attribute(toTagText(value)));
}

bool setLyrics(TagLib::ASF::Tag &tag, const QString &lyrics)
{
    const TagLib::ASF::AttributeList present = tag.attribute(lyricsName);
    if (lyrics.isEmpty() ? present.isEmpty() : present.size() == 1 && present.front().toString() == toTagText(lyrics))
        return false;
    setValue(tag, keys::lyrics, lyrics);
    return true;
}

} // namespace tags::asf
