// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace TagLib {
class File;
}

namespace tags {

struct TagPicture
{
    QString format; // what follows "image/" in the MIME type, for example "jpeg"; empty when that is not known
    QByteArray data;
    QString description;
    int type = 0; // as in the attached picture frame of ID3v2: 3 is the front cover
};

// In the order in which the file holds them; none is preferred. The picture blocks of a FLAC file count alone when
// there are any. Of a file with several tags the first are read, up to the first that is absent.
QVector<TagPicture> readPictures(TagLib::File &file);

// Replaces the pictures of a file, in memory; the caller saves it.
void writePictures(TagLib::File &file, const QVector<TagPicture> &pictures);

} // namespace tags
