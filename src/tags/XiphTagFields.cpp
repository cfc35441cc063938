// SPDX-License-Identifier: MIT
#include "tags/XiphTagFields.h"

#include "tags/NumberPair.h"
#include "tags/TagKeys.h"
#include "tags/TagRating.h"
#include "tags/TagText.h"

#include <taglib/xiphcomment.h>

namespace tags::xiph {

namespace {

using TagLib::Ogg::XiphComment;

constexpr const char *lyricsField = "LYRICS";

struct PairFields
{
    const char *number;
    const char *olderNumber;
    const char *total;
};

constexpr PairFields trackFields{"TRACKNUMBER", "TRACK", "TRACKTOTAL"};
constexpr PairFields discFields{"DISCNUMBER", "DISC", "DISCTOTAL"};

const PairFields *pairOf(const QString &key)
{
    if (key == keys::track)
        return &trackFields;
    return key == keys::disc ? &discFields : nullptr;
}

constexpr std::array<KeyName, 6> names{{{keys::rating, "RATING"},
                                        {keys::bpm, "BPM"},
                                        {keys::composer, "COMPOSER"},
                                        {keys::albumArtist, "ALBUMARTIST"},
                                        {keys::lyrics, lyricsField},
                                        {keys::cuesheet, "CUESHEET"}}};

TagLib::StringList valuesOf(const XiphComment &tag, const char *field)
{
    return tag.contains(field) ? tag.fieldListMap()[field] : TagLib::StringList();
}

QString firstText(const XiphComment &tag, const char *field)
{
    for (const TagLib::String &text : valuesOf(tag, field)) {
        if (!text.isEmpty())
            return fromTagText(text);
    }
    return {};
}

QString pairText(const XiphComment &tag, const PairFields &fields)
{
    QString number = firstText(tag, fields.number);
    if (number.isEmpty())
        number = firstText(tag, fields.olderNumber);
    const QString total = firstText(tag, fields.total);
    return number.isEmpty() || total.isEmpty() ? number : number + QLatin1Char('/') + total;
}

QString rating(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber)
        return {};
    return QString::number(number <= 5 ? qMax(0, number) : starsFromPercent(number));
}

void setField(XiphComment &tag, const char *field, const QString &value)
{
    tag.removeFields(field);
    if (!value.isEmpty())
        tag.addField(field, toTagText(value));
}

void setPair(XiphComment &tag, const PairFields &fields, const QString &value)
{
    const auto pair = parseNumberPair(value);
    if (!pair && !value.isEmpty())
        return;
    tag.removeFields(fields.olderNumber);
    setField(tag, fields.number, pair ? QString::number(pair->number) : QString());
    setField(tag, fields.total, pair && pair->total > 0 ? QString::number(pair->total) : QString());
}

} // namespace

QString value(const XiphComment &tag, const QString &key)
{
    if (const PairFields *pair = pairOf(key))
        return pairText(tag, *pair);
    const char *field = nameOf(names, key);
    if (!field)
        return {};
    const QString text = firstText(tag, field);
    return key == keys::rating ? rating(text) : text;
}

void setValue(XiphComment &tag, const QString &key, const QString &value)
{
    if (const PairFields *pair = pairOf(key))
        setPair(tag, *pair, value);
    else if (const char *field = nameOf(names, key))
        setField(tag, field, value);
}

bool setLyrics(XiphComment &tag, const QString &lyrics)
{
    const TagLib::StringList present = valuesOf(tag, lyricsField);
    if (lyrics.isEmpty() ? present.isEmpty() : present == TagLib::StringList(toTagText(lyrics)))
        return false;
    setField(tag, lyricsField, lyrics);
    return true;
}

} // namespace tags::xiph
