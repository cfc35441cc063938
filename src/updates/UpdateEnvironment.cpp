// SPDX-License-Identifier: MIT
#include "updates/UpdateEnvironment.h"

#include "updates/DesktopOpener.h"
#include "updates/UpdateFolder.h"
#include "updates/UpdateSignature.h"

UpdateEnvironment::UpdateEnvironment()
    : folder(UpdateFolder::standardPath())
    , keys(makerKeys())
    , open(&openOnDesktop)
    , now(&QDateTime::currentDateTime)
{
}
