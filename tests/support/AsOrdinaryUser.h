// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <unistd.h>

// While it lives the process has no more rights than an ordinary user, also when root runs the tests; threads follow.
class AsOrdinaryUser
{
public:
    static constexpr uid_t nobody = 65534;

    AsOrdinaryUser()
    {
        if (getuid() == 0 && seteuid(nobody) != 0)
            qFatal("cannot give up the rights of root");
    }
    ~AsOrdinaryUser()
    {
        if (getuid() == 0 && seteuid(0) != 0)
            qFatal("cannot get the rights of root back");
    }
    Q_DISABLE_COPY(AsOrdinaryUser)
};
