// SPDX-License-Identifier: MIT
#include "tags/MediaFileTags.h"

#include "tags/CoverImage.h"
#include "tags/FileAccess.h"
#include "tags/NumberPair.h"
#include "tags/TagKeys.h"
#include "tags/TagSaving.h"
#include "tags/TagText.h"

#include <taglib/audioproperties.h>
#include <taglib/fileref.h>
#include <taglib/tfilestream.h>

#include <QLoggingCategory>

#include <exception>

Q_LOGGING_CATEGORY(lcTags, "versewell.tags")

bool MediaFileTags::read(const QString &fileName)
{
    *this = MediaFileTags();
    if (!tags::isRegularFile(fileName))
        return false;
    // A hostile file can make the parser throw, most likely for want of memory.
    try {
        return readFrom(fileName);
    } catch (const std::exception &error) {
        qCWarning(lcTags) << "a file could not be read:" << error.what();
    }
    *this = MediaFileTags();
    return false;
}

bool MediaFileTags::readFrom(const QString &fileName)
{
    const QByteArray path = tags::nativePath(fileName);
    TagLib::FileStream stream(path.constData(), true);
    if (!stream.isOpen())
        return false;
    tags::acceptLatin1InRiffInfo();
    const TagLib::FileRef reference(&stream, true, TagLib::AudioProperties::Average);
    if (reference.isNull())
        return false;
    if (const TagLib::AudioProperties *properties = reference.audioProperties())
        m_duration = properties->lengthInSeconds();
    m_pictures = tags::readPictures(*reference.file());
    m_tag = tags::TagCopy::ofFile(*reference.file());
    return true;
}

QString MediaFileTags::value(const QString &key) const
{
    if (!m_tag.isEmpty())
        return m_tag.value(key);
    const auto field = plainField(key);
    return field ? m_plain.*field : QString();
}

void MediaFileTags::setValue(const QString &key, const QString &value)
{
    m_tag.setValue(key, value);
    const auto field = plainField(key);
    if (!field)
        return;
    if (key != tags::keys::track)
        m_plain.*field = value;
    else if (const auto pair = tags::parseNumberPair(value))
        m_plain.track = QString::number(pair->number);
}

QImage MediaFileTags::image(int index) const
{
    return index >= 0 && index < m_pictures.size() ? decodeCover(m_pictures.at(index).data) : QImage();
}

void MediaFileTags::makeThumbnail()
{
    if (!m_pictures.isEmpty())
        m_thumbnail = decodeThumbnail(m_pictures.first().data);
}

bool MediaFileTags::save(const QString &fileName) const
{
    return tags::saveTags(fileName, m_tag.tags(),
                          {{tags::keys::artist, m_plain.artist},
                           {tags::keys::title, m_plain.title},
                           {tags::keys::album, m_plain.album},
                           {tags::keys::year, m_plain.year.toInt() > 0 ? m_plain.year : QString()},
                           {tags::keys::genre, m_plain.genre},
                           {tags::keys::comment, m_plain.comment}},
                          m_pictures);
}

QString MediaFileTags::PlainFields::*MediaFileTags::plainField(const QString &key)
{
    if (key == tags::keys::artist)
        return &PlainFields::artist;
    if (key == tags::keys::title)
        return &PlainFields::title;
    if (key == tags::keys::track)
        return &PlainFields::track;
    if (key == tags::keys::year)
        return &PlainFields::year;
    if (key == tags::keys::album)
        return &PlainFields::album;
    if (key == tags::keys::genre)
        return &PlainFields::genre;
    return key == tags::keys::comment ? &PlainFields::comment : nullptr;
}
