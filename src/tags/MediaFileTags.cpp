// SPDX-License-Identifier: MIT
#include "tags/MediaFileTags.h"

#include "tags/CheckedFileStream.h"
#include "tags/CoverImage.h"
#include "tags/FileAccess.h"
#include "tags/FileBytes.h"
#include "tags/NumberPair.h"
#include "tags/TagKeys.h"
#include "tags/TagSaving.h"
#include "tags/TagText.h"

#include <taglib/audioproperties.h>
#include <taglib/fileref.h>

#include <QLoggingCategory>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <utility>

#include <fcntl.h>

Q_LOGGING_CATEGORY(lcTags, "versewell.tags")

namespace {

// A record without tag copy keeps texts for these keys only.
bool isPlainField(const QString &key)
{
    const auto &basic = tags::basicKeys;
    return key == tags::keys::track || std::find(basic.begin(), basic.end(), key) != basic.end();
}

} // namespace

MediaFileTags::MediaFileTags(tags::TagSummary summary)
    : m_plain(std::move(summary.values))
    , m_thumbnail(std::move(summary.thumbnail))
    , m_duration(summary.duration)
    , m_failure(summary.failure)
{
}

bool MediaFileTags::read(const QString &fileName)
{
    *this = MediaFileTags();
    // A hostile file can make the parser throw.
    try {
        if (readFrom(fileName))
            return true;
    } catch (const tags::ReadBudgetSpent &) {
        m_failure = tags::ReadFailure::TooMuchRead;
    } catch (const std::exception &error) { // most likely for want of memory
        qCWarning(lcTags) << "a file could not be read:" << error.what();
        m_failure = tags::ReadFailure::OutOfMemory;
    }
    const tags::ReadFailure failure = m_failure;
    *this = MediaFileTags();
    m_failure = failure;
    return false;
}

bool MediaFileTags::readFrom(const QString &fileName)
{
    const QByteArray path = tags::nativePath(fileName);
    const int descriptor = tags::openRegularFile(path, O_RDONLY);
    if (descriptor < 0) {
        m_failure = errno == EINVAL ? tags::ReadFailure::NotRegular : tags::ReadFailure::None;
        return false;
    }
    tags::CheckedFileStream file(descriptor, path, tags::CheckedFileStream::Access::Read);
    file.setReadBudget(tags::ReadBudget::forSize(tags::FileBytes(descriptor).size()));
    tags::acceptLatin1InRiffInfo();
    const TagLib::FileRef reference(file.stream(), true, TagLib::AudioProperties::Average);
    if (!reference.isNull()) {
        if (const TagLib::AudioProperties *properties = reference.audioProperties())
            m_duration = std::max(properties->lengthInSeconds(), 0); // what a file says may overflow
        m_pictures = tags::readPictures(*reference.file());
        m_tag = tags::TagCopy::ofFile(*reference.file());
    }
    if (file.error() != 0)
        m_failure = tags::ReadFailure::DiskError;
    return !reference.isNull() && file.error() == 0;
}

tags::TagSummary MediaFileTags::summary() const
{
    tags::TagSummary summary{m_failure, m_duration, m_plain, m_thumbnail};
    if (m_tag.isEmpty())
        return summary;
    for (std::size_t i = 0; i < tags::allKeys.size(); ++i)
        summary.values[i] = m_tag.value(tags::allKeys[i]);
    return summary;
}

QString MediaFileTags::value(const QString &key) const
{
    if (!m_tag.isEmpty())
        return m_tag.value(key);
    const QString *text = tags::valueIn(m_plain, key);
    return text ? *text : QString();
}

void MediaFileTags::setValue(const QString &key, const QString &value)
{
    m_tag.setValue(key, value);
    if (key == tags::keys::track) {
        if (const auto pair = tags::parseNumberPair(value))
            *tags::valueIn(m_plain, key) = QString::number(pair->number);
    } else if (isPlainField(key)) {
        *tags::valueIn(m_plain, key) = value;
    }
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
    tags::KeyedValues fields;
    for (const QLatin1String key : {tags::keys::artist, tags::keys::title, tags::keys::album, tags::keys::year,
                                    tags::keys::genre, tags::keys::comment}) {
        const QString &text = *tags::valueIn(m_plain, key);
        const bool isNoYear = key == tags::keys::year && text.toInt() <= 0;
        fields.append({key, isNoYear ? QString() : text});
    }
    return tags::saveTags(fileName, m_tag.tags(), fields, m_pictures);
}
