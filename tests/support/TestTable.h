// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

// Adds columns of text to a test's table.
template<typename... Names>
void addTextColumns(Names... names)
{
    (QTest::addColumn<QString>(names), ...);
}

// Adds a row to a test's table; cells that are literals are text in UTF-8.
template<typename... Cells>
void addRow(const char *sentence, Cells... cells)
{
    QTestData &row = QTest::newRow(sentence);
    (row << ... << cells);
}
