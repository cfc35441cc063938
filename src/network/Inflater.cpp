// SPDX-License-Identifier: MIT
#include "network/Inflater.h"

#define ZLIB_CONST // the input is not written to
#include <zlib.h>

#include <array>

namespace {

constexpr unsigned char firstGzipByte = 0x1f;

// The two header bytes of RFC 1950: method 8, and together a multiple of 31.
bool looksLikeZlib(const z_stream &stream)
{
    const unsigned first = stream.next_in[0];
    const unsigned second = stream.next_in[1];
    return (first & 0x0fU) == Z_DEFLATED && ((first << 8U) | second) % 31 == 0;
}

} // namespace

Inflater::Inflater(Format format, qint64 maximumBytes)
    : m_format(format)
    , m_maximumBytes(maximumBytes)
    , m_stream(std::make_unique<z_stream>())
{
}

Inflater::~Inflater()
{
    inflateEnd(m_stream.get());
}

Inflater::Result Inflater::add(const QByteArray &chunk, QByteArray *output)
{
    const QByteArray input = m_held + chunk;
    m_held.clear();
    if (m_state == State::Empty && input.size() < 2) {
        m_held = input;
        return Result::Good;
    }
    m_stream->next_in = reinterpret_cast<const Bytef *>(input.constData());
    m_stream->avail_in = static_cast<uInt>(input.size());

    if (m_state == State::Empty && !begin())
        return Result::Damaged;
    return inflateInput(output);
}

bool Inflater::begin()
{
    constexpr int gzipOrZlib = MAX_WBITS + 32;
    m_state = State::Inflating;
    const bool bare = m_format == Format::Deflate && !looksLikeZlib(*m_stream);
    return inflateInit2(m_stream.get(), bare ? -MAX_WBITS : gzipOrZlib) == Z_OK;
}

bool Inflater::beginNextMember()
{
    if (m_format != Format::Gzip || m_stream->avail_in == 0 || m_stream->next_in[0] != firstGzipByte)
        return false;
    m_state = State::Inflating;
    return inflateReset(m_stream.get()) == Z_OK;
}

Inflater::Result Inflater::inflateInput(QByteArray *output)
{
    bool isMoreToCome = true;
    while (isMoreToCome) {
        if (m_state == State::Ended && !beginNextMember())
            return Result::Good;
        const Result result = inflatePiece(output);
        if (result != Result::Good)
            return result;
        const bool outputWasFull = m_state == State::Inflating && m_stream->avail_out == 0;
        isMoreToCome = m_stream->avail_in > 0 || outputWasFull;
    }
    return Result::Good;
}

Inflater::Result Inflater::inflatePiece(QByteArray *output)
{
    std::array<char, 16384> buffer{};
    m_stream->next_out = reinterpret_cast<Bytef *>(buffer.data());
    m_stream->avail_out = static_cast<uInt>(buffer.size());
    const int status = inflate(m_stream.get(), Z_NO_FLUSH);
    // Z_BUF_ERROR only says that there was nothing to do.
    if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR)
        return Result::Damaged;
    const int produced = static_cast<int>(buffer.size() - m_stream->avail_out);
    if (output->size() + produced > m_maximumBytes)
        return Result::TooLarge;
    output->append(buffer.data(), produced);
    if (status == Z_STREAM_END)
        m_state = State::Ended;
    return Result::Good;
}
