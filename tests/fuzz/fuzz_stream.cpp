// SPDX-License-Identifier: MIT
// The stream beside a string on which the same is done: parsers ask for any place and any length.
#include "tags/CheckedFileStream.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <taglib/tiostream.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

namespace {

using TagLib::IOStream;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

std::string contentOf(int descriptor)
{
    std::string content(static_cast<std::size_t>(::lseek(descriptor, 0, SEEK_END)), '\0');
    require(::pread(descriptor, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()));
    return content;
}

void replace(std::string &expected, std::size_t start, std::size_t length, const std::string &text)
{
    expected.resize(std::max(expected.size(), start));
    expected.replace(start, std::min(length, expected.size() - start), text);
}

void step(FuzzedDataProvider &data, IOStream &stream, std::string &expected)
{
    constexpr long farthest = 40'000; // some pages
    const auto place = data.ConsumeIntegralInRange<long>(0, farthest);
    const std::string text(data.ConsumeIntegralInRange<std::size_t>(0, 9'000), data.ConsumeIntegral<char>());
    const TagLib::ByteVector block(text.data(), static_cast<unsigned>(text.size()));
    const auto start = std::min(static_cast<std::size_t>(place), expected.size());
    switch (data.ConsumeIntegralInRange(0, 4)) {
    case 0: {
        stream.seek(place, IOStream::Beginning);
        const auto length = data.ConsumeIntegral<unsigned long>();
        const TagLib::ByteVector got = stream.readBlock(length);
        const std::string wanted = expected.substr(start, length);
        require(std::string(got.data(), got.size()) == wanted);
        break;
    }
    case 1:
        stream.seek(static_cast<long>(start), IOStream::Beginning);
        stream.writeBlock(block);
        replace(expected, start, text.size(), text);
        break;
    case 2: {
        const auto length = data.ConsumeIntegralInRange<unsigned long>(0, farthest);
        stream.insert(block, start, length);
        replace(expected, start, length, text);
        break;
    }
    case 3: {
        const auto length = data.ConsumeIntegralInRange<unsigned long>(0, farthest);
        stream.removeBlock(start, length);
        replace(expected, start, length, {});
        break;
    }
    default:
        stream.truncate(static_cast<long>(start));
        expected.resize(start);
    }
    require(stream.length() == static_cast<long>(expected.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const int descriptor = ::memfd_create("stream", MFD_CLOEXEC);
    const tags::CheckedFileStream file(descriptor, "stream.mp3", tags::CheckedFileStream::Access::ReadWrite);
    std::string expected;
    while (data.remaining_bytes() > 0)
        step(data, *file.stream(), expected);
    require(file.error() == 0 && contentOf(descriptor) == expected);
    return 0;
}
