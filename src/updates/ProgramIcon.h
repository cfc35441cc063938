// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QPixmap;
class QWidget;

// The program's icon for the dialogs of a window; null where nobody has made the pictures known.
[[nodiscard]] QPixmap programIcon(const QWidget *window);

// The same in a label, which takes no room without it.
[[nodiscard]] QLabel *makeIconLabel(QWidget *dialog);
