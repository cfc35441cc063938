// SPDX-License-Identifier: MIT
#include "ui/Pictures.h"

#include <QtGlobal>

void initPictures()
{
    Q_INIT_RESOURCE(pictures);
}
