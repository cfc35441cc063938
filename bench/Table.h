// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// The one table that script/bench prints. A row has the time of the work, the time of its reference in the same run,
// the ratio of the two and, where the row was run with less work before, the growth.
namespace BenchTable {

void printHead();
// `smaller` is the time of the same row with a `less`-th of the work; 0 when there is none.
void printRow(const QString &name, int size, double seconds, double reference, double smaller = 0, double less = 0);
// A line below the last row.
void printNote(const QString &note);

} // namespace BenchTable

// Wall time of the work in seconds.
[[nodiscard]] double secondsOf(const std::function<void()> &work);
