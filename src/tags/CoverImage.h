// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

class QByteArray;

// The size of a row's cover: kept when both sides are at most 50 pixels; otherwise a picture that is wider than high
// gets the width 50 and any other the height 50, in the same proportions, rounded, never less than 1.
QSize thumbnailSize(QSize original);

// Cover bytes come from the files and are hostile input: only the usual picture formats are decoded, of at most 32 MB
// and 8192 pixels a side, which is looked up before anything is decoded. Anything else gives a null image.
// Both functions may be called in any thread.

QImage decodeCover(const QByteArray &data);

// Scaled down to thumbnailSize(), smoothly, without ever holding the whole picture where its format allows that.
QImage decodeThumbnail(const QByteArray &data);
