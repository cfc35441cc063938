// SPDX-License-Identifier: MIT
#include "tags/SongLayout.h"

#include "tags/Id3v2Frames.h"

#include <taglib/aifffile.h>
#include <taglib/apefile.h>
#include <taglib/asffile.h>
#include <taglib/flacfile.h>
#include <taglib/id3v2header.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpcfile.h>
#include <taglib/mpegfile.h>
#include <taglib/oggfile.h>
#include <taglib/trueaudiofile.h>
#include <taglib/wavfile.h>
#include <taglib/wavpackfile.h>

#include <QByteArrayList>
#include <QtEndian>

#include <algorithm>

namespace tags {

namespace {

constexpr int longestStartBytes = 8; // by which a format is told
constexpr int apeHeaderBytes = 32;   // header and footer alike; https://wiki.hydrogenaud.io/index.php?title=APEv2

template<typename... Files>
bool isOneOf(const TagLib::File &file)
{
    return (... || (dynamic_cast<const Files *>(&file) != nullptr));
}

quint32 littleEndianAt(const QByteArray &bytes, int place)
{
    return place + 4 <= bytes.size() ? qFromLittleEndian<quint32>(bytes.constData() + place) : 0;
}

// The items of an APE tag, without its header and footer. The key of the flags tells text from binary.
bool readApeItems(const QByteArray &tag, SongLayout &layout)
{
    int place = 0;
    while (place + 9 <= tag.size()) {
        const quint32 size = littleEndianAt(tag, place);
        const QByteArray flags = tag.mid(place + 4, 4);
        const int keyEnd = tag.indexOf('\0', place + 8);
        if (keyEnd < 0 || size > static_cast<quint32>(tag.size() - keyEnd - 1))
            return false;
        layout.items.append({"APE/" + tag.mid(place + 8, keyEnd - place - 8).toUpper(),
                             flags + tag.mid(keyEnd + 1, static_cast<int>(size))});
        place = keyEnd + 1 + static_cast<int>(size);
    }
    return true;
}

void readId3v1Items(const QByteArray &tag, SongLayout &layout)
{
    for (const Id3v1Field &field : {id3v1Title, id3v1Artist})
        layout.items.append({field.key, tag.mid(field.offset, id3v1FieldBytes)});
    layout.items.append({"ID3v1", tag.mid(id3v1Artist.offset + id3v1FieldBytes)});
}

// Where the audio ends and tags begin, which lie one before the other at the end of the file.
bool readTagsAtEnd(const FileBytes &file, SongLayout &layout, qint64 &end)
{
    if (end >= id3v1Bytes && file.read(end - id3v1Bytes, 3) == "TAG") {
        end -= id3v1Bytes;
        layout.id3v1 = {end, id3v1Bytes};
        readId3v1Items(file.read(end, id3v1Bytes), layout);
    }
    const QByteArray footer = file.read(end - apeHeaderBytes, apeHeaderBytes);
    if (!footer.startsWith("APETAGEX"))
        return true;
    const qint64 itemsAndFooter = littleEndianAt(footer, 12);
    const bool withHeader = (littleEndianAt(footer, 20) & 0x80000000U) != 0;
    const qint64 start = end - itemsAndFooter;
    if (itemsAndFooter < apeHeaderBytes || start < 0)
        return false;
    const bool read = readApeItems(file.read(start, itemsAndFooter - apeHeaderBytes), layout);
    end = start - (withHeader ? apeHeaderBytes : 0);
    return read;
}

// Blocks of metadata from the place of the first to the place of the audio.
bool readFlacBlocks(const FileBytes &file, SongLayout &layout, qint64 &place)
{
    constexpr int padding = 1;
    constexpr int comment = 4;
    if (file.read(place, 4) != "fLaC")
        return false;
    place += 4;
    for (bool last = false; !last;) {
        const quint32 header = file.bigEndian32(place);
        const qint64 length = header & 0xffffffU;
        const int type = static_cast<int>(header >> 24) & 0x7f;
        last = (header & 0x80000000U) != 0;
        if (place + 4 + length > file.size())
            return false;
        if (type == comment && !readVorbisComment(file.read(place + 4, length), layout))
            return false;
        if (type != comment && type != padding)
            layout.items.append({"FLAC/" + QByteArray::number(type), file.read(place + 4, length)});
        place += 4 + length;
    }
    return true;
}

// TagLib reads tags from files only, by itself.
class LibraryTag : public TagLib::ID3v2::Tag
{
public:
    explicit LibraryTag(const QByteArray &tag)
    {
        const TagLib::ByteVector bytes(tag.constData(), static_cast<unsigned int>(tag.size()));
        header()->setData(bytes.mid(0, id3v2HeaderBytes));
        parse(bytes.mid(id3v2HeaderBytes, header()->tagSize()));
    }
};

// False when the library does not read each of the frames.
bool readFramesByLibrary(const QByteArray &bytes, const Id3v2Frames &stored, SongLayout &layout)
{
    const LibraryTag tag(bytes);
    if (tag.frameList().size() < static_cast<unsigned int>(stored.frames.size()))
        return false;
    layout.items.append({"ID3v2", QByteArray()});
    for (const TagLib::ID3v2::Frame *frame : tag.frameList()) {
        const TagLib::ByteVector id = frame->frameID();
        // Its header says what version the frame was read from, and nothing else that could be lost.
        const TagLib::ByteVector content = frame->render().mid(id3v2HeaderBytes);
        layout.items.append({"ID3v2/" + QByteArray(id.data(), static_cast<int>(id.size())),
                             QByteArray(content.data(), static_cast<int>(content.size()))});
    }
    return true;
}

// Players look for audio anywhere, and so find it in files of other formats that bear the wrong name. What such a file
// says of places in itself would be wrong behind a tag, or its players would not know it any more.
bool beginsAnotherFormat(const QByteArray &bytes)
{
    static const QByteArrayList starts{"RIFF",
                                       "FORM",
                                       "OggS",
                                       "fLaC",
                                       "FLV\1",
                                       QByteArray::fromHex("3026b275"),  // ASF
                                       QByteArray::fromHex("1a45dfa3"),  // Matroska
                                       QByteArray::fromHex("000001ba")}; // MPEG program stream
    static const QByteArrayList atoms{"ftyp", "moov", "mdat", "free", "wide", "skip"};
    return atoms.contains(bytes.mid(4, 4)) ||
           std::any_of(starts.begin(), starts.end(), [&](const QByteArray &start) { return bytes.startsWith(start); });
}

bool readFramedLayout(const FileBytes &file, SongLayout &layout)
{
    qint64 start = id3v2TagSize(file.read(0, id3v2HeaderBytes));
    layout.id3v2 = {0, start};
    if (start > 0 && id3v2TagSize(file.read(start, id3v2HeaderBytes)) > 0)
        return false; // two tags: libraries differ in which of them they read
    if (start > 0 && !readId3v2Items(file, layout))
        return false;
    if (layout.format == SongFormat::Flac ? !readFlacBlocks(file, layout, start)
                                          : beginsAnotherFormat(file.read(start, longestStartBytes)))
        return false;
    qint64 end = file.size();
    if (!readTagsAtEnd(file, layout, end) || end < start)
        return false;
    layout.audio.append({start, end - start});
    return true;
}

} // namespace

SongFormat formatOf(const TagLib::File &file)
{
    if (isOneOf<TagLib::MPEG::File, TagLib::APE::File, TagLib::WavPack::File, TagLib::MPC::File,
                TagLib::TrueAudio::File>(file))
        return SongFormat::Framed;
    if (isOneOf<TagLib::FLAC::File>(file))
        return SongFormat::Flac;
    if (isOneOf<TagLib::Ogg::File>(file))
        return SongFormat::Ogg;
    if (isOneOf<TagLib::MP4::File>(file))
        return SongFormat::Mp4;
    if (isOneOf<TagLib::ASF::File>(file))
        return SongFormat::Asf;
    if (isOneOf<TagLib::RIFF::WAV::File>(file))
        return SongFormat::Riff;
    return isOneOf<TagLib::RIFF::AIFF::File>(file) ? SongFormat::Iff : SongFormat::Unknown;
}

bool readId3v2Items(const FileBytes &file, SongLayout &layout)
{
    const QByteArray bytes = file.read(layout.id3v2.offset, layout.id3v2.length);
    const auto tag = Id3v2Frames::parse(bytes);
    if (!tag)
        return false;
    if (tag->version == 2)
        layout.id3v2View = Id3v2View::AsRead;
    if (layout.id3v2View == Id3v2View::AsRead)
        return readFramesByLibrary(bytes, *tag, layout);
    layout.items.append({"ID3v2", QByteArray::number(tag->version) + (tag->isUnsynchronised ? " unsynchronised" : "")});
    for (const Id3v2Frame &frame : tag->frames)
        layout.items.append({"ID3v2/" + frame.id, frame.flags + frame.data});
    return true;
}

bool readVorbisComment(const QByteArray &comment, SongLayout &layout)
{
    int place = 0;
    const auto takeText = [&comment, &place]() -> std::optional<QByteArray> {
        const quint32 length = littleEndianAt(comment, place);
        if (place + 4 > comment.size() || length > static_cast<quint32>(comment.size() - place - 4))
            return std::nullopt;
        place += 4 + static_cast<int>(length);
        return comment.mid(place - static_cast<int>(length), static_cast<int>(length));
    };
    const auto vendor = takeText();
    if (!vendor || place + 4 > comment.size())
        return false;
    layout.items.append({"Xiph", *vendor});
    quint32 count = littleEndianAt(comment, place);
    place += 4;
    for (; count > 0; --count) {
        const auto field = takeText();
        if (!field)
            return false;
        const int nameEnd = field->indexOf('=');
        if (nameEnd == field->size() - 1)
            continue; // it says nothing, and a library may leave it out
        layout.items.append({"Xiph/" + field->left(std::max(nameEnd, 0)).toUpper(), field->mid(nameEnd + 1)});
    }
    return true;
}

std::optional<SongLayout> SongLayout::of(const FileBytes &file, SongFormat format, Id3v2View view)
{
    SongLayout layout;
    layout.id3v2View = view;
    layout.format = format;
    const auto read = [&file, &layout, format] {
        switch (format) {
        case SongFormat::Framed:
        case SongFormat::Flac:
            return readFramedLayout(file, layout);
        case SongFormat::Ogg:
            return readOggLayout(file, layout);
        case SongFormat::Mp4:
            return readMp4Layout(file, layout);
        case SongFormat::Asf:
            return readAsfLayout(file, layout);
        case SongFormat::Riff:
        case SongFormat::Iff:
            return readChunkLayout(file, layout);
        case SongFormat::Unknown:
            break;
        }
        return false;
    };
    return read() ? std::optional(layout) : std::nullopt;
}

} // namespace tags
