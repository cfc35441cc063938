// SPDX-License-Identifier: MIT
#pragma once

// Makes the program's pictures known under ":/img/". They lie in a static library, so that whoever shows one has to ask
// for them first; asking again does nothing.
void initPictures();
