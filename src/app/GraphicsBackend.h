// SPDX-License-Identifier: MIT
#pragma once

// Chooses how the scene is drawn, by the stored "openGlMethod": 0 automatic, 1 OpenGL ES, 2 (also when absent)
// software, 3 desktop OpenGL. A QMLSCENE_DEVICE that is already set wins. To be called once, after the application's
// names are set and before the first window is made.
void chooseGraphicsBackend();
