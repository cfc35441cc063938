// SPDX-License-Identifier: MIT
#pragma once

#include "tags/FileBytes.h"

#include <QVector>

#include <optional>

namespace TagLib {
class File;
}

namespace tags {

// How a file is built, as far as it matters for finding its tags.
enum class SongFormat {
    Framed, // audio between tags: MPEG, AAC, Monkey's Audio, WavPack, Musepack, True Audio
    Flac,
    Ogg,
    Mp4,
    Asf,
    Riff, // WAV
    Iff,  // AIFF, AIFC
    Unknown,
};

SongFormat formatOf(const TagLib::File &file);

// One entry of a tag, or a part beside the tags that is neither audio nor padding. The key begins with the kind:
// "ID3v2/TPE1", "APE/ARTIST", "ID3v1/ARTIST", "Xiph/ARTIST", "MP4/©ART", "ASF/WM/Genre"; letters without regard to case
// are capitals. The value is what is stored, byte for byte.
struct TagItem
{
    QByteArray key;
    QByteArray value;
};

// ID3v2 of version 2 is always stored as another version, with other names; such a tag is compared as a library
// reads it.
enum class Id3v2View { Stored, AsRead };

// A text of the ID3v1 tag that can be edited (https://id3.org/ID3v1), as an item; "ID3v1" is all that follows them.
struct Id3v1Field
{
    const char *key;
    int offset; // in the tag
};
constexpr int id3v1Bytes = 128;
constexpr int id3v1FieldBytes = 30;
constexpr Id3v1Field id3v1Title{"ID3v1/TITLE", 3};
constexpr Id3v1Field id3v1Artist{"ID3v1/ARTIST", 33};

// A place in the audio that an index of the file names.
struct AudioOffset
{
    qint64 offset = 0;
    ByteRange field; // where the file says so
};

// An item of the list of tags as it is stored.
struct ListItem
{
    QByteArray name;
    ByteRange content;
    TagItem meaning; // as it stands among all items
};

// What a song file consists of, found without TagLib: this is what a save is judged by, so it sees also what a library
// passes over.
struct SongLayout
{
    SongFormat format = SongFormat::Unknown;
    QVector<TagItem> items;
    // All that must stay byte for byte, in order. For Ogg the pages from the first on.
    QVector<ByteRange> audio;
    Id3v2View id3v2View = Id3v2View::Stored;
    ByteRange id3v2; // the tag with its header, in the chunk where it has one; of length 0 when there is none
    ByteRange id3v1; // of length 0 when there is none
    // Of MP4 only:
    QVector<AudioOffset> audioOffsets;
    bool hasFragmentIndex = false; // some of the offsets are of an index of fragments
    QVector<ListItem> listItems;

    // Nothing when the file is not built as its format asks. A version 2 tag turns the view to AsRead by itself.
    static std::optional<SongLayout> of(const FileBytes &file, SongFormat format, Id3v2View view = Id3v2View::Stored);
};

// The parts of SongLayout::of(), one a format; false when the file is not built like that.
bool readMp4Layout(const FileBytes &file, SongLayout &layout);
bool readAsfLayout(const FileBytes &file, SongLayout &layout);
bool readOggLayout(const FileBytes &file, SongLayout &layout);
bool readChunkLayout(const FileBytes &file, SongLayout &layout);

// The fields of a Vorbis comment, as FLAC and Ogg hold it.
bool readVorbisComment(const QByteArray &comment, SongLayout &layout);
bool readId3v2Items(const FileBytes &file, SongLayout &layout);

} // namespace tags
