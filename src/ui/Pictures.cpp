// SPDX-License-Identifier: MIT
#include "ui/Pictures.h"

#include "ui/LateIcon.h"

#include <QImageReader>
#include <QPixmap>

// The smallest of the picture's resolutions that has as many pixels, or the largest.
static QPixmap enoughOf(const QString &path, const QSize &pixels)
{
    QImage picture;
    for (const QString &end : {QStringLiteral(".png"), QStringLiteral("@2x.png"), QStringLiteral("@4x.png")}) {
        picture = readPicture(QString(path).replace(QLatin1String(".png"), end));
        if (picture.width() >= pixels.width() && picture.height() >= pixels.height())
            break;
    }
    picture.setDevicePixelRatio(1); // or it would never be more than a dense screen's twin of the first
    return QPixmap::fromImage(picture);
}

void initPictures()
{
    Q_INIT_RESOURCE(pictures);
}

QImage readPicture(const QString &path)
{
    QImageReader reader(path, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

QIcon pictureIcon(const QString &path)
{
    const auto make = [path](const QSize &pixels) {
        QIcon icon;
        icon.addPixmap(enoughOf(path, pixels));
        return icon;
    };
    return QIcon(new LateIcon(make)); // the icon owns it
}
