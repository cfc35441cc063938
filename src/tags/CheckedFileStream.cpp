// SPDX-License-Identifier: MIT
#include "tags/CheckedFileStream.h"

#include "tags/WriterThread.h"

#include <taglib/tiostream.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tags {

namespace {

// In such pieces the rest of a file is moved: at 55 MB four times as fast as in TagLib's own of 1 kB.
constexpr qint64 moveBlockBytes = qint64{1024} * 1024;

// Parsers read a few bytes here and there; a window of two pages serves most of them with one call.
constexpr qint64 pageBytes = 4096;
constexpr qint64 windowBytes = 2 * pageBytes;

} // namespace

ReadBudget ReadBudget::forSize(qint64 fileBytes)
{
    constexpr qint64 mostOperations = 60'000; // a long file of zeros takes seconds for them
    constexpr qint64 bytesEach = 512;
    constexpr qint64 mostBytes = qint64{128} * 1024 * 1024;
    const ReadBudget least;
    return {std::min(least.operations + fileBytes / bytesEach, mostOperations),
            std::min(least.bytes + fileBytes, mostBytes)};
}

const char *ReadBudgetSpent::what() const noexcept
{
    return "more was read than any ordinary file takes";
}

class CheckedFileStream::Stream final : public TagLib::IOStream
{
public:
    Stream(int descriptor, const QByteArray &name, Access access);
    ~Stream() override;

    TagLib::FileName name() const override { return m_name.constData(); }
    TagLib::ByteVector readBlock(unsigned long length) override;
    void writeBlock(const TagLib::ByteVector &data) override;
    void insert(const TagLib::ByteVector &data, unsigned long start, unsigned long replace) override;
    void removeBlock(unsigned long start, unsigned long length) override;
    bool readOnly() const override { return m_access == Access::Read; }
    bool isOpen() const override { return m_descriptor >= 0; }
    void seek(long offset, Position position) override;
    void clear() override {}
    long tell() const override { return m_position; }
    long length() override;
    void truncate(long length) override;

    [[nodiscard]] int descriptor() const { return m_descriptor; }
    [[nodiscard]] int error() const { return m_error; }
    void setBudget(std::optional<ReadBudget> budget) { m_budget = budget; }

private:
    void spend(qint64 bytes);
    void noteError(int error);
    [[nodiscard]] bool mayWrite();
    qint64 readSmall(char *target, qint64 bytes);
    qint64 readAt(qint64 offset, char *target, qint64 bytes);
    void writeAt(qint64 offset, const char *source, qint64 bytes);
    void moveTail(qint64 from, qint64 to);
    void moveBytes(qint64 from, qint64 to, std::vector<char> &buffer);
    void setLength(qint64 length);

    const int m_descriptor;
    const QByteArray m_name;
    const Access m_access;
    qint64 m_length = 0;
    qint64 m_position = 0;
    int m_error = 0;
    std::optional<ReadBudget> m_budget;
    std::array<char, windowBytes> m_window; // what was read last; not filled beyond m_windowFill
    qint64 m_windowStart = 0;
    qint64 m_windowFill = 0;
};

CheckedFileStream::Stream::Stream(int descriptor, const QByteArray &name, Access access)
    : m_descriptor(descriptor)
    , m_name(name)
    , m_access(access)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0)
        m_length = status.st_size;
    else
        noteError(errno);
}

CheckedFileStream::Stream::~Stream()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void CheckedFileStream::Stream::spend(qint64 bytes)
{
    if (!m_budget)
        return;
    m_budget->operations -= 1;
    m_budget->bytes -= bytes;
    if (m_budget->operations < 0 || m_budget->bytes < 0)
        throw ReadBudgetSpent();
}

void CheckedFileStream::Stream::noteError(int error)
{
    if (m_error == 0)
        m_error = error;
}

// After an error nothing more is written: the file is given up, and more would only bury what happened.
bool CheckedFileStream::Stream::mayWrite()
{
    if (m_access == Access::Read)
        noteError(EBADF);
    m_windowFill = 0;
    return m_error == 0;
}

// Reading

TagLib::ByteVector CheckedFileStream::Stream::readBlock(unsigned long length)
{
    const qint64 rest = std::max<qint64>(m_length - m_position, 0);
    const qint64 wanted = length < static_cast<unsigned long>(rest) ? static_cast<qint64>(length) : rest;
    spend(wanted);
    if (wanted == 0)
        return {};
    TagLib::ByteVector block(static_cast<unsigned int>(wanted));
    const qint64 got = wanted < pageBytes ? readSmall(block.data(), wanted) : readAt(m_position, block.data(), wanted);
    block.resize(static_cast<unsigned int>(got));
    m_position += got;
    return block;
}

// At most a page, through the window.
qint64 CheckedFileStream::Stream::readSmall(char *target, qint64 bytes)
{
    if (m_position < m_windowStart || m_position + bytes > m_windowStart + m_windowFill) {
        m_windowStart = m_position - m_position % pageBytes;
        m_windowFill = readAt(m_windowStart, m_window.data(), windowBytes);
    }
    const qint64 there = std::clamp<qint64>(m_windowStart + m_windowFill - m_position, 0, bytes);
    std::memcpy(target, m_window.data() + (m_position - m_windowStart), static_cast<std::size_t>(there));
    return there;
}

// Fewer bytes than asked for only at the end of the file and after an error.
qint64 CheckedFileStream::Stream::readAt(qint64 offset, char *target, qint64 bytes)
{
    qint64 done = 0;
    while (done < bytes) {
        const ssize_t got = ::pread(m_descriptor, target + done, static_cast<std::size_t>(bytes - done), offset + done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            noteError(errno);
        if (got <= 0)
            break;
        done += got;
    }
    return done;
}

void CheckedFileStream::Stream::seek(long offset, Position position)
{
    spend(0);
    const qint64 base = position == Beginning ? 0 : position == Current ? m_position : m_length;
    if (base + offset >= 0) // as of a file, a seek to before its beginning leaves the place
        m_position = base + offset;
}

long CheckedFileStream::Stream::length()
{
    spend(0);
    return m_length;
}

// Writing

void CheckedFileStream::Stream::writeAt(qint64 offset, const char *source, qint64 bytes)
{
    for (qint64 done = 0; done < bytes && m_error == 0;) {
        const ssize_t put =
            ::pwrite(m_descriptor, source + done, static_cast<std::size_t>(bytes - done), offset + done);
        if (put > 0)
            done += put;
        else if (put == 0 || errno != EINTR)
            noteError(put == 0 ? ENOSPC : errno);
    }
    m_length = std::max(m_length, offset + bytes);
}

void CheckedFileStream::Stream::writeBlock(const TagLib::ByteVector &data)
{
    if (!mayWrite())
        return;
    writeAt(m_position, data.data(), data.size());
    m_position += data.size();
}

void CheckedFileStream::Stream::insert(const TagLib::ByteVector &data, unsigned long start, unsigned long replace)
{
    if (!mayWrite())
        return;
    const auto place = static_cast<qint64>(start);
    moveTail(std::min(place + static_cast<qint64>(replace), m_length), place + data.size());
    writeAt(place, data.data(), data.size());
    m_position = place + data.size();
}

void CheckedFileStream::Stream::removeBlock(unsigned long start, unsigned long length)
{
    insert(TagLib::ByteVector(), start, length);
}

void CheckedFileStream::Stream::truncate(long length)
{
    if (mayWrite())
        setLength(length);
}

void CheckedFileStream::Stream::setLength(qint64 length)
{
    if (m_error != 0)
        return;
    if (::ftruncate(m_descriptor, length) != 0)
        noteError(errno);
    else
        m_length = length;
}

// Moves all from one place to the end, growing or cutting the file.
void CheckedFileStream::Stream::moveTail(qint64 from, qint64 to)
{
    const qint64 bytes = m_length - from;
    if (bytes <= 0 || from == to) {
        if (to < from)
            setLength(to);
        return;
    }
    std::vector<char> buffer(static_cast<std::size_t>(std::min(bytes, moveBlockBytes)));
    const auto block = static_cast<qint64>(buffer.size());
    if (to > from) { // from the back, so that nothing is overwritten that is still to be moved
        for (qint64 left = bytes; left > 0 && m_error == 0; left -= std::min(left, block)) {
            const qint64 first = left - std::min(left, block);
            buffer.resize(static_cast<std::size_t>(left - first));
            moveBytes(from + first, to + first, buffer);
        }
    } else {
        for (qint64 done = 0; done < bytes && m_error == 0; done += block) {
            buffer.resize(static_cast<std::size_t>(std::min(block, bytes - done)));
            moveBytes(from + done, to + done, buffer);
        }
        setLength(to + bytes);
    }
}

void CheckedFileStream::Stream::moveBytes(qint64 from, qint64 to, std::vector<char> &buffer)
{
    const auto bytes = static_cast<qint64>(buffer.size());
    if (readAt(from, buffer.data(), bytes) != bytes)
        noteError(EIO); // cut by somebody else meanwhile
    if (m_error == 0)
        writeAt(to, buffer.data(), bytes);
    WriterThread::instance().noteProgress();
}

// What TagLib is given

CheckedFileStream::CheckedFileStream(int descriptor, const QByteArray &name, Access access)
    : m_stream(std::make_unique<Stream>(descriptor, name, access))
{
}

CheckedFileStream::~CheckedFileStream() = default;

TagLib::IOStream *CheckedFileStream::stream() const
{
    return m_stream.get();
}

int CheckedFileStream::descriptor() const
{
    return m_stream->descriptor();
}

void CheckedFileStream::setReadBudget(const ReadBudget &budget)
{
    m_stream->setBudget(budget);
}

void CheckedFileStream::liftReadBudget()
{
    m_stream->setBudget(std::nullopt);
}

int CheckedFileStream::error() const
{
    return m_stream->error();
}

} // namespace tags
