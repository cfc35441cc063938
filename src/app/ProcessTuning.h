// SPDX-License-Identifier: MIT
#pragma once

// Sets what glibc and Qt's script engine leave to the process, once, before it has other threads and the application
// object. docs/performance.md tells what both bring.
//
// Freed memory is used again in place of going back to the kernel at once: of a large page of a site, a sixth of the
// time went into fetching the same memory anew. Up to 64 MiB of each thread's heap may lie free for that. Where the C
// library is not glibc, it stays as it is.
//
// A function of the scene is compiled into machine code when it has been called a thousand times: by Qt's own measure,
// three times, a start spends longer on that than it gains. QV4_JIT_CALL_THRESHOLD, Qt's variable, overrides it.
void tuneProcess();

// Takes the variable out of the environment again, so that no program that is started from here gets it. Once the
// scene's engine is made, which has read it.
void forgetTuning();
