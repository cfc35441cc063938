// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// A program that starts, says on standard output when it has painted its first frame and when its list, and ends at
// once. The bench starts itself in this role, once for each measurement.

// Whether the arguments of a program ask for that role.
[[nodiscard]] bool isStartCall(int argc, const char *const *argv);
// The whole of main() in that role; does not return.
[[noreturn]] void runStart(int &argc, char **argv);
