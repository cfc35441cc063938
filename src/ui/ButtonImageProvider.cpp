// SPDX-License-Identifier: MIT
#include "ui/ButtonImageProvider.h"

namespace {

// From this device pixel ratio on a picture of twice the resolution is used.
constexpr double denseRatio = 1.96;

} // namespace

ButtonImageProvider::ButtonImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Pixmap)
{
}

QPixmap ButtonImageProvider::requestPixmap(const QString &id, QSize *size, const QSize &)
{
    const QStringList parts = id.split(QLatin1Char('/'));
    if (parts.size() != 3)
        return {};
    const QString suffix = parts.at(1).toDouble() >= denseRatio ? QStringLiteral("@2x") : QString();
    const QPixmap picture(QStringLiteral(":/img/%1%2.png").arg(parts.at(0), suffix));
    if (size)
        *size = QSize(static_cast<int>(picture.width() / picture.devicePixelRatio()),
                      static_cast<int>(picture.height() / picture.devicePixelRatio()));
    return picture;
}
