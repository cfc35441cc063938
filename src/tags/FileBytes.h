// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace tags {

// Reads numbers and pieces of an open file at any place, for walking through formats without trusting them: what lies
// beyond the end reads as nothing, and as 0. Does not own the descriptor and leaves its position alone.
class FileBytes
{
public:
    explicit FileBytes(int descriptor);

    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] qint64 size() const { return m_size; }

    // Shorter at the end of the file, and after an error.
    [[nodiscard]] QByteArray read(qint64 offset, qint64 length) const;
    [[nodiscard]] quint32 bigEndian32(qint64 offset) const;
    [[nodiscard]] quint64 bigEndian64(qint64 offset) const;
    [[nodiscard]] quint32 littleEndian32(qint64 offset) const;
    [[nodiscard]] quint64 littleEndian64(qint64 offset) const;

    // Into a buffer of the caller's; how much was read.
    qint64 readInto(char *target, qint64 offset, qint64 length) const;

private:
    template<typename Number>
    [[nodiscard]] Number number(qint64 offset) const;

    int m_descriptor;
    qint64 m_size = 0;
};

// A part of a file.
struct ByteRange
{
    qint64 offset = 0;
    qint64 length = 0;

    [[nodiscard]] qint64 end() const { return offset + length; }
};

} // namespace tags
