// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>

struct z_stream_s;

// Inflates a gzip (RFC 1952) or deflate (RFC 1950, and the bare RFC 1951 that some servers send under that name) body
// piece by piece, and stops at a limit: at no time does it hold more than that plus one small buffer, however much the
// data would become.
class Inflater
{
public:
    enum class Format { Gzip, Deflate };
    enum class Result { Good, TooLarge, Damaged };

    // `maximumBytes` bounds what may stand in the output of add().
    Inflater(Format format, qint64 maximumBytes);
    ~Inflater();
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    // Appends what the chunk inflates to. After anything but Good the output is of no use and add() must not be called
    // again. Several gzip members in a row are one body; anything else after the end is ignored.
    [[nodiscard]] Result add(const QByteArray &chunk, QByteArray *output);

    // False after a beginning without its end: the data is cut. True when nothing came at all.
    [[nodiscard]] bool isComplete() const { return m_held.isEmpty() && m_state != State::Inflating; }

private:
    enum class State { Empty, Inflating, Ended };

    [[nodiscard]] bool begin();
    [[nodiscard]] bool beginNextMember();
    Result inflateInput(QByteArray *output);
    Result inflatePiece(QByteArray *output);

    Format m_format;
    qint64 m_maximumBytes;
    QByteArray m_held; // a first byte that alone does not tell which deflate it is
    State m_state = State::Empty;
    std::unique_ptr<z_stream_s> m_stream;
};
