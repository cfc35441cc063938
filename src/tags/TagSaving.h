// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagPictures.h"

#include <QString>
#include <QVector>

#include <utility>

namespace tags {

struct FileTags;

using KeyedValues = QVector<std::pair<QString, QString>>;

// Writes values and pictures into a regular file and saves it: an MPEG or a WAV file with all its kinds of tags, as
// ID3v2.3, any other with what it has. The keyed values go in after the tags; empty ones are left out, and so are no
// pictures. False when the file cannot be opened or was not saved.
bool saveTags(const QString &fileName, const FileTags &tags, const KeyedValues &values,
              const QVector<TagPicture> &pictures);

} // namespace tags
