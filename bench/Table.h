// SPDX-License-Identifier: MIT
#pragma once

#include "Measuring.h"

#include <QString>

// The one table that script/bench prints. A row has the time of the work, the time of its reference in the same run,
// the ratio of the two, the growth where the row was run with less work before, and whether it is as good as it is
// meant to be.
namespace BenchTable {

// What a row is meant not to exceed; 0 where nothing is said.
struct Aim
{
    double ratio = 0;
    double growth = 0;
    double value = 0; // in the unit of the row
};

// Four times the work may take so many times as long where it is to grow in step: caches hold less of it.
constexpr double inStep = 5;

struct Row
{
    QString work; // and, behind a slash, what it is compared with
    int size = 0;
    double value = 0;
    double reference = 0; // in the same unit; 0 when there is none
    double smaller = 0;   // the value of the same row with a `less`-th of the work; 0 when there is none
    double less = 0;
    Aim aim = {};
    QString unit = QStringLiteral("ms");
};

void printHead();
void print(const Row &row);
// A row of times: all of them in seconds, but for the aim.
void printRow(const QString &work, int size, double seconds, double reference, double smaller = 0, double less = 0,
              const Aim &aim = {});
// A row of the longest turn that was watched, by the clock on the wall, beside the longest of a loop that has nothing
// to do, which is watched now: what the machine itself does to a turn. `most` is the aim, in milliseconds.
void printTurn(const QString &work, int size, const Turn &longest, double most);
// A line below the last row.
void printNote(const QString &note);
// How many of the aims are met.
void printTail();

} // namespace BenchTable
