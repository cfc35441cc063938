// SPDX-License-Identifier: MIT
#include "lyrics/TagCorrector.h"

TagCorrector::TagCorrector(QObject *parent)
    : QObject(parent)
{
}
