// SPDX-License-Identifier: MIT
#include "tags/TagDump.h"

#include "tags/TagKind.h"
#include "tags/TagText.h"

#include <taglib/asftag.h>
#include <taglib/id3v2tag.h>
#include <taglib/xiphcomment.h>

#include <QStringList>

namespace tags {

namespace {

QString line(const QString &name, const TagLib::String &value)
{
    return name + QLatin1String(" = ") + fromTagText(value);
}

QStringList linesOf(const TagLib::ASF::Tag &tag)
{
    QStringList lines;
    for (const auto &[name, attributes] : tag.attributeListMap()) {
        for (const TagLib::ASF::Attribute &attribute : attributes)
            lines.append(line(fromTagText(name), attribute.toString()));
    }
    return lines;
}

QStringList linesOf(const TagLib::ID3v2::Tag &tag)
{
    QStringList lines;
    for (const TagLib::ID3v2::Frame *frame : tag.frameList()) {
        const TagLib::ByteVector name = frame->frameID();
        lines.append(line(QString::fromLatin1(name.data(), static_cast<int>(name.size())), frame->toString()));
    }
    return lines;
}

QStringList linesOf(const TagLib::Ogg::XiphComment &tag)
{
    QStringList lines;
    for (const auto &[name, values] : tag.fieldListMap()) {
        for (const TagLib::String &value : values)
            lines.append(line(fromTagText(name), value));
    }
    return lines;
}

QString framed(const QString &heading, const QStringList &lines)
{
    const QString rule = QStringLiteral("----------------");
    return (QStringList{rule, heading} + lines + QStringList{rule}).join(QLatin1Char('\n'));
}

} // namespace

QString dumpOf(const TagLib::Tag &tag)
{
    switch (kindOf(&tag)) {
    case TagKind::Asf:
        return framed(QStringLiteral("asf_debugTags"), linesOf(static_cast<const TagLib::ASF::Tag &>(tag)));
    case TagKind::Id3v2:
        return framed(QStringLiteral("id3v2_debugTags"), linesOf(static_cast<const TagLib::ID3v2::Tag &>(tag)));
    case TagKind::Xiph:
        return framed(QStringLiteral("ogg_debugTags"), linesOf(static_cast<const TagLib::Ogg::XiphComment &>(tag)));
    default:
        return {};
    }
}

} // namespace tags
