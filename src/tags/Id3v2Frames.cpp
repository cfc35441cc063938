// SPDX-License-Identifier: MIT
#include "tags/Id3v2Frames.h"

#include <algorithm>

namespace tags {

namespace {

constexpr int unsynchronised = 0x80;
constexpr int extendedHeader = 0x40;
constexpr int footerPresent = 0x10;
constexpr int sevenBits = 7;
constexpr int eightBits = 8;

int byteAt(const QByteArray &bytes, int place)
{
    return place < bytes.size() ? static_cast<unsigned char>(bytes.at(place)) : 0;
}

// Big-endian, so many bits a byte.
qint64 numberAt(const QByteArray &bytes, int place, int length, int bits)
{
    qint64 number = 0;
    for (int i = 0; i < length; ++i)
        number = (number << bits) | byteAt(bytes, place + i);
    return number;
}

QByteArray sizeBytes(int size, int bits)
{
    QByteArray bytes;
    for (int shift = 3 * bits; shift >= 0; shift -= bits)
        bytes.append(static_cast<char>((size >> shift) & ((1 << bits) - 1)));
    return bytes;
}

// Takes the zero out that unsynchronisation puts behind each 0xff.
QByteArray synchronised(const QByteArray &bytes)
{
    QByteArray plain;
    plain.reserve(bytes.size());
    for (int i = 0; i < bytes.size(); ++i) {
        plain.append(bytes.at(i));
        if (byteAt(bytes, i) == 0xff && i + 1 < bytes.size() && bytes.at(i + 1) == '\0')
            ++i;
    }
    return plain;
}

// Old programs wrote the three letters of version 2 into versions 3 and 4, with a zero or a blank behind them.
bool isFrameId(const QByteArray &id)
{
    const bool isShort = id.size() == 4 && (id.at(3) == '\0' || id.at(3) == ' ');
    const auto *const end = isShort ? id.end() - 1 : id.end();
    return std::all_of(id.begin(), end, [](char letter) {
        return (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9');
    });
}

int extendedHeaderSize(const QByteArray &body, int version)
{
    // Version 3 does not count the four bytes of the size itself.
    return version == 4 ? static_cast<int>(std::min<qint64>(numberAt(body, 0, 4, sevenBits), body.size()))
                        : static_cast<int>(std::min<qint64>(numberAt(body, 0, 4, eightBits) + 4, body.size()));
}

// A well-known program stored plain sizes in version 4; whether a frame follows tells which is meant.
qint64 frameSize(const QByteArray &body, int place, int version)
{
    if (version == 2)
        return numberAt(body, place + 3, 3, eightBits);
    const qint64 plain = numberAt(body, place + 4, 4, eightBits);
    if (version == 3)
        return plain;
    const qint64 size = numberAt(body, place + 4, 4, sevenBits);
    const auto frameFollows = [&body, place](qint64 length) {
        const qint64 next = place + id3v2HeaderBytes + length;
        return next == body.size() || (next < body.size() && (body.at(static_cast<int>(next)) == '\0' ||
                                                              isFrameId(body.mid(static_cast<int>(next), 4))));
    };
    return frameFollows(size) || !frameFollows(plain) ? size : plain;
}

} // namespace

int id3v2TagSize(const QByteArray &header)
{
    if (header.size() < id3v2HeaderBytes || !header.startsWith("ID3") || byteAt(header, 3) == 0xff)
        return 0;
    const bool footer = byteAt(header, 3) == 4 && (byteAt(header, 5) & footerPresent) != 0;
    return static_cast<int>(numberAt(header, 6, 4, sevenBits)) + id3v2HeaderBytes * (footer ? 2 : 1);
}

std::optional<Id3v2Frames> Id3v2Frames::parse(const QByteArray &tag)
{
    Id3v2Frames parsed;
    parsed.version = byteAt(tag, 3);
    const int flags = byteAt(tag, 5);
    if (id3v2TagSize(tag) == 0 || id3v2TagSize(tag) > tag.size() || parsed.version < 2 || parsed.version > 4)
        return std::nullopt;
    QByteArray body = tag.mid(id3v2HeaderBytes, static_cast<int>(numberAt(tag, 6, 4, sevenBits)));
    parsed.isUnsynchronised = parsed.version == 4 && (flags & unsynchronised) != 0;
    if (parsed.version < 4 && (flags & unsynchronised) != 0)
        body = synchronised(body);
    const int headerBytes = parsed.version == 2 ? 6 : id3v2HeaderBytes;
    const int idBytes = parsed.version == 2 ? 3 : 4;
    int place = parsed.version > 2 && (flags & extendedHeader) != 0 ? extendedHeaderSize(body, parsed.version) : 0;
    while (place + headerBytes <= body.size() && body.at(place) != '\0') {
        const QByteArray id = body.mid(place, idBytes);
        const qint64 size = frameSize(body, place, parsed.version);
        if (!isFrameId(id) || size > body.size() - place - headerBytes)
            return std::nullopt;
        parsed.frames.append({id, body.mid(place + 8, headerBytes - 8 > 0 ? 2 : 0),
                              body.mid(place + headerBytes, static_cast<int>(size))});
        place += headerBytes + static_cast<int>(size);
    }
    return parsed;
}

QByteArray Id3v2Frames::toTag(int size) const
{
    QByteArray body;
    for (const Id3v2Frame &frame : frames)
        body +=
            frame.id + sizeBytes(frame.data.size(), version == 4 ? sevenBits : eightBits) + frame.flags + frame.data;
    body = body.leftJustified(size - id3v2HeaderBytes, '\0');
    const int flags = isUnsynchronised ? unsynchronised : 0;
    return QByteArray("ID3") + static_cast<char>(version) + '\0' + static_cast<char>(flags) +
           sizeBytes(body.size(), sevenBits) + body;
}

} // namespace tags
