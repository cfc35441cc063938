// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

// Makes the program's pictures known under ":/img/". They lie in a static library, so that whoever shows one has to ask
// for them first; asking again does nothing.
void initPictures();

// An icon of the picture at ":/img/<name>.png" that is sharp up to four times its size, on any screen.
[[nodiscard]] QIcon pictureIcon(const QString &path);
