// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

// Serves the pictures of buttons to the scene, as "image://btnimage/<name>/<device pixel ratio>/<colour>": the picture
// ":/img/<name>.png", or ":/img/<name>@2x.png" on dense screens. The colour is part of the address, so that a change of
// the palette asks anew, but the picture is not tinted. Without a size the ratio alone chooses: 1.96 and above is
// dense. Who asks for a size, in device pixels, gets exactly that, and it is meant that the size then outweighs the
// ratio: a picture that is too small gives way to "@2x" or ":/img/<name>@4x.png", on usual screens as well; one of 4x
// is enlarged no further. A malformed address or a missing picture is an empty pixmap.
class ButtonImageProvider : public QQuickImageProvider
{
public:
    ButtonImageProvider();

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override;
};
