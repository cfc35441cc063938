// SPDX-License-Identifier: MIT
#include "ui/ButtonImageProvider.h"

#include "ui/Pictures.h"

namespace {

// From this device pixel ratio on a picture of twice the resolution is used.
constexpr double denseRatio = 1.96;

QPixmap resource(const QString &name, const QString &suffix)
{
    return QPixmap::fromImage(readPicture(QStringLiteral(":/img/%1%2.png").arg(name, suffix)));
}

bool isSmaller(const QPixmap &picture, const QSize &wanted)
{
    return picture.width() < wanted.width() || picture.height() < wanted.height();
}

// The picture, or a larger one of the same name where it has fewer pixels than wanted.
QPixmap enough(QPixmap picture, const QString &name, const QSize &wanted)
{
    for (const QString &suffix : {QStringLiteral("@2x"), QStringLiteral("@4x")}) {
        const QPixmap larger = isSmaller(picture, wanted) ? resource(name, suffix) : QPixmap();
        if (!larger.isNull())
            picture = larger;
    }
    return picture;
}

} // namespace

ButtonImageProvider::ButtonImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Pixmap)
{
}

QPixmap ButtonImageProvider::requestPixmap(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QStringList parts = id.split(QLatin1Char('/'));
    if (parts.size() != 3)
        return {};
    const QString suffix = parts.at(1).toDouble() >= denseRatio ? QStringLiteral("@2x") : QString();
    const QPixmap picture = enough(resource(parts.at(0), suffix), parts.at(0), requestedSize);
    if (size)
        *size = QSize(static_cast<int>(picture.width() / picture.devicePixelRatio()),
                      static_cast<int>(picture.height() / picture.devicePixelRatio()));
    const bool isReduced = !picture.isNull() && !requestedSize.isEmpty() && !isSmaller(picture, requestedSize);
    return isReduced ? picture.scaled(requestedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
}
