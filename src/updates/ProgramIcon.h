// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QWidget;

// The program's icon for a dialog. Takes no room where the pictures are not known (ui/Pictures.h).
[[nodiscard]] QLabel *makeProgramIcon(QWidget *dialog);
