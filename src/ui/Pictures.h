// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QImage>

// Makes the program's pictures known under ":/img/". They lie in a static library, so that whoever shows one has to ask
// for them first; asking again does nothing.
void initPictures();

// The picture of this path in the resources; null when there is none. Unlike QPixmap it does not ask all plugins for
// pictures whether this is one of theirs, for which each of them is loaded.
[[nodiscard]] QImage readPicture(const QString &path);

// An icon of the picture at ":/img/<name>.png" that is sharp up to four times its size, on any screen.
[[nodiscard]] QIcon pictureIcon(const QString &path);
