// SPDX-License-Identifier: MIT
#include "tags/AsfObjects.h"

#include <QString>

namespace tags::asf {

namespace {

constexpr int objectHeaderBytes = guidBytes + 8;

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
    [[nodiscard]] QByteArray since(int place) const { return m_bytes.mid(place, m_place - place); }
    [[nodiscard]] int place() const { return m_place; }
    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }

private:
    const QByteArray &m_bytes;
    int m_place = 0;
    bool m_isDamaged = false;
};

QByteArray textOf(const QByteArray &utf16)
{
    QByteArray text = utf16;
    while (text.endsWith(QByteArray(2, '\0')) && text.size() % 2 == 0)
        text.chop(2);
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(text.constData()), text.size() / 2).toUtf8();
}

Attribute takeDescribed(Taker &taker)
{
    Attribute attribute;
    attribute.name = textOf(taker.bytes(taker.number<quint16>()));
    attribute.type = taker.bytes(2);
    attribute.value = taker.bytes(taker.number<quint16>());
    return attribute;
}

Attribute takeMetadata(Taker &taker)
{
    Attribute attribute;
    attribute.languageAndStream = taker.bytes(4);
    const auto nameLength = taker.number<quint16>();
    attribute.type = taker.bytes(2);
    const auto valueLength = taker.number<quint32>();
    attribute.name = textOf(taker.bytes(nameLength));
    attribute.value = taker.bytes(valueLength);
    return attribute;
}

} // namespace

std::optional<Objects> readObjects(const QByteArray &bytes)
{
    Objects objects;
    for (int place = 0; place + objectHeaderBytes <= bytes.size();) {
        const auto size = qFromLittleEndian<quint64>(bytes.constData() + place + guidBytes);
        if (size < objectHeaderBytes || size > static_cast<quint64>(bytes.size() - place))
            return std::nullopt;
        const int length = static_cast<int>(size);
        objects.append({bytes.mid(place, guidBytes), bytes.mid(place + objectHeaderBytes, length - objectHeaderBytes)});
        place += length;
    }
    return objects;
}

QByteArray toBytes(const Objects &objects)
{
    QByteArray bytes;
    for (const Object &object : objects)
        bytes += object.kind + littleEndian<quint64>(object.content.size() + objectHeaderBytes) + object.content;
    return bytes;
}

bool holdsAttributes(const Object &object)
{
    return object.kind == extendedContentDescription || object.kind == metadata || object.kind == metadataLibrary;
}

std::optional<Attributes> readAttributes(const Object &object)
{
    Taker taker(object.content);
    Attributes attributes;
    for (int count = taker.number<quint16>(); count > 0 && !taker.isDamaged(); --count) {
        const int start = taker.place();
        attributes.append(object.kind == extendedContentDescription ? takeDescribed(taker) : takeMetadata(taker));
        attributes.last().stored = taker.since(start);
    }
    return taker.isDamaged() ? std::nullopt : std::make_optional(attributes);
}

Object toObject(const QByteArray &kind, const Attributes &attributes)
{
    QByteArray content = littleEndian(static_cast<quint16>(attributes.size()));
    for (const Attribute &attribute : attributes)
        content += attribute.stored;
    return {kind, content};
}

std::optional<QVector<QByteArray>> readDescription(const Object &object)
{
    constexpr int textCount = 5;
    Taker taker(object.content);
    QVector<quint16> lengths;
    for (int i = 0; i < textCount; ++i)
        lengths.append(taker.number<quint16>());
    QVector<QByteArray> texts;
    for (const quint16 length : qAsConst(lengths))
        texts.append(textOf(taker.bytes(length)));
    return taker.isDamaged() ? std::nullopt : std::make_optional(texts);
}

} // namespace tags::asf
