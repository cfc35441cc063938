// SPDX-License-Identifier: MIT
#include "ui/Pictures.h"

#include <QPixmap>

void initPictures()
{
    Q_INIT_RESOURCE(pictures);
}

QIcon pictureIcon(const QString &path)
{
    QIcon icon;
    for (const QString &end : {QStringLiteral(".png"), QStringLiteral("@2x.png"), QStringLiteral("@4x.png")}) {
        QPixmap picture(QString(path).replace(QLatin1String(".png"), end));
        picture.setDevicePixelRatio(1); // or it would never be more than a dense screen's twin of the first
        icon.addPixmap(picture);
    }
    return icon;
}
