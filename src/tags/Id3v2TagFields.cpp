// SPDX-License-Identifier: MIT
#include "tags/Id3v2TagFields.h"

#include "tags/TagKeys.h"
#include "tags/TagRating.h"
#include "tags/TagText.h"

#include <taglib/id3v2tag.h>
#include <taglib/popularimeterframe.h>
#include <taglib/textidentificationframe.h>
#include <taglib/unsynchronizedlyricsframe.h>

#include <QStringList>

#include <memory>

namespace tags::id3v2 {

namespace {

using TagLib::ByteVector;
using TagLib::ID3v2::FrameList;
using TagLib::ID3v2::PopularimeterFrame;
using TagLib::ID3v2::TextIdentificationFrame;
using TagLib::ID3v2::UnsynchronizedLyricsFrame;

constexpr const char *lyricsFrame = "USLT";
constexpr const char *artistFrame = "TPE1";
constexpr const char *ratingFrame = "POPM";
// The e-mail field by which Windows Media Player, and those who follow it, find their own rating.
constexpr QLatin1String windowsMediaEmail = latin1("Windows Media Player 9 Series");

constexpr std::array<KeyName, 5> textFrames{{{keys::track, "TRCK"},
                                             {keys::disc, "TPOS"},
                                             {keys::bpm, "TBPM"},
                                             {keys::composer, "TCOM"},
                                             {keys::albumArtist, "TPE2"}}};

FrameList framesOf(const TagLib::ID3v2::Tag &tag, const char *name)
{
    const auto &map = tag.frameListMap();
    const auto found = map.find(name);
    return found == map.end() ? FrameList() : found->second;
}

QString firstText(const FrameList &frames)
{
    for (const TagLib::ID3v2::Frame *frame : frames) {
        const QString text = fromTagText(frame->toString());
        if (!text.isEmpty())
            return text;
    }
    return {};
}

TagLib::String::Type encodingFor(const QString &text)
{
    return isAscii(text) ? TagLib::String::Latin1 : TagLib::String::UTF8;
}

bool isOfKnownPlayer(const PopularimeterFrame &frame)
{
    const QString email = fromTagText(frame.email());
    return email.contains(QLatin1String("Windows Media")) || email.contains(QLatin1String("@winamp.com"));
}

PopularimeterFrame *knownPlayersRating(const FrameList &frames)
{
    for (TagLib::ID3v2::Frame *frame : frames) {
        auto *rating = dynamic_cast<PopularimeterFrame *>(frame);
        if (rating && isOfKnownPlayer(*rating))
            return rating;
    }
    return nullptr;
}

QString rating(const TagLib::ID3v2::Tag &tag)
{
    const FrameList frames = framesOf(tag, ratingFrame);
    if (frames.isEmpty())
        return {};
    const PopularimeterFrame *frame = knownPlayersRating(frames);
    if (!frame)
        frame = dynamic_cast<const PopularimeterFrame *>(frames.front());
    return frame ? QString::number(starsFromByte(frame->rating())) : QString();
}

void setRating(TagLib::ID3v2::Tag &tag, const QString &text)
{
    const int stars = starsFromText(text);
    if (stars < 0)
        return;
    PopularimeterFrame *frame = knownPlayersRating(framesOf(tag, ratingFrame));
    if (!frame) {
        auto made = std::make_unique<PopularimeterFrame>();
        frame = made.get();
        tag.addFrame(made.release()); // the tag owns it from here on
    }
    frame->setEmail(toTagText(windowsMediaEmail));
    frame->setRating(byteFromStars(stars));
}

QString artists(const TagLib::ID3v2::Tag &tag)
{
    QStringList names;
    for (const TagLib::ID3v2::Frame *frame : framesOf(tag, artistFrame)) {
        if (const auto *text = dynamic_cast<const TextIdentificationFrame *>(frame)) {
            for (const TagLib::String &name : text->fieldList())
                names.append(fromTagText(name));
        }
    }
    return names.join(artistSeparator);
}

void setTextFrame(TagLib::ID3v2::Tag &tag, const char *name, const QStringList &values)
{
    tag.removeFrames(name);
    TagLib::StringList texts;
    for (const QString &value : values) {
        if (!value.isEmpty())
            texts.append(toTagText(value));
    }
    if (texts.isEmpty())
        return;
    auto frame = std::make_unique<TextIdentificationFrame>(ByteVector(name), encodingFor(values.join(QString())));
    frame->setText(texts);
    tag.addFrame(frame.release()); // the tag owns it from here on
}

QString withCrLf(const QString &text)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return lines.replace(QLatin1String("\n"), QLatin1String("\r\n"));
}

} // namespace

QString value(const TagLib::ID3v2::Tag &tag, const QString &key)
{
    if (key == keys::rating)
        return rating(tag);
    if (key == keys::artist)
        return artists(tag);
    if (key == keys::lyrics)
        return firstText(framesOf(tag, lyricsFrame));
    const char *name = nameOf(textFrames, key);
    return name ? firstText(framesOf(tag, name)) : QString();
}

void setValue(TagLib::ID3v2::Tag &tag, const QString &key, const QString &value)
{
    if (key == keys::rating)
        setRating(tag, value);
    else if (key == keys::artist)
        setTextFrame(tag, artistFrame, value.split(artistSeparator));
    else if (key == keys::lyrics)
        setLyrics(tag, value);
    else if (const char *name = nameOf(textFrames, key))
        setTextFrame(tag, name, {value});
}

bool setLyrics(TagLib::ID3v2::Tag &tag, const QString &lyrics)
{
    const TagLib::String text = toTagText(withCrLf(lyrics));
    const FrameList frames = framesOf(tag, lyricsFrame);
    if (text.isEmpty() ? frames.isEmpty() : frames.size() == 1 && frames.front()->toString() == text)
        return false;
    tag.removeFrames(lyricsFrame);
    if (!text.isEmpty()) {
        auto frame = std::make_unique<UnsynchronizedLyricsFrame>(encodingFor(lyrics));
        frame->setText(text);
        tag.addFrame(frame.release()); // the tag owns it from here on
    }
    return true;
}

} // namespace tags::id3v2
