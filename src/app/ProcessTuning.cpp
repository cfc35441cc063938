// SPDX-License-Identifier: MIT
#include "app/ProcessTuning.h"

#include <QByteArray>

#include <cstdlib>
#include <utility>
#ifdef __GLIBC__
#include <malloc.h>
#endif

static constexpr char callsBeforeCompiling[] = "QV4_JIT_CALL_THRESHOLD";

static void keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int mebibyte = 1024 * 1024;
    // The most it takes, and where its own adaption would end; blocks above come from the kernel one by one.
    mallopt(M_MMAP_THRESHOLD, 32 * mebibyte);
    mallopt(M_TRIM_THRESHOLD, 64 * mebibyte);
#endif
}

// Whether it is of this program's making.
static bool isSet = false;

void tuneProcess()
{
    keepFreedMemory();
    isSet = !qEnvironmentVariableIsSet(callsBeforeCompiling);
    if (isSet)
        qputenv(callsBeforeCompiling, QByteArrayLiteral("1000"));
}

void forgetTuning()
{
    if (std::exchange(isSet, false))
        qunsetenv(callsBeforeCompiling);
}
