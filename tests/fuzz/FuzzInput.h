// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdlib>

// Ends the run with a fault.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

// Words that a parser asks for are rare in random bytes: one byte stands for each of them, all others for themselves.
template<typename Words>
QByteArray withWords(const std::string &bytes, const Words &words)
{
    QByteArray text;
    for (const char byte : bytes) {
        const auto index = static_cast<unsigned char>(byte);
        text += index < std::size(words) ? QByteArray(words[index]) : QByteArray(1, byte);
    }
    return text;
}
