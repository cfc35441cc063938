// SPDX-License-Identifier: MIT
#include "tags/Mp4TagFields.h"

#include "tags/NumberPair.h"
#include "tags/TagKeys.h"
#include "tags/TagRating.h"
#include "tags/TagText.h"

#include <taglib/mp4item.h>
#include <taglib/mp4tag.h>

namespace tags::mp4 {

namespace {

using TagLib::MP4::Item;

constexpr const char *lyricsItem = "\251lyr"; // 0xA9 is the copyright sign that item names of texts begin with
constexpr int percentPerStar = 20;

constexpr std::array<KeyName, 7> names{{{keys::track, "trkn"},
                                        {keys::disc, "disk"},
                                        {keys::rating, "rate"},
                                        {keys::bpm, "tmpo"},
                                        {keys::composer, "\251wrt"},
                                        {keys::albumArtist, "aART"},
                                        {keys::lyrics, lyricsItem}}};

QString textOf(const Item &item)
{
    const TagLib::StringList texts = item.toStringList();
    return texts.isEmpty() ? QString() : fromTagText(texts.front());
}

QString pairOf(const Item &item)
{
    const Item::IntPair pair = item.toIntPair();
    return numberPairText({pair.first, pair.second});
}

QString starsOf(const Item &item)
{
    bool isNumber = false;
    const int percent = textOf(item).toInt(&isNumber);
    return isNumber ? QString::number(qBound(0, percent / percentPerStar, 5)) : QString();
}

Item textItem(const QString &text)
{
    return Item(TagLib::StringList(toTagText(text)));
}

void setPair(TagLib::MP4::Tag &tag, const char *name, const QString &value)
{
    if (const auto pair = parseNumberPair(value))
        tag.setItem(name, Item(pair->number, pair->total));
}

void setRating(TagLib::MP4::Tag &tag, const char *name, const QString &value)
{
    const int stars = starsFromText(value);
    if (stars >= 0)
        tag.setItem(name, textItem(QString::number(stars * percentPerStar)));
}

} // namespace

QString value(const TagLib::MP4::Tag &tag, const QString &key)
{
    const char *name = nameOf(names, key);
    if (!name || !tag.contains(name))
        return {};
    const Item item = tag.item(name);
    if (key == keys::track || key == keys::disc)
        return pairOf(item);
    if (key == keys::rating)
        return starsOf(item);
    if (key == keys::bpm)
        return item.toInt() > 0 ? QString::number(item.toInt()) : QString();
    return textOf(item);
}

void setValue(TagLib::MP4::Tag &tag, const QString &key, const QString &value)
{
    const char *name = nameOf(names, key);
    if (!name)
        return;
    if (value.isEmpty())
        tag.removeItem(name);
    else if (key == keys::track || key == keys::disc)
        setPair(tag, name, value);
    else if (key == keys::rating)
        setRating(tag, name, value);
    else if (key == keys::bpm)
        tag.setItem(name, Item(value.toInt()));
    else
        tag.setItem(name, textItem(value));
}

bool setLyrics(TagLib::MP4::Tag &tag, const QString &lyrics)
{
    const TagLib::String text = toTagText(lyrics);
    if (text.isEmpty() && !tag.contains(lyricsItem))
        return false;
    if (tag.contains(lyricsItem) && tag.item(lyricsItem).toStringList() == TagLib::StringList(text))
        return false;
    setValue(tag, keys::lyrics, lyrics);
    return true;
}

} // namespace tags::mp4
