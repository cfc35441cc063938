// SPDX-License-Identifier: MIT
#include "tags/CoverImage.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace {

constexpr int thumbnailSide = 50;
constexpr int maximumBytes = 32 * 1024 * 1024;
constexpr int maximumSide = 8192;
// Decoders that scale do it roughly; what they leave is this many times too large and then scaled smoothly.
constexpr int decodingReserve = 4;

// Not SVG, which is a program rather than a picture.
bool isPictureFormat(const QByteArray &format)
{
    constexpr std::array<const char *, 6> formats{"jpeg", "png", "gif", "bmp", "webp", "tiff"};
    return std::any_of(formats.begin(), formats.end(), [&format](const char *known) { return format == known; });
}

bool isAcceptable(const QImageReader &reader)
{
    const QSize size = reader.size();
    return isPictureFormat(reader.format()) && !size.isEmpty() && qMax(size.width(), size.height()) <= maximumSide;
}

template<typename Decode>
QImage decode(const QByteArray &data, Decode decodeWith)
{
    if (data.isEmpty() || data.size() > maximumBytes)
        return {};
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return isAcceptable(reader) ? decodeWith(reader) : QImage();
}

} // namespace

QSize thumbnailSize(QSize original)
{
    if (original.width() <= thumbnailSide && original.height() <= thumbnailSide)
        return original;
    const qreal factor = qreal(thumbnailSide) / qMax(original.width(), original.height());
    return {qMax(1, qRound(original.width() * factor)), qMax(1, qRound(original.height() * factor))};
}

QImage decodeCover(const QByteArray &data)
{
    return decode(data, [](QImageReader &reader) { return reader.read(); });
}

QImage decodeThumbnail(const QByteArray &data)
{
    return decode(data, [](QImageReader &reader) {
        const QSize original = reader.size();
        const QSize target = thumbnailSize(original);
        if (target == original)
            return reader.read();
        const QSize rough = target * decodingReserve;
        if (rough.width() < original.width() && rough.height() < original.height())
            reader.setScaledSize(rough);
        const QImage image = reader.read();
        return image.isNull() ? image : image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    });
}
