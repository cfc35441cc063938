// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>
#include <QtEndian>

#include <optional>

// The header of the Advanced Systems Format as it is stored, for those who must not leave it to TagLib.
namespace tags::asf {

// Identifiers of objects.
inline const QByteArray headerObject = QByteArray::fromHex("3026b2758e66cf11a6d900aa0062ce6c");
inline const QByteArray contentDescription = QByteArray::fromHex("3326b2758e66cf11a6d900aa0062ce6c");
inline const QByteArray extendedContentDescription = QByteArray::fromHex("40a4d0d207e3d21197f000a0c95ea850");
inline const QByteArray headerExtension = QByteArray::fromHex("b503bf5f2ea9cf118ee300c00c205365");
inline const QByteArray metadata = QByteArray::fromHex("eacbf8c5af5b77488467aa8c44fa4cca");
inline const QByteArray metadataLibrary = QByteArray::fromHex("941c23449894d149a1411d134e457054");
inline const QByteArray padding = QByteArray::fromHex("74d40618dfca0945a4ba9aabcb96aae8");

constexpr int guidBytes = 16;
constexpr int headerFieldBytes = 30;    // of the header: identifier, size, number of objects and two reserved bytes
constexpr int extensionFieldBytes = 22; // of the header extension, before its objects: reserved fields and the size

template<typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(static_cast<int>(sizeof(Number)), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

struct Object
{
    QByteArray kind;
    QByteArray content; // without identifier and size
};
using Objects = QVector<Object>;

// Those that lie one behind the other; nothing when one does not end where they do or before. Up to 23 bytes behind
// the last are passed over.
std::optional<Objects> readObjects(const QByteArray &bytes);
QByteArray toBytes(const Objects &objects);

struct Attribute
{
    QByteArray name; // UTF-8
    QByteArray type;
    QByteArray value;
    QByteArray languageAndStream; // empty in the extended content description, which has none
    QByteArray stored;            // all of it, as it lies in its object
};
using Attributes = QVector<Attribute>;

bool holdsAttributes(const Object &object);
// Of an object that holds attributes; nothing when it is damaged.
std::optional<Attributes> readAttributes(const Object &object);
Object toObject(const QByteArray &kind, const Attributes &attributes);

// The texts of the content description in their order, UTF-8; nothing when it is damaged.
std::optional<QVector<QByteArray>> readDescription(const Object &object);

} // namespace tags::asf
