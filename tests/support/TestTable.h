// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTest>

// A text in UTF-8.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

// Adds columns of text to a test's table.
template<typename... Names>
void addTextColumns(Names... names)
{
    (QTest::addColumn<QString>(names), ...);
}

// Adds a row to a test's table; literals without a suffix are texts as well.
template<typename... Cells>
void addRow(const char *sentence, Cells... cells)
{
    QTestData &row = QTest::newRow(sentence);
    (row << ... << cells);
}
