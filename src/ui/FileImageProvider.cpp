// SPDX-License-Identifier: MIT
#include "ui/FileImageProvider.h"

#include "model/MainModel.h"

static constexpr QSize usualSize(32, 32);

FileImageProvider::FileImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

// Words that are no number, "default" and "empty" among them, name no song.
QImage FileImageProvider::cover(const QString &id) const
{
    const int number = id.toInt();
    if (!m_model || number <= 0)
        return {};
    const ModelItem *item = m_model->item(static_cast<quint16>(number));
    return item ? item->thumbnail() : QImage();
}

QImage FileImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const bool isRequested = requestedSize.width() >= 0 && requestedSize.height() >= 0;
    const QSize within = isRequested ? requestedSize : usualSize;
    if (size)
        *size = within;
    const QImage image = cover(id);
    return image.isNull() ? image : image.scaled(within, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
