// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

namespace tags {

// One frame of an ID3v2 tag as it is stored: nothing is converted, unpacked or understood.
struct Id3v2Frame
{
    QByteArray id;    // four letters; three in version 2
    QByteArray flags; // two bytes; none in version 2
    QByteArray data;
};

// An ID3v2 tag of version 2, 3 or 4 taken apart (https://id3.org/id3v2.3.0 and id3v2.4.0-structure), for keeping frames
// that no library knows. Its extended header, a checksum mostly, is not kept.
struct Id3v2Frames
{
    int version = 0;
    // Version 4 only: the header says that zeros were put into every frame, with a flag of its own or without. Frames
    // that hold no byte 0xff are alike with it and without.
    bool isUnsynchronised = false;
    QVector<Id3v2Frame> frames;

    // From a whole tag, header and all; nothing when it is damaged.
    static std::optional<Id3v2Frames> parse(const QByteArray &tag);

    // Versions 3 and 4: a whole tag, padded with zeros to at least that size.
    [[nodiscard]] QByteArray toTag(int size) const;
};

constexpr int id3v2HeaderBytes = 10;

// The size of the tag that these bytes begin, with header and footer; 0 when none begins here.
int id3v2TagSize(const QByteArray &header);

} // namespace tags
