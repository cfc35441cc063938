// SPDX-License-Identifier: MIT
#include "tags/AsfKeeping.h"

#include "tags/AsfObjects.h"

#include <taglib/tiostream.h>

#include <QHash>
#include <QtEndian>

#include <algorithm>

namespace tags {

namespace {

using asf::Attribute;
using asf::Attributes;
using asf::Object;
using asf::Objects;
using EditedKeys = QSet<QByteArray>;

constexpr int sizePlace = 16;  // in the header, of 8 bytes
constexpr int countPlace = 24; // in the header, of 4 bytes
constexpr int reservedPlace = countPlace + 4;
constexpr int sizeBytes = 4; // of the size of the objects in the header extension

QByteArray headerOf(const FileBytes &file)
{
    return file.read(0, static_cast<qint64>(file.littleEndian64(sizePlace)));
}

// Nothing unless the objects are all that the header consists of.
Objects objectsOf(const QByteArray &header)
{
    const Objects objects = asf::readObjects(header.mid(asf::headerFieldBytes)).value_or(Objects());
    const bool isAll =
        !objects.isEmpty() && asf::toBytes(objects) == header.mid(asf::headerFieldBytes) &&
        qFromLittleEndian<quint32>(header.constData() + countPlace) == static_cast<quint32>(objects.size());
    return isAll ? objects : Objects();
}

Objects objectsOfExtension(const Object &extension)
{
    return asf::readObjects(extension.content.mid(asf::extensionFieldBytes)).value_or(Objects());
}

Attributes attributesOf(const Object &object)
{
    return asf::readAttributes(object).value_or(Attributes());
}

using ValuesByName = QHash<QByteArray, QVector<QByteArray>>;

// The places and contents of all values.
ValuesByName valuesOf(const Objects &objects)
{
    Objects all = objects;
    for (const Object &object : objects) {
        if (object.kind == asf::headerExtension)
            all += objectsOfExtension(object);
    }
    ValuesByName values;
    for (const Object &object : qAsConst(all)) {
        for (const Attribute &attribute : asf::holdsAttributes(object) ? attributesOf(object) : Attributes())
            values[attribute.name].append(object.kind + attribute.stored);
    }
    return values;
}

bool areSeveralValuesMoved(const Objects &before, const Objects &after, const EditedKeys &editedKeys)
{
    const ValuesByName valuesBefore = valuesOf(before);
    const ValuesByName valuesAfter = valuesOf(after);
    return std::any_of(valuesBefore.keyBegin(), valuesBefore.keyEnd(), [&](const QByteArray &name) {
        return valuesBefore.value(name).size() > 1 && !editedKeys.contains("ASF/" + name) &&
               valuesBefore.value(name) != valuesAfter.value(name);
    });
}

// The object of the original, with what was edited as it is in the written one.
Object withEdits(const Object &before, const Object &written, const EditedKeys &editedKeys)
{
    if (before.kind == asf::contentDescription) {
        const bool isEdited =
            editedKeys.contains("ASF/description/Title") || editedKeys.contains("ASF/description/Author");
        return isEdited && !written.content.isEmpty() ? written : before;
    }
    if (!asf::holdsAttributes(before))
        return before;
    const auto isEdited = [&editedKeys](const Attribute &attribute) {
        return editedKeys.contains("ASF/" + attribute.name);
    };
    Attributes attributes = attributesOf(before);
    const Attributes writtenOnes = attributesOf(written);
    if (std::none_of(attributes.begin(), attributes.end(), isEdited) &&
        std::none_of(writtenOnes.begin(), writtenOnes.end(), isEdited))
        return before;
    attributes.erase(std::remove_if(attributes.begin(), attributes.end(), isEdited), attributes.end());
    std::copy_if(writtenOnes.begin(), writtenOnes.end(), std::back_inserter(attributes), isEdited);
    return asf::toObject(before.kind, attributes);
}

Objects withEdits(const Objects &before, Objects written, const EditedKeys &editedKeys)
{
    Objects objects;
    for (const Object &object : before) {
        const auto same = std::find_if(written.begin(), written.end(),
                                       [&object](const Object &other) { return other.kind == object.kind; });
        objects.append(withEdits(object, same == written.end() ? Object() : *same, editedKeys));
        if (same != written.end())
            written.erase(same);
    }
    constexpr int countBytes = 2; // of an object that holds no attributes
    for (const Object &fresh : qAsConst(written)) {
        if (fresh.kind == asf::headerExtension) // what it holds comes later
            objects.append({fresh.kind, fresh.content.left(asf::extensionFieldBytes - sizeBytes) +
                                            asf::littleEndian(static_cast<quint32>(0))});
        const Object object = withEdits(Object{fresh.kind, {}}, fresh, editedKeys);
        if (object.content.size() > countBytes)
            objects.append(object);
    }
    return objects;
}

Object extensionWithEdits(const Object &before, const Objects &written, const EditedKeys &editedKeys)
{
    const auto same = std::find_if(written.begin(), written.end(),
                                   [](const Object &object) { return object.kind == asf::headerExtension; });
    const Objects writtenParts = same == written.end() ? Objects() : objectsOfExtension(*same);
    const QByteArray parts = asf::toBytes(withEdits(objectsOfExtension(before), writtenParts, editedKeys));
    return {before.kind, before.content.left(asf::extensionFieldBytes - sizeBytes) +
                             asf::littleEndian(static_cast<quint32>(parts.size())) + parts};
}

} // namespace

void keepAsfAttributes(TagLib::IOStream &copy, const FileBytes &written, const FileBytes &original,
                       const QSet<QByteArray> &editedKeys)
{
    QByteArray header = headerOf(original);
    const QByteArray replaced = headerOf(written);
    const Objects before = objectsOf(header);
    const Objects after = objectsOf(replaced);
    if (before.isEmpty() || after.isEmpty() || !areSeveralValuesMoved(before, after, editedKeys))
        return;
    Objects objects = withEdits(before, after, editedKeys);
    for (Object &object : objects) {
        if (object.kind == asf::headerExtension)
            object = extensionWithEdits(object, after, editedKeys);
    }
    const QByteArray parts = asf::toBytes(objects);
    const auto size = static_cast<quint64>(asf::headerFieldBytes) + static_cast<quint64>(parts.size());
    header = asf::headerObject + asf::littleEndian(size) + asf::littleEndian(static_cast<quint32>(objects.size())) +
             header.mid(reservedPlace, asf::headerFieldBytes - reservedPlace) + parts;
    copy.insert({header.constData(), static_cast<unsigned int>(header.size())}, 0,
                static_cast<unsigned long>(replaced.size()));
}

} // namespace tags
