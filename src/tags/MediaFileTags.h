// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagCopy.h"
#include "tags/TagPictures.h"
#include "tags/TagSummary.h"

#include <QImage>
#include <QMetaType>
#include <QString>

// What was read from one audio file: a copy of its tag in its own format, its pictures and its playing time.
// A value: copying copies the tag, so a record may go to another thread; a default-made record is empty. One record
// must not be used by two threads at once. Texts are cleaned and cut as tags/TagText.h says.
class MediaFileTags
{
public:
    MediaFileTags() = default;
    // A record that was read by another process. It has no tag copy, and of its pictures the thumbnail only.
    explicit MediaFileTags(tags::TagSummary summary);

    // Opens and reads a regular file in this process. Audio files are hostile: what the program shows is read by a
    // process of its own (tags/TagReader.h), since some files make a parser crash or take all memory. False, and a
    // record that is empty but for readFailure(), when the file cannot be opened or read as audio; nothing but regular
    // files is ever opened. Never throws.
    bool read(const QString &fileName);
    // All but the pictures and the tag copy.
    [[nodiscard]] tags::TagSummary summary() const;

    // Why the file must be left alone; None also for a file that is gone, cannot be opened or is no audio.
    [[nodiscard]] tags::ReadFailure readFailure() const { return m_failure; }

    // Basic keys: "title", "artist", "album", "year", "genre", "comment". Extended keys: "rating" ("0" to "5" stars),
    // "bpm", "track" and "disc" ("3" or "3/9"), "composer", "albumArtist", "lyrics"; "cuesheet" in Xiph comments.
    // Empty for an unknown key, a year of 0, and a value that is not there.
    [[nodiscard]] QString value(const QString &key) const;
    void setValue(const QString &key, const QString &value);

    // Playing time in whole seconds; 0 when no audio was found.
    [[nodiscard]] int duration() const { return m_duration; }

    [[nodiscard]] int pictureCount() const { return m_pictures.size(); }
    // Decodes the picture in the calling thread; null when there is none or it cannot be decoded (tags/CoverImage.h).
    [[nodiscard]] QImage image(int index) const;

    // The first picture at the size of a row (thumbnailSize()); null until the reading job has set it.
    [[nodiscard]] QImage thumbnail() const { return m_thumbnail; }
    void setThumbnail(const QImage &thumbnail) { m_thumbnail = thumbnail; }
    // Decodes the first picture into the thumbnail, in the calling thread. Does nothing without pictures.
    void makeThumbnail();

    // Writes values and pictures into an existing file, in its own format; false when it was not saved. Lyrics that
    // were found are not stored in this way but by TagWriter, which leaves everything else as it is.
    [[nodiscard]] bool save(const QString &fileName) const;

private:
    bool readFrom(const QString &fileName);

    tags::TagCopy m_tag;
    tags::TagValues m_plain; // used only while there is no tag copy
    QVector<tags::TagPicture> m_pictures;
    QImage m_thumbnail;
    int m_duration = 0;
    tags::ReadFailure m_failure = tags::ReadFailure::None;
};

Q_DECLARE_METATYPE(MediaFileTags)
