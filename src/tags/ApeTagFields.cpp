// SPDX-License-Identifier: MIT
#include "tags/ApeTagFields.h"

#include "tags/TagText.h"

#include <taglib/apeitem.h>
#include <taglib/apetag.h>

namespace tags::ape {

bool setLyrics(TagLib::APE::Tag &tag, const QString &lyrics)
{
    constexpr const char *lyricsItem = "LYRICS";
    const TagLib::String text = toTagText(lyrics);
    const TagLib::APE::ItemListMap &items = tag.itemListMap();
    const auto present = items.find(lyricsItem);
    if (text.isEmpty() ? present == items.end()
                       : present != items.end() && present->second.values() == TagLib::StringList(text))
        return false;
    tag.removeItem(lyricsItem);
    if (!text.isEmpty())
        tag.setItem(lyricsItem, TagLib::APE::Item(lyricsItem, text));
    return true;
}

} // namespace tags::ape
