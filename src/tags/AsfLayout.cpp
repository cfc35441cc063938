// SPDX-License-Identifier: MIT
#include "tags/SongLayout.h"

#include "tags/AsfObjects.h"

namespace tags {

namespace {

bool addDescription(const asf::Object &object, SongLayout &layout)
{
    static const char *const names[] = {"Title", "Author", "Copyright", "Description", "Rating"};
    const auto texts = asf::readDescription(object);
    for (int i = 0; texts && i < texts->size(); ++i) {
        if (!texts->at(i).isEmpty())
            layout.items.append({QByteArray("ASF/description/") + names[i], texts->at(i)}); // no attribute's name
    }
    return texts.has_value();
}

// TagLib moves an attribute to the object that suits it; a truth value has two bytes in one and four in others.
bool addAttributes(const asf::Object &object, SongLayout &layout)
{
    const auto attributes = asf::readAttributes(object);
    for (const asf::Attribute &attribute : attributes.value_or(asf::Attributes())) {
        const bool isBool = attribute.type == QByteArray("\x02\0", 2);
        const QByteArray &ofPart = attribute.languageAndStream;
        const bool isOfAll = ofPart.count('\0') == ofPart.size();
        layout.items.append({"ASF/" + attribute.name, attribute.type +
                                                          (isBool ? attribute.value.left(2) : attribute.value) +
                                                          (isOfAll ? QByteArray() : ofPart)});
    }
    return attributes.has_value();
}

// An extension of the header within another one means nothing.
enum class Place { Header, Extension };

bool addObjects(const QByteArray &bytes, Place place, SongLayout &layout)
{
    const auto objects = asf::readObjects(bytes);
    bool isWhole = objects.has_value();
    for (int i = 0; isWhole && i < objects->size(); ++i) {
        const asf::Object &object = objects->at(i);
        if (object.kind == asf::contentDescription)
            isWhole = addDescription(object, layout);
        else if (asf::holdsAttributes(object))
            isWhole = addAttributes(object, layout);
        else if (object.kind == asf::headerExtension && place == Place::Header)
            isWhole = addObjects(object.content.mid(asf::extensionFieldBytes), Place::Extension, layout);
        else if (object.kind != asf::padding)
            layout.items.append({"ASF object/" + object.kind.toHex(), object.content});
    }
    return isWhole;
}

} // namespace

bool readAsfLayout(const FileBytes &file, SongLayout &layout)
{
    const quint64 size = file.littleEndian64(asf::guidBytes);
    if (file.read(0, asf::guidBytes) != asf::headerObject || size > static_cast<quint64>(file.size()))
        return false;
    const auto end = static_cast<qint64>(size);
    layout.audio.append({end, file.size() - end});
    return addObjects(file.read(asf::headerFieldBytes, end - asf::headerFieldBytes), Place::Header, layout);
}

} // namespace tags
