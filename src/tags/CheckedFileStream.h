// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <exception>
#include <memory>

namespace TagLib {
class IOStream;
}

namespace tags {

// How much may be read from one file before it counts as hostile. Ordinary files take about a hundred operations and
// a hundred kilobytes; endless loops, nested boxes and gigabytes of zeros take any number.
struct ReadBudget
{
    qint64 operations = 20'000; // reads, seeks and questions for the length
    qint64 bytes = qint64{64} * 1024 * 1024;

    // Large files may take more, with their fragments and pictures, but not without end.
    static ReadBudget forSize(qint64 fileBytes);
};

// Thrown out of TagLib by a stream whose budget is used up. TagLib leaks a little then.
class ReadBudgetSpent : public std::exception
{
public:
    [[nodiscard]] const char *what() const noexcept override;
};

// A file as TagLib reads and writes it, on a descriptor, which it owns and closes:
//
//     CheckedFileStream file(descriptor, name, CheckedFileStream::Access::Read);
//     file.setReadBudget(ReadBudget::forSize(size));
//     const TagLib::FileRef reference(file.stream(), true, TagLib::AudioProperties::Average);
//
// TagLib's own stream drops every error; this one keeps the first and writes nothing after it. What follows an
// inserted or removed part is moved in large blocks. It must outlive what TagLib made on it; for one thread at a time.
class CheckedFileStream
{
public:
    enum class Access { Read, ReadWrite };

    // `name` is what TagLib chooses the format by: it asks the extension first, then the content. It need not be the
    // name under which the descriptor was opened.
    CheckedFileStream(int descriptor, const QByteArray &name, Access access);
    ~CheckedFileStream();
    Q_DISABLE_COPY(CheckedFileStream)

    [[nodiscard]] TagLib::IOStream *stream() const;
    [[nodiscard]] int descriptor() const;

    // For parsing what others wrote; counts from this call on. Without a budget nothing is limited.
    void setReadBudget(const ReadBudget &budget);
    // For saving, which may have to touch every page of a long file.
    void liftReadBudget();

    // The errno of the first read or write that failed; 0 when none did. What was written after it is lost.
    [[nodiscard]] int error() const;

private:
    class Stream;
    std::unique_ptr<Stream> m_stream;
};

} // namespace tags
