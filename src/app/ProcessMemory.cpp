// SPDX-License-Identifier: MIT
#include "app/ProcessMemory.h"

#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif

void keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int mebibyte = 1024 * 1024;
    // The most it takes, and where its own adaption would end; blocks above come from the kernel one by one.
    mallopt(M_MMAP_THRESHOLD, 32 * mebibyte);
    mallopt(M_TRIM_THRESHOLD, 64 * mebibyte);
#endif
}
