// SPDX-License-Identifier: MIT
#include "tags/SongLayout.h"

#include <QString>
#include <QtEndian>

namespace tags {

namespace {

constexpr int guidBytes = 16;
constexpr int objectHeaderBytes = guidBytes + 8;

// Identifiers of the Advanced Systems Format, as they are stored.
const QByteArray headerObject = QByteArray::fromHex("3026b2758e66cf11a6d900aa0062ce6c");
const QByteArray contentDescription = QByteArray::fromHex("3326b2758e66cf11a6d900aa0062ce6c");
const QByteArray extendedContentDescription = QByteArray::fromHex("40a4d0d207e3d21197f000a0c95ea850");
const QByteArray headerExtension = QByteArray::fromHex("b503bf5f2ea9cf118ee300c00c205365");
const QByteArray metadata = QByteArray::fromHex("eacbf8c5af5b77488467aa8c44fa4cca");
const QByteArray metadataLibrary = QByteArray::fromHex("941c23449894d149a1411d134e457054");
const QByteArray padding = QByteArray::fromHex("74d40618dfca0945a4ba9aabcb96aae8");

// Takes numbers and pieces from the front of an object.
class Taker
{
public:
    explicit Taker(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }
    QByteArray bytes(quint32 length)
    {
        m_isDamaged = m_isDamaged || length > static_cast<quint32>(m_bytes.size() - m_place);
        if (m_isDamaged)
            return {};
        m_place += static_cast<int>(length);
        return m_bytes.mid(m_place - static_cast<int>(length), static_cast<int>(length));
    }
    template<typename Number>
    Number number()
    {
        const QByteArray raw = bytes(sizeof(Number));
        return raw.isEmpty() ? Number(0) : qFromLittleEndian<Number>(raw.constData());
    }
    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }

private:
    const QByteArray &m_bytes;
    int m_place = 0;
    bool m_isDamaged = false;
};

QByteArray nameOf(const QByteArray &utf16)
{
    QByteArray name = utf16;
    while (name.endsWith(QByteArray(2, '\0')) && name.size() % 2 == 0)
        name.chop(2);
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(name.constData()), name.size() / 2).toUtf8();
}

bool readContentDescription(const QByteArray &object, SongLayout &layout)
{
    Taker taker(object);
    quint16 lengths[5];
    for (quint16 &length : lengths)
        length = taker.number<quint16>();
    static const char *const names[] = {"Title", "Author", "Copyright", "Description", "Rating"};
    for (int i = 0; i < 5; ++i) {
        const QByteArray text = nameOf(taker.bytes(lengths[i]));
        if (!text.isEmpty())
            layout.items.append({QByteArray("ASF/description/") + names[i], text}); // no attribute, if named alike
    }
    return !taker.isDamaged();
}

// TagLib moves an attribute to the object that suits it; a truth value has two bytes in one and four in others.
void addAttribute(SongLayout &layout, const QByteArray &name, const QByteArray &type, const QByteArray &value,
                  const QByteArray &languageAndStream)
{
    const bool isBool = type == QByteArray("\x02\0", 2);
    const bool isOfAll = languageAndStream.count('\0') == languageAndStream.size();
    layout.items.append({"ASF/" + nameOf(name),
                         type + (isBool ? value.left(2) : value) + (isOfAll ? QByteArray() : languageAndStream)});
}

bool readExtendedDescription(const QByteArray &object, SongLayout &layout)
{
    Taker taker(object);
    for (int count = taker.number<quint16>(); count > 0 && !taker.isDamaged(); --count) {
        const QByteArray name = taker.bytes(taker.number<quint16>());
        const QByteArray type = taker.bytes(2);
        const QByteArray value = taker.bytes(taker.number<quint16>());
        addAttribute(layout, name, type, value, {});
    }
    return !taker.isDamaged();
}

bool readMetadata(const QByteArray &object, SongLayout &layout)
{
    Taker taker(object);
    for (int count = taker.number<quint16>(); count > 0 && !taker.isDamaged(); --count) {
        const QByteArray languageAndStream = taker.bytes(4);
        const auto nameLength = taker.number<quint16>();
        const QByteArray type = taker.bytes(2);
        const auto valueLength = taker.number<quint32>();
        const QByteArray name = taker.bytes(nameLength);
        addAttribute(layout, name, type, taker.bytes(valueLength), languageAndStream);
    }
    return !taker.isDamaged();
}

bool readObjects(const FileBytes &file, qint64 place, qint64 end, SongLayout &layout)
{
    bool isDescriptionSeen = false;
    while (place + objectHeaderBytes <= end) {
        const QByteArray kind = file.read(place, guidBytes);
        const quint64 size = file.littleEndian64(place + guidBytes);
        if (size < objectHeaderBytes || size > static_cast<quint64>(end - place))
            return false;
        const QByteArray object = file.read(place + objectHeaderBytes, static_cast<qint64>(size) - objectHeaderBytes);
        constexpr int extensionFieldBytes = 22; // reserved fields and the size before the objects of the extension
        bool read = true;
        isDescriptionSeen = isDescriptionSeen || kind == extendedContentDescription;
        layout.isExtensionFirst = layout.isExtensionFirst || (kind == headerExtension && !isDescriptionSeen);
        if (kind == contentDescription)
            read = readContentDescription(object, layout);
        else if (kind == extendedContentDescription)
            read = readExtendedDescription(object, layout);
        else if (kind == metadata || kind == metadataLibrary)
            read = readMetadata(object, layout);
        else if (kind == headerExtension)
            read = readObjects(file, place + objectHeaderBytes + extensionFieldBytes, place + static_cast<qint64>(size),
                               layout);
        else if (kind != padding)
            layout.items.append({"ASF object/" + kind.toHex(), object});
        if (!read)
            return false;
        place += static_cast<qint64>(size);
    }
    return true;
}

} // namespace

bool readAsfLayout(const FileBytes &file, SongLayout &layout)
{
    constexpr int headerFieldBytes = 6; // the number of objects and two reserved bytes
    const quint64 size = file.littleEndian64(guidBytes);
    if (file.read(0, guidBytes) != headerObject || size > static_cast<quint64>(file.size()))
        return false;
    const auto end = static_cast<qint64>(size);
    layout.audio.append({end, file.size() - end});
    return readObjects(file, objectHeaderBytes + headerFieldBytes, end, layout);
}

} // namespace tags
