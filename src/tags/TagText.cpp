// SPDX-License-Identifier: MIT
#include "tags/TagText.h"

#include <taglib/infotag.h>
#include <taglib/tstring.h>

#include <algorithm>

namespace tags {

namespace {

bool isUnwanted(QChar character)
{
    return character.category() == QChar::Other_Control && character != QLatin1Char('\t') &&
           character != QLatin1Char('\r') && character != QLatin1Char('\n');
}

// TagLib's class has no virtual destructor; this one is never destroyed.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
class InfoTextReader final : public TagLib::RIFF::Info::StringHandler
{
public:
    TagLib::String parse(const TagLib::ByteVector &data) const override
    {
        const TagLib::String text(data, TagLib::String::UTF8); // empty when it is not
        return text.isEmpty() ? TagLib::String(data, TagLib::String::Latin1) : text;
    }
};
#pragma GCC diagnostic pop

} // namespace

void acceptLatin1InRiffInfo()
{
    // A thread may still be reading when the process ends.
    static const auto *const reader = [] {
        const auto *made = new InfoTextReader;
        TagLib::RIFF::Info::Tag::setStringHandler(made);
        return made;
    }();
    Q_UNUSED(reader)
}

QString fromTagText(const TagLib::String &text)
{
    return QString::fromStdString(text.to8Bit(true));
}

TagLib::String toTagText(const QString &text)
{
    QString kept = text;
    kept.remove(QChar(QChar::Null));
    return TagLib::String(kept.toStdString(), TagLib::String::UTF8);
}

QString cleanedText(const QString &text, int maximumLength)
{
    QString cleaned = text;
    const auto end = std::remove_if(cleaned.begin(), cleaned.end(), isUnwanted);
    cleaned.truncate(static_cast<int>(end - cleaned.begin()));
    if (cleaned.size() > maximumLength) {
        const bool withinPair = maximumLength > 0 && cleaned.at(maximumLength - 1).isHighSurrogate();
        cleaned.truncate(withinPair ? maximumLength - 1 : maximumLength);
    }
    return cleaned;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) { return character.unicode() < 128; });
}

} // namespace tags
