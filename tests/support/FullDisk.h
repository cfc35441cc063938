// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <csignal>

#include <sys/resource.h>

// While it lives, no file can grow beyond so many bytes by the hands of this process, as on a disk that becomes full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t roomBytes = 0)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        if (getrlimit(RLIMIT_FSIZE, &m_usual) != 0)
            qFatal("the limit on files is not known");
        limitTo({roomBytes, m_usual.rlim_max});
    }
    ~FullDisk() { limitTo(m_usual); }
    Q_DISABLE_COPY(FullDisk)

private:
    static void limitTo(const rlimit &limit)
    {
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            qFatal("the limit on files cannot be set");
    }

    rlimit m_usual = {};
};
